#include "FieldEdits.h"

#include "Colours.h"

#include <QEvent>
#include <QFocusEvent>
#include <QPalette>

#include <algorithm>

namespace quend::window {

namespace {

bool IsCellEnd(QChar c) { return c == u'\n' || c == u'\r' || c == u'\t'; }

} // namespace

QString WithoutCellEnd(const QString& text) {
    qsizetype end = text.size();
    while (end > 0 && IsCellEnd(text.at(end - 1))) {
        --end;
    }
    const QString cell = text.left(end);
    return std::ranges::none_of(cell, IsCellEnd) ? cell : text;
}

EntryEdit::EntryEdit(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    connect(this, &QLineEdit::textEdited, this, &EntryEdit::DropCellEnd);
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
    if (m_isNumber) {
        m_click.Entered(event->reason());
    }
}

bool EntryEdit::event(QEvent* event) {
    return m_click.Takes(*event, *this) || QLineEdit::event(event);
}

/// Removes the line end or tab that a cell copied from a table adds after the number.
void EntryEdit::DropCellEnd() {
    const QString typed = text();
    const int caret = cursorPosition();
    int end = caret;
    while (end > 0 && IsCellEnd(typed.at(end - 1))) {
        --end;
    }
    // A lender may have several lines, with the caret between them.
    const bool isOneCell =
        m_isNumber || (caret == typed.size() && std::ranges::none_of(typed.left(end), IsCellEnd));
    if (end < caret && isOneCell) {
        setSelection(end, caret - end);
        del();
    }
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
        QPalette own; // only these two; all other colours keep following the desktop
        own.setBrush(QPalette::Base, inherited.window());
        own.setBrush(QPalette::Text, inherited.windowText());
        setPalette(own);
    }
}

} // namespace quend::window
