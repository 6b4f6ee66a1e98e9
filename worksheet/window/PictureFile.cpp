#include "PictureFile.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace quend::window {

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

/// Larger files count as complete: they cannot be background pictures, and reading them takes long.
constexpr qint64 LargestLookedAt = qint64{64} * 1024 * 1024;

/// The header of an uncompressed bitmap gives its size. Others are only checked for a header.
bool IsBitmapCutOff(const QByteArray& bytes) {
    constexpr qsizetype head = 54;
    if (bytes.size() < head) {
        return true;
    }
    const auto number = [&](qsizetype at) { return qFromLittleEndian<qint32>(bytes.data() + at); };
    const auto bits = qFromLittleEndian<quint16>(bytes.data() + 28);
    const qint64 line = (qint64{number(18)} * bits + 31) / 32 * 4;
    constexpr int runLengths8 = 1;
    constexpr int runLengths4 = 2;
    const int compression = number(30);
    return compression != runLengths8 && compression != runLengths4 &&
           bytes.size() < number(10) + line * std::abs(qint64{number(22)});
}

/// Segments begin with a marker of two bytes; in the image data FF is followed by 0 or a restart
/// number. A camera's thumbnail is inside a segment.
bool IsJpegCutOff(const QByteArray& bytes) {
    constexpr quint8 mark = 0xFF;
    constexpr quint8 end = 0xD9;
    constexpr quint8 scan = 0xDA;
    const auto at = [&](qsizetype place) { return static_cast<quint8>(bytes.at(place)); };
    const auto isInPicture = [](quint8 code) {
        return code == 0 || code == mark || (code >= 0xD0 && code <= 0xD7);
    };
    bool inPicture = false;
    for (qsizetype place = 2; place + 1 < bytes.size();) {
        const quint8 code = at(place + 1);
        if (at(place) != mark || (inPicture && isInPicture(code))) {
            ++place;
        } else if (code == end) {
            return false;
        } else if (place + 3 < bytes.size()) {
            inPicture = code == scan;
            place += 2 + at(place + 2) * 256 + at(place + 3);
        } else {
            return true;
        }
    }
    return true;
}

} // namespace

QList<QByteArray> PictureFile::Formats() {
    QList<QByteArray> formats = QImageReader::supportedImageFormats();
    formats.removeIf([](const QByteArray& format) { return !IsMadeOfDots(format); });
    return formats;
}

bool PictureFile::IsSafe(const QImageReader& reader) {
    const QFileInfo file(reader.fileName());
    // Files that the operating system generates on reading have no size.
    return file.isFile() && file.size() > 0 && IsMadeOfDots(reader.format());
}

bool PictureFile::IsCutOff(const QString& file) {
    QFile picture(file);
    if (!picture.open(QIODevice::ReadOnly) || picture.size() > LargestLookedAt) {
        return false;
    }
    const QByteArray bytes = picture.readAll();
    if (bytes.startsWith("BM")) {
        return IsBitmapCutOff(bytes);
    }
    return bytes.startsWith("\xFF\xD8") && IsJpegCutOff(bytes);
}

} // namespace quend::window
