#pragma once

#include <QByteArray>
#include <QList>

class QImageReader;
class QString;

/// What a background picture may be read from, whoever reads it.
namespace PictureFile {

/// The formats that can be read here, named by their endings: those of pictures made of dots. A
/// drawing may lead to other files, and take as long as whoever wrote it likes.
QList<QByteArray> Formats();

/// Whether there is a file that has the beginning of such a picture, whatever its ending. A folder,
/// a device or a pipe is none: reading it might never end. Reads no picture itself.
bool IsSafe(const QImageReader& reader);

/// Whether the file of a bitmap or a JPEG picture ends before the picture does. The toolkit reads
/// these without complaint and leaves the rest black or grey; all other formats it refuses.
bool IsCutOff(const QString& file);

} // namespace PictureFile
