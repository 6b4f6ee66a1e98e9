#pragma once

#include <QPixmap>
#include <QString>

class QPainter;
class QSize;

namespace quend::window {

/// The background picture, tiled over the window at its own size from the top-left corner.
class Wallpaper {
public:
    /// Loads a picture. If it cannot be loaded (PictureFile.h), returns false, and there is no
    /// picture. An empty path means no picture and is not a failure.
    bool Load(const QString& path);

    bool IsSet() const { return !m_picture.isNull(); }
    void Paint(QPainter& painter, const QSize& window) const;

private:
    QPixmap m_picture;
};

} // namespace quend::window
