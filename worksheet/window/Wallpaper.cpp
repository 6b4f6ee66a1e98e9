#include "Wallpaper.h"

#include <QPainter>
#include <QSize>

bool Wallpaper::Load(const QString& path) {
    m_picture = path.isEmpty() ? QPixmap() : QPixmap(path);
    return path.isEmpty() || IsSet();
}

void Wallpaper::Paint(QPainter& painter, const QSize& window) const {
    if (!IsSet()) {
        return;
    }
    for (int x = 0; x < window.width(); x += m_picture.width()) {
        for (int y = 0; y < window.height(); y += m_picture.height()) {
            painter.drawPixmap(x, y, m_picture);
        }
    }
}
