#include "SafeFile.h"

#include "CompareTextNumbers.h"
#include "Language.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace quend::compare {

namespace {

QString Sentence(int text, const QString& path) {
    return GetResourceText(text).arg(QDir::toNativeSeparators(path));
}

/// Qt names few reasons, so the place is asked for the usual ones.
QString Reason(const QSaveFile& file, const QString& path, const QString& inSystemsWords) {
    const QFileInfo target(path);
    const QFileInfo folder(target.absolutePath());
    if (file.error() == QFileDevice::ResourceError) {
        return Sentence(TextNumber::DiskFull, path);
    }
    if (!folder.isDir()) {
        return Sentence(TextNumber::FolderMissing, path);
    }
    if (!folder.isWritable() || (target.exists() && !target.isWritable())) {
        return Sentence(TextNumber::MayNotWrite, path);
    }
    return GetResourceText(TextNumber::FileNotWritten)
        .arg(QDir::toNativeSeparators(path), inSystemsWords);
}

/// QSaveFile would rename a file that a full disk has cut off: what counts is each number of bytes.
bool WriteAll(QSaveFile& file, const QByteArray& content) {
    qint64 written = 0;
    while (written < content.size()) {
        const qint64 count = file.write(content.constData() + written, content.size() - written);
        if (count <= 0) {
            return false;
        }
        written += count;
    }
    return true;
}

} // namespace

QString WriteFile(const QString& path, const QByteArray& content) {
    const QFileInfo target(path);
    // Renaming would turn a device or a pipe into a file.
    if (target.exists() && !target.isFile()) {
        return Sentence(TextNumber::MayNotWrite, path);
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return Reason(file, path, file.errorString());
    }
    if (!WriteAll(file, content)) {
        QString reason = Reason(file, path, file.errorString());
        file.cancelWriting();
        return reason;
    }
    return file.commit() ? QString() : Reason(file, path, file.errorString());
}

} // namespace quend::compare
