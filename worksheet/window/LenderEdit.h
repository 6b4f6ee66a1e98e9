#pragma once

#include "FieldEdits.h"

/// The field of a row's lender: a double click, or F2, asks for the dialog of the lender. Entered
/// by a key it selects nothing, and the caret is where the user left it.
class LenderEdit : public EntryEdit {
    Q_OBJECT

public:
    using EntryEdit::EntryEdit;

    /// The caret stays.
    void ShowText(const QString& text);

Q_SIGNALS:
    /// After the button is up: a dialog that opens before would never let the field know of it.
    void DblClick();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_clickedTwice = false;
    int m_caret = 0; ///< while the field is not being edited, which then shows its beginning
};
