#pragma once

#include <Qt>

class QEvent;
class QLineEdit;

/// The click that enters a field would put the caret where it fell; the whole text is to be
/// selected, unless the user has drawn a selection. When it becomes a double click all is selected,
/// too: the toolkit's word ends at the decimal symbol.
class EnteringClick {
public:
    /// The field has got the focus.
    void Entered(Qt::FocusReason reason) { m_enters = reason == Qt::MouseFocusReason; }
    /// Before the edit has this event of the mouse. True when the edit must not have it; other
    /// events are ignored.
    bool Takes(const QEvent& event, QLineEdit& edit);

private:
    bool m_enters = false;
    bool m_hasEntered = false;
};
