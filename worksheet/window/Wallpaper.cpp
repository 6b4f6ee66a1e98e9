#include "Wallpaper.h"

#include <QPainter>
#include <QPoint>
#include <QRect>
#include <QSize>

bool Wallpaper::Load(const QString& path) {
    m_picture = path.isEmpty() ? QPixmap() : QPixmap(path);
    return path.isEmpty() || IsSet();
}

void Wallpaper::Paint(QPainter& painter, const QSize& window) const {
    if (IsSet()) {
        painter.drawTiledPixmap(QRect(QPoint(), window), m_picture);
    }
}
