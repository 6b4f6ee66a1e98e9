#include "LenderEdit.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace quend::window {

namespace {

/// Whether the focus really moves here or away; a menu or another window takes it only for a while.
bool IsMove(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason || reason == Qt::OtherFocusReason ||
           reason == Qt::MouseFocusReason;
}

} // namespace

void LenderEdit::ShowText(const QString& text) {
    const int caret = cursorPosition();
    setText(text);
    setCursorPosition(caret);
}

void LenderEdit::focusInEvent(QFocusEvent* event) {
    EntryEdit::focusInEvent(event);
    if (IsMove(event->reason())) {
        deselect();
        setCursorPosition(m_caret);
    }
}

void LenderEdit::focusOutEvent(QFocusEvent* event) {
    if (IsMove(event->reason())) {
        m_caret = cursorPosition();
        setCursorPosition(0);
    }
    EntryEdit::focusOutEvent(event);
}

void LenderEdit::mousePressEvent(QMouseEvent* event) {
    m_clickedTwice = false;
    EntryEdit::mousePressEvent(event);
}

void LenderEdit::mouseDoubleClickEvent(QMouseEvent* event) {
    m_clickedTwice = event->button() == Qt::LeftButton;
    EntryEdit::mouseDoubleClickEvent(event);
}

void LenderEdit::mouseReleaseEvent(QMouseEvent* event) {
    EntryEdit::mouseReleaseEvent(event);
    if (std::exchange(m_clickedTwice, false)) {
        Q_EMIT DblClick();
    }
}

void LenderEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F2 && event->modifiers() == Qt::NoModifier) {
        Q_EMIT DblClick();
        return;
    }
    EntryEdit::keyPressEvent(event);
}

} // namespace quend::window
