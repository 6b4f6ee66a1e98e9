#pragma once

#include "FieldEdits.h"

namespace quend::window {

/// The lender field of a row: a double click, or F2, asks for the lender dialog. Entering it by
/// keyboard selects nothing and restores the caret position.
class LenderEdit : public EntryEdit {
    Q_OBJECT

public:
    using EntryEdit::EntryEdit;

    /// Keeps the caret position.
    void ShowText(const QString& text);

Q_SIGNALS:
    /// Emitted after the button release: a dialog opened earlier would keep it from the field.
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
    int m_caret = 0; ///< in entry form; an unfocused field shows its beginning
};

} // namespace quend::window
