#pragma once

#include "Mark.h"

#include <QDateEdit>
#include <QLineEdit>

/// A field that is typed into. Knows how it looks, not what its text means.
class EntryEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit EntryEdit(QWidget* parent = nullptr);

    void SetMark(Mark mark);
    Mark GetMark() const { return m_mark; }

    /// Whether the click that enters the field selects the whole text, as the tab key does.
    void SetSelectsOnClick(bool selects) { m_selectsOnClick = selects; }

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    Mark m_mark = Mark::None;
    bool m_selectsOnClick = false;
    bool m_enteredByClick = false;
};

/// A field that shows a computed value: flat, on the window's own colour, so that it does not look
/// like one to type into. Its text can still be selected and copied.
class ResultEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit ResultEdit(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void TakeWindowColour();
};

/// A date picker that is typed into as dates are written: the separator ends a part of the date,
/// also where the part was full and the caret has moved on by itself. The tab key leaves it like
/// any other field, instead of walking from month to day to year; the arrow keys do that.
class DatePicker : public QDateEdit {
    Q_OBJECT

public:
    using QDateEdit::QDateEdit;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    // Past the date edit's own override, which is what walks through the date.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    bool focusNextPrevChild(bool next) override { return QWidget::focusNextPrevChild(next); }
};
