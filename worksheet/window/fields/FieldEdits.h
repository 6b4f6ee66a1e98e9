#pragma once

#include "EnteringClick.h"
#include "Mark.h"
#include "WindowNames.h"

#include <QLineEdit>

namespace quend::window {

/// The text of a cell copied from a table, without its trailing line end or tab; a text of several
/// cells is unchanged.
QString WithoutCellEnd(const QString& text);

/// A field for typing. Knows its appearance, not the meaning of its text.
class EntryEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit EntryEdit(QWidget* parent = nullptr);

    void SetMark(Mark mark);

    /// In a number field the entering click selects all, as the tab key does.
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

/// A field that shows a computed value: flat and in the window's colour, so that it does not look
/// editable. Its text can still be selected and copied.
class ResultEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit ResultEdit(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void TakeWindowColour();
};

} // namespace quend::window
