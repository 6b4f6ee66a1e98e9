#include "FieldEdits.h"

#include "Colours.h"

#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPalette>

EntryEdit::EntryEdit(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
}

void EntryEdit::SetMark(Mark mark) {
    if (mark == m_mark) {
        return;
    }
    m_mark = mark;
    setPalette(Colours::MarkedPalette(mark));
}

void EntryEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    m_enteredByClick = m_selectsOnClick && event->reason() == Qt::MouseFocusReason;
}

/// The click that enters a number field would put the caret where it fell; the whole text is to be
/// selected, unless the user has drawn a selection of his own.
void EntryEdit::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (m_enteredByClick && !hasSelectedText()) {
        selectAll();
    }
    m_enteredByClick = false;
}

ResultEdit::ResultEdit(QWidget* parent) : QLineEdit(parent) {
    setReadOnly(true);
    setFocusPolicy(Qt::ClickFocus);
    setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    TakeWindowColour();
}

void ResultEdit::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        TakeWindowColour();
    }
}

void ResultEdit::TakeWindowColour() {
    const QPalette inherited = palette();
    if (inherited.base() != inherited.window() || inherited.text() != inherited.windowText()) {
        QPalette own; // of these two alone; the rest goes on following the desktop
        own.setBrush(QPalette::Base, inherited.window());
        own.setBrush(QPalette::Text, inherited.windowText());
        setPalette(own);
    }
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
    const QString typed = event->text();
    const bool isSeparator = typed.size() == 1 && typed.front().isPunct();
    if (!isSeparator) {
        QDateEdit::keyPressEvent(event);
        return;
    }
    const bool hasMovedOn =
        currentSectionIndex() > 0 && lineEdit()->selectedText() == sectionText(currentSection());
    if (!hasMovedOn && currentSectionIndex() + 1 < sectionCount()) {
        setSelectedSection(sectionAt(currentSectionIndex() + 1));
    }
}
