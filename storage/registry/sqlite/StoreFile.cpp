#include "StoreFile.h"

#include "Sqlite.h"
#include "StoreSchema.h"

#include <sqlite3.h>

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace quend::registry::StoreFile {

namespace {

constexpr int PagesOfLongLog = 2'000; // 8 MB, about two hundred saves

std::filesystem::path Beside(const std::filesystem::path& store, const char* ending) {
    std::filesystem::path path = store;
    path += ending;
    return path;
}

void MakeFolder(const std::filesystem::path& folder) {
    std::error_code unknown; // if the folder cannot be checked, it is not created
    if (folder.empty() || std::filesystem::exists(folder, unknown) || unknown) {
        return;
    }
    MakeFolder(folder.parent_path());
    mkdir(folder.c_str(), S_IRWXU); // a failure shows when the file is created
}

/// Creates the file for this user only; fails when it exists.
void MakeEmptyFile(const std::filesystem::path& store) {
    const int file = open(store.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0) {
        throw StoreError(SQLITE_CANTOPEN, "no file could be made", errno);
    }
    close(file);
}

enum class Found { Nothing, Empty, Something };

Found Look(const std::filesystem::path& store) {
    std::error_code error;
    if (!std::filesystem::exists(store, error) && !error) {
        return Found::Nothing;
    }
    const auto size = std::filesystem::file_size(store, error);
    return !error && size == 0 ? Found::Empty : Found::Something;
}

void FillNew(const std::filesystem::path& store, std::chrono::milliseconds wait) {
    const Connection connection(store, wait);
    connection.Execute("PRAGMA auto_vacuum=NONE;PRAGMA page_size=4096;PRAGMA journal_mode=WAL");
    SetUpForWriting(connection);
    Transaction making(connection, Transaction::Kind::Write);
    StoreSchema::Migrate(connection);
    making.Keep();
    connection.Execute("PRAGMA wal_checkpoint(TRUNCATE)");
}

} // namespace

std::filesystem::path LogOf(const std::filesystem::path& store) { return Beside(store, "-wal"); }
std::filesystem::path SharedOf(const std::filesystem::path& store) { return Beside(store, "-shm"); }

bool CanRead(const std::filesystem::path& file) { return access(file.c_str(), R_OK) == 0; }

void SetUpForWriting(const Connection& connection) {
    connection.Execute("PRAGMA synchronous=FULL");
    sqlite3_wal_autocheckpoint(connection.Handle(), PagesOfLongLog);
}

std::filesystem::path NewOf(const std::filesystem::path& store) { return Beside(store, ".new"); }

void Remove(const std::filesystem::path& store) {
    for (const std::filesystem::path& file : {store, LogOf(store), SharedOf(store)}) {
        std::error_code error;
        std::filesystem::remove(file, error);
    }
}

void Make(const std::filesystem::path& store, std::chrono::milliseconds wait) {
    Remove(store);
    try {
        MakeEmptyFile(store);
        FillNew(store, wait);
    } catch (const StoreError&) {
        Remove(store);
        throw;
    }
    std::error_code error;
    std::filesystem::remove(LogOf(store), error); // it is empty now
    std::filesystem::remove(SharedOf(store), error);
}

void PutInPlace(const std::filesystem::path& made, const std::filesystem::path& store) {
    std::error_code error;
    // Otherwise the old log would be applied to the new file.
    std::filesystem::remove(LogOf(store), error);
    if (!error) {
        std::filesystem::remove(SharedOf(store), error);
        std::filesystem::rename(made, store, error);
    }
    if (error) {
        throw StoreError(SQLITE_IOERR, error.message(), error.value());
    }
    Remove(made);
}

void MakeWhereMissing(const std::filesystem::path& store, std::chrono::milliseconds wait) {
    if (Look(store) == Found::Something) {
        return;
    }
    MakeFolder(store.parent_path());
    const FolderLock lock(store.parent_path(), wait);
    switch (Look(store)) {
    case Found::Something: // another program has just created it
        return;
    case Found::Empty:
        throw StoreError(SQLITE_NOTADB);
    default:
        break;
    }
    const std::filesystem::path made = NewOf(store);
    Make(made, wait);
    try {
        PutInPlace(made, store);
    } catch (const StoreError&) {
        Remove(made);
        throw;
    }
}

void Checkpoint(const Connection& connection) {
    if (StoreSchema::StateOf(connection) != StoreSchema::State::Current) {
        return;
    }
    SetUpForWriting(connection);
    connection.Execute("PRAGMA wal_checkpoint(TRUNCATE)");
    // The first write to a log needs one more flush: do it here and not in a save.
    Transaction first(connection, Transaction::Kind::Write);
    const std::string mark = "PRAGMA application_id=" + std::to_string(StoreSchema::ApplicationId);
    connection.Execute(mark.c_str()); // the value is unchanged
    first.Keep();
}

FolderLock::FolderLock(const std::filesystem::path& folder, std::chrono::milliseconds wait)
    : m_folder(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (m_folder < 0) {
        throw StoreError(SQLITE_CANTOPEN, "the folder cannot be opened", errno);
    }
    const auto last = std::chrono::steady_clock::now() + wait;
    while (flock(m_folder, LOCK_EX | LOCK_NB) != 0) {
        if (std::chrono::steady_clock::now() > last) {
            close(m_folder);
            throw StoreError(SQLITE_BUSY);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

FolderLock::~FolderLock() { close(m_folder); }

} // namespace quend::registry::StoreFile
