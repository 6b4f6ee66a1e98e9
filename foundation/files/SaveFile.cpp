#include "SaveFile.h"

#include <QByteArray>
#include <QFileInfo>
#include <QSaveFile>

namespace quend {

namespace {

/// Renaming would replace a device by a file.
bool IsTaken(const QFileInfo& place) { return place.exists() && !place.isFile(); }

/// A disk that becomes full takes a part first and gives its reason only when asked to take the
/// rest. Unbuffered, because commit() does not report what it fails to flush.
bool WriteWhole(QSaveFile& file, const QByteArray& content) {
    qint64 done = 0;
    while (done < content.size()) {
        const qint64 taken = file.write(content.constData() + done, content.size() - done);
        if (taken <= 0) {
            return false;
        }
        done += taken;
    }
    return true;
}

/// Qt reports most refusals as the same error, so the reason is looked up.
SaveOutcome OutcomeOf(const QSaveFile& file, const QFileInfo& place) {
    const QFileInfo folder(place.absolutePath());
    if (!folder.isDir()) {
        return {SaveFault::NoFolder};
    }
    if (!folder.isWritable() || (place.exists() && !place.isWritable())) {
        return {SaveFault::NotAllowed};
    }
    if (file.error() == QFileDevice::ResourceError) {
        return {SaveFault::DiskFull};
    }
    return {SaveFault::Failed, file.errorString()};
}

} // namespace

SaveOutcome SaveFile(const QString& path, const QByteArray& content) {
    const QFileInfo place(path);
    if (IsTaken(place)) {
        return {SaveFault::NotAFile};
    }
    QSaveFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && WriteWhole(file, content);
    SaveOutcome refused = OutcomeOf(file, place);
    if (!written) {
        file.cancelWriting();
        return refused;
    }
    return file.commit() ? SaveOutcome() : OutcomeOf(file, place);
}

} // namespace quend
