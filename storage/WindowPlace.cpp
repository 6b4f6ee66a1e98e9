#include "WindowPlace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QScreen>
#include <QStandardPaths>
#include <QWidget>

namespace {

constexpr qint64 LongestPlace = 1'000; // bytes; the toolkit writes 66

QByteArray KeptPlace(const QString& name) {
    QFile file(name);
    const bool opened = QFileInfo(name).isFile() && file.open(QIODevice::ReadOnly);
    return opened ? file.read(LongestPlace) : QByteArray();
}

} // namespace

QString UserPlace() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/window.place");
}

void RestorePlace(QWidget& window, const QString& file) {
    // The toolkit sees to it that the window lies on a screen that is still there, but for a place
    // and a size that no window can have had.
    window.restoreGeometry(KeptPlace(file));
    const QRect screens = window.screen()->virtualGeometry();
    const QSize most = screens.size() * 4;
    if (!screens.intersects(window.geometry()) || window.size().boundedTo(most) != window.size()) {
        window.setGeometry({screens.topLeft(), window.sizeHint()});
    }
}

void KeepPlace(const QWidget& window, const QString& file) {
    QDir().mkpath(QFileInfo(file).path());
    QSaveFile kept(file);
    if (kept.open(QIODevice::WriteOnly)) {
        kept.write(window.saveGeometry());
        kept.commit();
    }
}
