#include "PictureFile.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

constexpr std::array<std::string_view, 15> MadeOfDots{
    "bmp", "cur", "gif", "ico",  "jpeg", "jpg", "pbm", "pgm",
    "png", "ppm", "tif", "tiff", "webp", "xbm", "xpm",
};

bool IsMadeOfDots(const QByteArray& format) {
    return std::ranges::find(MadeOfDots, std::string_view(format.data(), static_cast<std::size_t>(
                                                                             format.size()))) !=
           MadeOfDots.end();
}

} // namespace

QList<QByteArray> PictureFile::Formats() {
    QList<QByteArray> formats = QImageReader::supportedImageFormats();
    formats.removeIf([](const QByteArray& format) { return !IsMadeOfDots(format); });
    return formats;
}

bool PictureFile::IsSafe(const QImageReader& reader) {
    const QFileInfo file(reader.fileName());
    // What the system makes up while it is read has no size.
    return file.isFile() && file.size() > 0 && IsMadeOfDots(reader.format());
}
