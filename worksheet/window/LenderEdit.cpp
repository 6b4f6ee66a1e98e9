#include "LenderEdit.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

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
