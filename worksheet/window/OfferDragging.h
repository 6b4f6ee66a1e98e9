#pragma once

#include "Field.h"

#include <QObject>
#include <QPoint>

#include <optional>

class ControlMap;
class DragHandlers;
class DragScroll;
class FailureReport;
class QDropEvent;
class QLineEdit;
class QMouseEvent;

/// Translates the toolkit's mouse and drag events of the offers' fields into the events of
/// dragging.
///
/// A press starts a drag on a field that it enters, or where everything is selected, once the mouse
/// has gone the platform's distance. Anywhere else it sets the caret and selects, as ever. Other
/// fields take no drop at all: a text dropped there would show without being stored. Near the edges
/// of the frame the rows scroll, whatever the mouse is over.
class OfferDragging : public QObject {
    Q_OBJECT

public:
    /// Of a window, and the frame of its rows.
    struct Place {
        const QWidget* window;
        QWidget* frame;
    };
    OfferDragging(Place place, DragHandlers& handlers, const ControlMap& controls,
                  DragScroll& scroll, const FailureReport& report);

    /// The row has been made.
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

    DragHandlers* m_handlers;
    const ControlMap* m_controls;
    DragScroll* m_scroll;
    const QWidget* m_frame;
    const FailureReport* m_report;
    std::optional<Field> m_enteredByMouse;
    std::optional<Press> m_press;
    Qt::DropActions m_effect; ///< what the field under the drag can do with it
};
