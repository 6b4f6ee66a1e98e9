#include "WindowPlace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSaveFile>
#include <QScreen>
#include <QStandardPaths>
#include <QStyle>
#include <QWidget>

namespace quend::storage {

namespace {

constexpr int LongestPlace = 1'000; // bytes; Qt writes 66

/// Whether a window can have this geometry. Uses wider integers than Qt, because a damaged file can
/// overflow them.
bool CanBe(const QRect& place, const QRect& screens) {
    const auto isLength = [](qint64 first, qint64 last, qint64 screen) {
        const qint64 length = last - first + 1;
        return length >= 1 && length <= 4 * screen;
    };
    return screens.intersects(place) && isLength(place.left(), place.right(), screens.width()) &&
           isLength(place.top(), place.bottom(), screens.height());
}

/// A Wayland compositor places the windows and reveals no place. One that Qt believed in would
/// mislead it where it fits menus and lists onto the screen.
bool HasPlaces() { return !QGuiApplication::platformName().startsWith(QLatin1String("wayland")); }

} // namespace

QString UserFile(const QString& name) {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + u'/' + name;
}

QByteArray KeptBytes(const QString& file, int most) {
    QFile kept(file);
    const bool opened = QFileInfo(file).isFile() && kept.open(QIODevice::ReadOnly);
    return opened ? kept.read(most) : QByteArray();
}

void KeepBytes(const QByteArray& bytes, const QString& file) {
    QDir().mkpath(QFileInfo(file).path());
    QSaveFile kept(file);
    if (kept.open(QIODevice::WriteOnly)) {
        kept.write(bytes);
        kept.commit();
    }
}

void FitToScreen(QWidget& window) {
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QSize most = window.screen()->availableGeometry().size() - QSize(0, title);
    QSize size = window.sizeHint();
    if (size.height() > most.height()) { // it gets a scroll bar, which needs space
        size.rwidth() += window.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    }
    window.resize(size.boundedTo(most));
}

void RestoreGeometry(QWidget& window, const QString& file) {
    // Qt moves the window onto an existing screen, except for an impossible position or size.
    window.restoreGeometry(KeptBytes(file, LongestPlace));
    const QRect screens = window.screen()->virtualGeometry();
    if (!HasPlaces()) {
        window.move(screens.topLeft());
    }
    if (!CanBe(window.geometry(), screens)) {
        FitToScreen(window);
        window.move(screens.topLeft());
    }
}

void SaveGeometry(const QWidget& window, const QString& file) {
    KeepBytes(window.saveGeometry(), file);
}

} // namespace quend::storage
