#include "StoreTrouble.h"

#include "Sqlite.h"
#include "StoreFile.h"

#include <sqlite3.h>

#include <cerrno>
#include <sys/statvfs.h>
#include <unistd.h>

namespace quend::registry {

namespace {

namespace fs = std::filesystem;

/// The least space needed to create or change a store, in bytes.
constexpr std::uintmax_t LeastSpace = 65'536;

StoreTrouble ErrorOfSystem(int error) {
    switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return StoreTrouble::DiskFull;
    case EROFS:
        return StoreTrouble::ReadOnly;
    case EACCES:
    case EPERM:
        return StoreTrouble::NotAllowed;
    default:
        return StoreTrouble::Unknown;
    }
}

StoreTrouble ErrorOfPermissions(const fs::path& path, int rights) {
    return access(path.c_str(), rights) == 0 ? StoreTrouble::Unknown : ErrorOfSystem(errno);
}

/// The folder of the store, or the nearest existing one above it.
fs::path NearestFolder(const fs::path& store) {
    fs::path folder = store.parent_path();
    std::error_code error;
    while (folder.has_relative_path() &&
           fs::status(folder, error).type() == fs::file_type::not_found) {
        folder = folder.parent_path();
    }
    return folder.empty() ? fs::path(".") : folder;
}

bool IsFull(const fs::path& folder) {
    struct statvfs facts {};
    if (statvfs(folder.c_str(), &facts) != 0) {
        return false;
    }
    const bool noFiles = facts.f_files > 0 && facts.f_favail == 0;
    const std::uintmax_t room = std::uintmax_t{facts.f_bavail} * facts.f_frsize;
    return facts.f_blocks > 0 && (noFiles || room < LeastSpace);
}

StoreTrouble ErrorAt(const fs::path& store) {
    const fs::path folder = NearestFolder(store);
    for (const auto& [path, rights] :
         {std::pair{store, R_OK | W_OK}, std::pair{StoreFile::LogOf(store), R_OK | W_OK},
          std::pair{StoreFile::SharedOf(store), R_OK | W_OK},
          std::pair{folder, R_OK | W_OK | X_OK}}) {
        const StoreTrouble trouble = ErrorOfPermissions(path, rights);
        if (trouble != StoreTrouble::Unknown) {
            return trouble;
        }
    }
    return IsFull(folder) ? StoreTrouble::DiskFull : StoreTrouble::Unknown;
}

} // namespace

StoreTrouble TroubleOf(const StoreError& error, const fs::path& store) {
    switch (error.Code()) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StoreTrouble::InUse;
    case SQLITE_FULL:
        return StoreTrouble::DiskFull;
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR:
    case SQLITE_PERM:
        break;
    default:
        return StoreTrouble::Unknown;
    }
    const StoreTrouble trouble = ErrorOfSystem(error.SystemError());
    return trouble == StoreTrouble::Unknown ? ErrorAt(store) : trouble;
}

} // namespace quend::registry
