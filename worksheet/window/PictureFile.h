#pragma once

#include <QByteArray>
#include <QList>

class QImageReader;
class QString;

/// Which files may be read as a background picture; every reader uses these rules.
namespace quend::window::PictureFile {

/// The formats that can be read here, as file name suffixes. Raster formats only. SVG is excluded:
/// it can load other files and render arbitrarily long.
QList<QByteArray> Formats();

/// Whether the file exists and starts like such a picture, whatever its suffix. False for a folder,
/// a device or a pipe, because reading it might never end. Does not read the picture itself.
bool IsSafe(const QImageReader& reader);

/// Whether a BMP or JPEG file ends before its picture does. Qt reads these without an error and
/// leaves the rest black or grey; it rejects truncated files of all other formats.
bool IsCutOff(const QString& file);

} // namespace quend::window::PictureFile
