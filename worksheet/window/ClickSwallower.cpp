#include "ClickSwallower.h"

#include <QCoreApplication>
#include <QEvent>

namespace quend::window {

void ClickSwallower::SwallowNext() { QCoreApplication::instance()->installEventFilter(this); }

/// Only events of widgets: the QWindow must receive press and release to track the button state.
bool ClickSwallower::eventFilter(QObject* watched, QEvent* event) {
    const bool isMouse = event->type() == QEvent::MouseButtonPress ||
                         event->type() == QEvent::MouseButtonRelease ||
                         event->type() == QEvent::MouseButtonDblClick;
    if (!isMouse || !watched->isWidgetType()) {
        return false;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        QCoreApplication::instance()->removeEventFilter(this);
    }
    return true;
}

} // namespace quend::window
