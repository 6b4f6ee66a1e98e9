#include "Wallpaper.h"

#include "PictureFile.h"

#include <QImageReader>
#include <QPainter>
#include <QPoint>
#include <QRect>
#include <QSize>

namespace quend::window {

bool Wallpaper::Load(const QString& path) {
    m_picture = PictureFile::IsSafe(QImageReader(path)) ? QPixmap(path) : QPixmap();
    return path.isEmpty() || IsSet();
}

void Wallpaper::Paint(QPainter& painter, const QSize& window) const {
    if (IsSet()) {
        painter.drawTiledPixmap(QRect(QPoint(), window), m_picture);
    }
}

} // namespace quend::window
