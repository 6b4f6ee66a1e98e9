#pragma once

#include "Field.h"
#include "WindowNames.h"

#include <QtGlobal>

#include <Qt>

class QMimeData;

namespace quend::window {

class ControlMap;
class ValueTransfer;

/// The drag events, each named after its control. TransferRules.h defines which values can be
/// dragged and dropped; OfferDragging handles Qt's drag events. Handlers take the row. They throw
/// what ValueTransfer throws.
class DragHandlers {
public:
    DragHandlers(ValueTransfer& values, const ControlMap& controls);

    /// Passes an event of a draggable field to the handler of its control.
    bool MouseDown(Field field, Qt::MouseButton button);
    Qt::DropActions OLEStartDrag(Field field, QMimeData& data);
    Qt::DropActions OLEDragOver(Field field, const QMimeData& data, Qt::DropActions effect);
    Qt::DropAction OLEDragDrop(Field field, const QMimeData& data, Qt::DropActions effect);
    void OLECompleteDrag(Field field);

    // MouseDown: whether the button starts a drag. OLEStartDrag: puts the value into the data and
    // returns the allowed actions. OLEDragOver: which of the offered actions are possible, if any.
    // OLEDragDrop: stores the value and returns the action performed.
    bool txtPoints_MouseDown(int index, Qt::MouseButton button);
    Qt::DropActions txtPoints_OLEStartDrag(int index, QMimeData& data);
    Qt::DropActions txtPoints_OLEDragOver(int index, const QMimeData& data, Qt::DropActions effect);
    Qt::DropAction txtPoints_OLEDragDrop(int index, const QMimeData& data, Qt::DropActions effect);
    void txtPoints_OLECompleteDrag(int index);
    bool txtInterestRate_MouseDown(int index, Qt::MouseButton button);
    Qt::DropActions txtInterestRate_OLEStartDrag(int index, QMimeData& data);
    Qt::DropActions txtInterestRate_OLEDragOver(int index, const QMimeData& data,
                                                Qt::DropActions effect);
    Qt::DropAction txtInterestRate_OLEDragDrop(int index, const QMimeData& data,
                                               Qt::DropActions effect);
    void txtInterestRate_OLECompleteDrag(int index);
    bool txtActualPayment_MouseDown(int index, Qt::MouseButton button);
    Qt::DropActions txtActualPayment_OLEStartDrag(int index, QMimeData& data);
    Qt::DropActions txtActualPayment_OLEDragOver(int index, const QMimeData& data,
                                                 Qt::DropActions effect);
    Qt::DropAction txtActualPayment_OLEDragDrop(int index, const QMimeData& data,
                                                Qt::DropActions effect);
    void txtActualPayment_OLECompleteDrag(int index);
    bool txtWho_MouseDown(int index, Qt::MouseButton button);
    Qt::DropActions txtWho_OLEStartDrag(int index, QMimeData& data);
    Qt::DropActions txtWho_OLEDragOver(int index, const QMimeData& data, Qt::DropActions effect);
    Qt::DropAction txtWho_OLEDragDrop(int index, const QMimeData& data, Qt::DropActions effect);

private:
    bool Starts(Field field, Qt::MouseButton button) const;
    Qt::DropActions Fill(Field field, QMimeData& data);
    Qt::DropActions Possible(Field field, const QMimeData& data, Qt::DropActions effect) const;
    Qt::DropAction Store(Field field, const QMimeData& data, Qt::DropActions effect);
    void Repaint(Field field) const;

    ValueTransfer* m_values;
    const ControlMap* m_controls;
};

} // namespace quend::window
