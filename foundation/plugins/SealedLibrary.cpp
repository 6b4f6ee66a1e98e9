#include "SealedLibrary.h"

#include <QCryptographicHash>
#include <QFile>

namespace quend {

bool IsSealed(const QString& library) {
    constexpr qsizetype sealSize = 32; // MD5 in hexadecimal digits, which cmake/Seal.cmake appends
    QFile file(library);
    // The name is empty if Qt found no library; opening an empty name makes Qt print a warning.
    if (library.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray bytes = file.readAll();
    if (bytes.size() < sealSize) {
        return false;
    }
    const QByteArray content = QByteArray::fromRawData(bytes.constData(), bytes.size() - sealSize);
    const QByteArray hash = QCryptographicHash::hash(content, QCryptographicHash::Md5);
    return hash.toHex() == bytes.last(sealSize);
}

} // namespace quend
