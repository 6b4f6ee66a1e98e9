#pragma once

#include <QString>

class QByteArray;

namespace quend {

/// Why a file was not saved.
enum class SaveFault {
    None,
    NoFolder,   ///< the folder does not exist
    NotAllowed, ///< file or folder must not be written
    NotAFile,   ///< the name belongs to a folder, a device or a pipe
    DiskFull,
    Failed, ///< anything else
};

struct SaveOutcome {
    SaveFault fault = SaveFault::None;
    QString detail = {}; ///< for Failed: the system's message
};

/// Saves a file whole or not at all: writes another file beside it, then renames that one. After a
/// fault an older file of this name is unchanged and nothing is left behind. Keeps the permissions
/// of an older file and follows links. Throws nothing but std::bad_alloc.
SaveOutcome SaveFile(const QString& path, const QByteArray& content);

} // namespace quend
