#include "WindowPlace.h"

#include <QScreen>
#include <QSettings>
#include <QWidget>

namespace {

QString PlaceName() { return QStringLiteral("window/geometry"); }

} // namespace

void RestorePlace(QWidget& window, const QSettings& kept) {
    // The toolkit sees to it that the window lies on a screen that is still there, but for a place
    // and a size that no window can have had.
    window.restoreGeometry(kept.value(PlaceName()).toByteArray());
    const QRect screens = window.screen()->virtualGeometry();
    const QSize most = screens.size() * 4;
    if (!screens.intersects(window.geometry()) || window.size().boundedTo(most) != window.size()) {
        window.setGeometry({screens.topLeft(), window.sizeHint()});
    }
}

void KeepPlace(const QWidget& window, QSettings& kept) {
    kept.setValue(PlaceName(), window.saveGeometry());
}
