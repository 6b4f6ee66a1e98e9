#pragma once

#include "EnteringClick.h"
#include "Mark.h"

#include <QLineEdit>

/// The text of a cell copied from a table, without the line end or tab that it brings along; a text
/// of several cells as it is.
QString WithoutCellEnd(const QString& text);

/// A field that is typed into. Knows how it looks, not what its text means.
class EntryEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit EntryEdit(QWidget* parent = nullptr);

    void SetMark(Mark mark);
    Mark GetMark() const { return m_mark; }

    /// The click that enters a number selects all of it, as the tab key does.
    void SetIsNumber(bool isNumber) { m_isNumber = isNumber; }

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void DropCellEnd();

    Mark m_mark = Mark::None;
    bool m_isNumber = false;
    EnteringClick m_click;
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
