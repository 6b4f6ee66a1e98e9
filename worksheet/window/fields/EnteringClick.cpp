#include "EnteringClick.h"

#include <QEvent>
#include <QLineEdit>

#include <utility>

namespace quend::window {

bool EnteringClick::Takes(const QEvent& event, QLineEdit& edit) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        m_hasEntered = false;
        return false;
    case QEvent::MouseButtonRelease:
        if (std::exchange(m_enters, false)) {
            m_hasEntered = true;
            if (!edit.hasSelectedText()) {
                edit.selectAll();
            }
        }
        return false;
    case QEvent::MouseButtonDblClick:
        if (std::exchange(m_hasEntered, false)) {
            edit.selectAll();
            return true;
        }
        return false;
    default:
        return false;
    }
}

} // namespace quend::window
