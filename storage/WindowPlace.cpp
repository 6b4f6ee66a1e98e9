#include "WindowPlace.h"

#include <QSettings>
#include <QWidget>

namespace {

QString PlaceName() { return QStringLiteral("window/geometry"); }

} // namespace

void RestorePlace(QWidget& window, const QSettings& kept) {
    // The toolkit sees to it that the window lies on a screen that is still there.
    window.restoreGeometry(kept.value(PlaceName()).toByteArray());
}

void KeepPlace(const QWidget& window, QSettings& kept) {
    kept.setValue(PlaceName(), window.saveGeometry());
}
