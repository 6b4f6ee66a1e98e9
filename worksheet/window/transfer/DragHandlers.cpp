#include "DragHandlers.h"

#include "ControlMap.h"
#include "ValueTransfer.h"

#include <QMimeData>

#include <algorithm>
#include <array>

namespace quend::window {

namespace {

using Handlers = DragHandlers;

/// The handlers of one control. Null: no such handler.
struct DragEvents {
    FieldId field;
    bool (Handlers::*mouseDown)(int, Qt::MouseButton);
    Qt::DropActions (Handlers::*startDrag)(int, QMimeData&);
    Qt::DropActions (Handlers::*dragOver)(int, const QMimeData&, Qt::DropActions);
    Qt::DropAction (Handlers::*dragDrop)(int, const QMimeData&, Qt::DropActions);
    void (Handlers::*completeDrag)(int);
};

constexpr std::array DragEventTable{
    DragEvents{FieldId::Points, &Handlers::txtPoints_MouseDown, &Handlers::txtPoints_OLEStartDrag,
               &Handlers::txtPoints_OLEDragOver, &Handlers::txtPoints_OLEDragDrop,
               &Handlers::txtPoints_OLECompleteDrag},
    DragEvents{FieldId::InterestRate, &Handlers::txtInterestRate_MouseDown,
               &Handlers::txtInterestRate_OLEStartDrag, &Handlers::txtInterestRate_OLEDragOver,
               &Handlers::txtInterestRate_OLEDragDrop, &Handlers::txtInterestRate_OLECompleteDrag},
    DragEvents{FieldId::ActualPayment, &Handlers::txtActualPayment_MouseDown,
               &Handlers::txtActualPayment_OLEStartDrag, &Handlers::txtActualPayment_OLEDragOver,
               &Handlers::txtActualPayment_OLEDragDrop,
               &Handlers::txtActualPayment_OLECompleteDrag},
    DragEvents{FieldId::Who, &Handlers::txtWho_MouseDown, &Handlers::txtWho_OLEStartDrag,
               &Handlers::txtWho_OLEDragOver, &Handlers::txtWho_OLEDragDrop, nullptr},
};

const DragEvents& EventsOf(Field field) {
    return *std::ranges::find(DragEventTable, field.id, &DragEvents::field);
}

} // namespace

DragHandlers::DragHandlers(ValueTransfer& values, const ControlMap& controls)
    : m_values(&values), m_controls(&controls) {}

bool DragHandlers::MouseDown(Field field, Qt::MouseButton button) {
    return (this->*EventsOf(field).mouseDown)(field.row.value, button);
}

Qt::DropActions DragHandlers::OLEStartDrag(Field field, QMimeData& data) {
    return (this->*EventsOf(field).startDrag)(field.row.value, data);
}

Qt::DropActions DragHandlers::OLEDragOver(Field field, const QMimeData& data,
                                          Qt::DropActions effect) {
    return (this->*EventsOf(field).dragOver)(field.row.value, data, effect);
}

Qt::DropAction DragHandlers::OLEDragDrop(Field field, const QMimeData& data,
                                         Qt::DropActions effect) {
    return (this->*EventsOf(field).dragDrop)(field.row.value, data, effect);
}

void DragHandlers::OLECompleteDrag(Field field) {
    if (const auto handler = EventsOf(field).completeDrag) {
        (this->*handler)(field.row.value);
    }
}

/// The right button opens the context menu.
bool DragHandlers::Starts(Field field, Qt::MouseButton button) const {
    return button == Qt::LeftButton && m_values->CanGive(field);
}

Qt::DropActions DragHandlers::Fill(Field field, QMimeData& data) {
    data.setText(m_values->Give(field));
    return Qt::CopyAction;
}

/// A number is only ever copied; a lender's text may be moved here from another program.
Qt::DropActions DragHandlers::Possible(Field field, const QMimeData& data,
                                       Qt::DropActions effect) const {
    if (!data.hasText() || !m_values->MayTake(field, data.text())) {
        return Qt::IgnoreAction;
    }
    return RuleOf(field.id).IsNumber() ? effect & Qt::CopyAction : effect;
}

Qt::DropAction DragHandlers::Store(Field field, const QMimeData& data, Qt::DropActions effect) {
    if (!m_values->Take(field, data.text())) {
        return Qt::IgnoreAction;
    }
    return effect.testFlag(Qt::CopyAction) ? Qt::CopyAction : Qt::MoveAction;
}

void DragHandlers::Repaint(Field field) const { m_controls->ControlOf(field)->update(); }

bool DragHandlers::txtPoints_MouseDown(int index, Qt::MouseButton button) {
    return Starts({FieldId::Points, Row{index}}, button);
}
Qt::DropActions DragHandlers::txtPoints_OLEStartDrag(int index, QMimeData& data) {
    return Fill({FieldId::Points, Row{index}}, data);
}
Qt::DropActions DragHandlers::txtPoints_OLEDragOver(int index, const QMimeData& data,
                                                    Qt::DropActions effect) {
    return Possible({FieldId::Points, Row{index}}, data, effect);
}
Qt::DropAction DragHandlers::txtPoints_OLEDragDrop(int index, const QMimeData& data,
                                                   Qt::DropActions effect) {
    return Store({FieldId::Points, Row{index}}, data, effect);
}
void DragHandlers::txtPoints_OLECompleteDrag(int index) { Repaint({FieldId::Points, Row{index}}); }

bool DragHandlers::txtInterestRate_MouseDown(int index, Qt::MouseButton button) {
    return Starts({FieldId::InterestRate, Row{index}}, button);
}
Qt::DropActions DragHandlers::txtInterestRate_OLEStartDrag(int index, QMimeData& data) {
    return Fill({FieldId::InterestRate, Row{index}}, data);
}
Qt::DropActions DragHandlers::txtInterestRate_OLEDragOver(int index, const QMimeData& data,
                                                          Qt::DropActions effect) {
    return Possible({FieldId::InterestRate, Row{index}}, data, effect);
}
Qt::DropAction DragHandlers::txtInterestRate_OLEDragDrop(int index, const QMimeData& data,
                                                         Qt::DropActions effect) {
    return Store({FieldId::InterestRate, Row{index}}, data, effect);
}
void DragHandlers::txtInterestRate_OLECompleteDrag(int index) {
    Repaint({FieldId::InterestRate, Row{index}});
}

bool DragHandlers::txtActualPayment_MouseDown(int index, Qt::MouseButton button) {
    return Starts({FieldId::ActualPayment, Row{index}}, button);
}
Qt::DropActions DragHandlers::txtActualPayment_OLEStartDrag(int index, QMimeData& data) {
    return Fill({FieldId::ActualPayment, Row{index}}, data);
}
Qt::DropActions DragHandlers::txtActualPayment_OLEDragOver(int index, const QMimeData& data,
                                                           Qt::DropActions effect) {
    return Possible({FieldId::ActualPayment, Row{index}}, data, effect);
}
Qt::DropAction DragHandlers::txtActualPayment_OLEDragDrop(int index, const QMimeData& data,
                                                          Qt::DropActions effect) {
    return Store({FieldId::ActualPayment, Row{index}}, data, effect);
}
void DragHandlers::txtActualPayment_OLECompleteDrag(int index) {
    Repaint({FieldId::ActualPayment, Row{index}});
}

bool DragHandlers::txtWho_MouseDown(int index, Qt::MouseButton button) {
    return Starts({FieldId::Who, Row{index}}, button);
}
Qt::DropActions DragHandlers::txtWho_OLEStartDrag(int index, QMimeData& data) {
    return Fill({FieldId::Who, Row{index}}, data);
}
Qt::DropActions DragHandlers::txtWho_OLEDragOver(int index, const QMimeData& data,
                                                 Qt::DropActions effect) {
    return Possible({FieldId::Who, Row{index}}, data, effect);
}
Qt::DropAction DragHandlers::txtWho_OLEDragDrop(int index, const QMimeData& data,
                                                Qt::DropActions effect) {
    return Store({FieldId::Who, Row{index}}, data, effect);
}

} // namespace quend::window
