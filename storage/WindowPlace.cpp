#include "WindowPlace.h"

#include <QFile>
#include <QFileInfo>
#include <QScreen>
#include <QSettings>
#include <QWidget>

#include <algorithm>

namespace {

QString PlaceName() { return QStringLiteral("window/geometry"); }

constexpr qint64 LongestPlace = 10'000; // bytes of the file

/// One line of what KeepPlace writes.
bool IsOurs(const QByteArray& line) {
    const QByteArray text = line.trimmed();
    return text.isEmpty() || text == "[window]" || text.startsWith("geometry=@ByteArray(") ||
           text.startsWith("geometry=\"@ByteArray(");
}

} // namespace

void DropForeignPlace(const QString& file) {
    QFile kept(file);
    if (!QFileInfo(file).isFile() || !kept.open(QIODevice::ReadOnly)) {
        return;
    }
    const QList<QByteArray> lines = kept.read(LongestPlace + 1).split('\n');
    const bool ours = kept.size() <= LongestPlace && std::ranges::all_of(lines, IsOurs);
    kept.close();
    if (!ours) {
        kept.remove();
    }
}

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
