#pragma once

#include "FieldEdits.h"

/// The field of a row's lender: a double click, or F2, asks for the dialog of the lender.
class LenderEdit : public EntryEdit {
    Q_OBJECT

public:
    using EntryEdit::EntryEdit;

Q_SIGNALS:
    /// After the button is up: a dialog that opens before would never let the field know of it.
    void DblClick();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_clickedTwice = false;
};
