#pragma once

#include <Qt>

class QEvent;
class QLineEdit;

namespace quend::window {

/// Selects the whole text when a click enters a field, instead of placing the caret at the click,
/// unless the user drags a selection. An entering double click selects all, too: Qt would select
/// one word, which ends at the decimal symbol.
class EnteringClick {
public:
    /// The field got the focus.
    void Entered(Qt::FocusReason reason) { m_enters = reason == Qt::MouseFocusReason; }
    /// Call before the edit handles a mouse event. Returns true if the edit must not handle it;
    /// ignores all other events.
    bool Takes(const QEvent& event, QLineEdit& edit);

private:
    bool m_enters = false;
    bool m_hasEntered = false;
};

} // namespace quend::window
