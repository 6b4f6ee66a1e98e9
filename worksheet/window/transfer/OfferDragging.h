#pragma once

#include "Field.h"
#include "WindowNames.h"

#include <QObject>
#include <QPoint>

#include <optional>

class QDropEvent;
class QLineEdit;
class QMouseEvent;

namespace quend::model {
class Worksheet;
}

namespace quend::window {

class ControlMap;
class DragHandlers;
class DragScroll;
class FailureReport;

/// Translates Qt's mouse and drag events of the offer fields into the events of DragHandlers.
///
/// A press starts a drag if it enters the field or if everything is selected, once the mouse has
/// moved the platform's drag distance. Otherwise it sets the caret and selects as usual. Other
/// fields accept no drop, because a dropped text would show without being stored. Near the edges of
/// the frame the rows scroll, whatever control is under the mouse. A file of worksheets is left to
/// the window.
class OfferDragging : public QObject {
    Q_OBJECT

public:
    /// The window and the frame of its rows.
    struct Place {
        const QWidget* window;
        QWidget* frame;
    };
    OfferDragging(Place place, Worksheet& worksheet, DragHandlers& handlers,
                  const ControlMap& controls, DragScroll& scroll, const FailureReport& report);

    /// Call when the row has been created.
    void Watch(Row row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Press {
        Field field;
        QPoint at;
    };

    void OnPress(Field field, const QMouseEvent& event);
    bool OnMove(Field field, const QMouseEvent& event);
    bool Drag(Field field);
    bool OnFieldEvent(Field field, QEvent& event);
    static bool OnFrameEvent(QEvent& event);
    void Scroll(const QWidget& control, const QEvent& event);
    void OnDragOver(Field field, QDropEvent& event, bool entering);
    void FindEffect(Field field, const QDropEvent& event);
    bool TakeUnderMouse(Field& field, const QDropEvent& event);
    void OnDrop(Field field, QDropEvent& event);
    QLineEdit& EditOf(Field field) const;

    Worksheet* m_worksheet;
    DragHandlers* m_handlers;
    const ControlMap* m_controls;
    DragScroll* m_scroll;
    const QWidget* m_frame;
    const FailureReport* m_report;
    std::optional<Field> m_enteredByMouse;
    std::optional<Press> m_press;
    Qt::DropActions m_effect; ///< the actions that the field under the mouse allows
};

} // namespace quend::window
