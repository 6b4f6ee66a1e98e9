#pragma once

#include <QPixmap>
#include <QString>

class QPainter;
class QSize;

/// The background picture, tiled over the window at its own size from the top-left corner.
class Wallpaper {
public:
    /// Loads a picture; false when it cannot be loaded (PictureFile.h), and then there is none. An
    /// empty path means no picture and is no failure.
    bool Load(const QString& path);

    bool IsSet() const { return !m_picture.isNull(); }
    void Paint(QPainter& painter, const QSize& window) const;

private:
    QPixmap m_picture;
};
