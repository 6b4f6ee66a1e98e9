#include "SaveFile.h"

#include <QByteArray>
#include <QFileInfo>
#include <QSaveFile>

namespace quend {

namespace {

/// Renaming would replace a device by a file.
bool IsTaken(const QFileInfo& place) { return place.exists() && !place.isFile(); }

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
    // Flushed here, because commit() does not report what it fails to flush.
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.write(content) == content.size() && file.flush();
    const SaveOutcome refused = OutcomeOf(file, place);
    if (!written) {
        file.cancelWriting();
        return refused;
    }
    return file.commit() ? SaveOutcome() : OutcomeOf(file, place);
}

} // namespace quend
