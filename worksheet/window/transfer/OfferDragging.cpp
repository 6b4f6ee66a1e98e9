#include "OfferDragging.h"

#include "ControlMap.h"
#include "DragHandlers.h"
#include "DragScroll.h"
#include "FailureReport.h"
#include "FileDrop.h"
#include "TransferRules.h"
#include "Worksheet.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

#include <memory>
#include <utility>

namespace quend::window {

namespace {

bool IsAllSelected(const QLineEdit& edit, bool isNumber) {
    return edit.selectedText() == edit.text() && (isNumber || edit.hasSelectedText());
}

/// The value as a drag picture, in the colours of its field.
QPixmap SlipOf(const QString& text, const QLineEdit& edit) {
    constexpr int margin = 4;
    constexpr int widest = 240;
    const QFontMetrics metrics = edit.fontMetrics();
    const QString shown = metrics.elidedText(text, Qt::ElideRight, widest);
    const QRect slip(0, 0, metrics.horizontalAdvance(shown) + 2 * margin,
                     metrics.height() + 2 * margin);
    const qreal ratio = edit.devicePixelRatioF();
    QPixmap pixmap(slip.size() * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(edit.palette().color(QPalette::Base));
    QPainter painter(&pixmap);
    painter.setFont(edit.font());
    painter.setPen(edit.palette().color(QPalette::Text));
    painter.drawRect(slip.adjusted(0, 0, -1, -1));
    painter.drawText(slip, Qt::AlignCenter, shown);
    return pixmap;
}

} // namespace

OfferDragging::OfferDragging(Place place, Worksheet& worksheet, DragHandlers& handlers,
                             const ControlMap& controls, DragScroll& scroll,
                             const FailureReport& report)
    : m_worksheet(&worksheet), m_handlers(&handlers), m_controls(&controls), m_scroll(&scroll),
      m_frame(place.frame), m_report(&report) {
    for (QLineEdit* edit : place.window->findChildren<QLineEdit*>()) {
        edit->setAcceptDrops(false);
    }
    place.frame->setAcceptDrops(true); // to receive drag moves over it; it accepts no drop
    place.frame->installEventFilter(this);
}

QLineEdit& OfferDragging::EditOf(Field field) const {
    return *m_controls->ControlOf<QLineEdit>(field);
}

void OfferDragging::Watch(Row row) {
    for (const FieldRule& rule : OfferFields()) {
        if (auto* edit = m_controls->ControlOf<QLineEdit>({rule.id, row})) {
            edit->setAcceptDrops(IsDraggable(rule.id));
            if (IsDraggable(rule.id)) {
                edit->installEventFilter(this);
            }
        }
    }
}

bool OfferDragging::eventFilter(QObject* watched, QEvent* event) {
    if (IsFileDrag(*event)) {
        event->ignore(); // goes on to the window
        return true;
    }
    const auto field = m_controls->FieldOf(watched);
    if (field || watched == m_frame) {
        Scroll(*static_cast<QWidget*>(watched), *event);
    }
    return field ? OnFieldEvent(*field, *event) : watched == m_frame && OnFrameEvent(*event);
}

/// The frame receives drag moves only if it accepts the drag's entry. It accepts no drop.
bool OfferDragging::OnFrameEvent(QEvent& event) {
    const bool enters = event.type() == QEvent::DragEnter;
    if (!enters && event.type() != QEvent::DragMove && event.type() != QEvent::Drop) {
        return false;
    }
    event.setAccepted(enters);
    return true;
}

void OfferDragging::Scroll(const QWidget& control, const QEvent& event) {
    switch (event.type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        m_scroll->Over(control, static_cast<const QDropEvent&>(event).position().toPoint());
        break;
    case QEvent::DragLeave:
    case QEvent::Drop:
        m_scroll->Stop();
        break;
    default:
        break;
    }
}

bool OfferDragging::OnFieldEvent(Field field, QEvent& event) {
    switch (event.type()) {
    case QEvent::FocusIn:
        m_enteredByMouse.reset();
        if (static_cast<QFocusEvent&>(event).reason() == Qt::MouseFocusReason) {
            m_enteredByMouse = field;
        }
        return false;
    case QEvent::FocusOut:
    case QEvent::KeyPress:
        m_enteredByMouse.reset();
        return false;
    case QEvent::MouseButtonPress:
        OnPress(field, static_cast<QMouseEvent&>(event));
        return false;
    case QEvent::MouseMove:
        return OnMove(field, static_cast<QMouseEvent&>(event));
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        m_press.reset();
        return false;
    case QEvent::DragEnter:
    case QEvent::DragMove:
        OnDragOver(field, static_cast<QDropEvent&>(event), event.type() == QEvent::DragEnter);
        return true;
    case QEvent::Drop:
        OnDrop(field, static_cast<QDropEvent&>(event));
        return true;
    default:
        return false;
    }
}

void OfferDragging::OnPress(Field field, const QMouseEvent& event) {
    const bool enters = std::exchange(m_enteredByMouse, std::nullopt) == field;
    m_press.reset();
    // With a modifier key the press draws a selection.
    if (event.modifiers() == Qt::NoModifier && m_handlers->MouseDown(field, event.button()) &&
        (enters || IsAllSelected(EditOf(field), RuleOf(field.id).IsNumber()))) {
        m_press = {field, event.position().toPoint()};
    }
}

bool OfferDragging::OnMove(Field field, const QMouseEvent& event) {
    if (!m_press || m_press->field != field || !event.buttons().testFlag(Qt::LeftButton)) {
        return false;
    }
    const int moved = (event.position().toPoint() - m_press->at).manhattanLength();
    if (moved < QApplication::startDragDistance()) {
        return true; // not yet a drag, and no selection either
    }
    m_press.reset();
    return Drag(field);
}

/// False when there is nothing to drag. A number stored because it is dragged and the field that it
/// is dropped on are one step.
bool OfferDragging::Drag(Field field) {
    const Worksheet::Step step(*m_worksheet);
    auto data = std::make_unique<QMimeData>();
    Qt::DropActions allowed;
    m_report->Guard([&] { allowed = m_handlers->OLEStartDrag(field, *data); });
    if (data->text().isEmpty()) {
        return false;
    }
    QLineEdit& edit = EditOf(field);
    auto* drag = new QDrag(&edit); // Qt deletes it
    drag->setPixmap(SlipOf(data->text(), edit));
    drag->setMimeData(data.release());
    drag->exec(allowed, Qt::CopyAction);
    m_handlers->OLECompleteDrag(field);
    if (edit.hasFocus()) { // restores the selection from before the press
        if (RuleOf(field.id).IsNumber()) {
            edit.selectAll();
        } else {
            m_enteredByMouse = field;
        }
    }
    return true;
}

/// The text is requested once, when the drag enters the field, because another program may be slow
/// to provide it. A value is not dropped on itself.
void OfferDragging::OnDragOver(Field field, QDropEvent& event, bool entering) {
    if (entering) {
        FindEffect(field, event);
    }
    const Qt::DropActions effect = m_effect & event.possibleActions();
    if (effect.testFlag(Qt::CopyAction)) {
        event.setDropAction(Qt::CopyAction);
        event.accept();
    } else if (effect.testFlag(Qt::MoveAction)) {
        event.setDropAction(Qt::MoveAction);
        event.accept();
    } else {
        event.ignore();
    }
}

void OfferDragging::FindEffect(Field field, const QDropEvent& event) {
    m_effect = Qt::IgnoreAction;
    if (event.source() != &EditOf(field)) {
        m_report->Guard([&] {
            m_effect = m_handlers->OLEDragOver(field, *event.mimeData(), event.possibleActions());
        });
    }
}

/// The rows may have scrolled under a resting mouse: Qt then still reports the field that was there
/// before. False if nothing can be dropped on the present control.
bool OfferDragging::TakeUnderMouse(Field& field, const QDropEvent& event) {
    const QLineEdit& named = EditOf(field);
    const QPoint at = named.mapTo(named.window(), event.position().toPoint());
    const auto found = m_controls->FieldOf(named.window()->childAt(at));
    if (found == field) {
        return true;
    }
    if (!found || found->row == Field::NoRow || !IsDraggable(found->id)) {
        return false;
    }
    field = *found;
    FindEffect(field, event);
    return m_effect != Qt::IgnoreAction;
}

void OfferDragging::OnDrop(Field field, QDropEvent& event) {
    Qt::DropAction done = Qt::IgnoreAction;
    if (TakeUnderMouse(field, event)) {
        m_report->Guard([&] {
            done = m_handlers->OLEDragDrop(field, *event.mimeData(), event.possibleActions());
        });
    }
    event.setDropAction(done);
    event.setAccepted(done != Qt::IgnoreAction);
}

} // namespace quend::window
