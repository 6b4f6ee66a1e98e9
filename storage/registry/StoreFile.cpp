#include "StoreFile.h"

#include "Sqlite.h"
#include "StoreLayout.h"

#include <sqlite3.h>

#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace StoreFile {

namespace {

constexpr int PagesOfLongLog = 2'000; // 8 MB, some two hundred saves

std::filesystem::path Beside(const std::filesystem::path& store, const char* ending) {
    std::filesystem::path path = store;
    path += ending;
    return path;
}

void MakeFolder(const std::filesystem::path& folder) {
    std::error_code unknown; // what cannot even be looked for is not made
    if (folder.empty() || std::filesystem::exists(folder, unknown) || unknown) {
        return;
    }
    MakeFolder(folder.parent_path());
    mkdir(folder.c_str(), S_IRWXU); // whether it is there is seen when the file is made
}

/// An empty file for the user alone. True when it is empty, whoever made it.
bool MakeEmptyFile(const std::filesystem::path& store) {
    const int file = open(store.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0) {
        throw StoreError(SQLITE_CANTOPEN);
    }
    struct stat facts {};
    const bool empty = fstat(file, &facts) == 0 && facts.st_size == 0;
    close(file);
    return empty;
}

bool IsThere(const std::filesystem::path& store) {
    std::error_code error;
    const auto size = std::filesystem::file_size(store, error);
    return !error && size > 0;
}

} // namespace

std::filesystem::path LogOf(const std::filesystem::path& store) { return Beside(store, "-wal"); }
std::filesystem::path SharedOf(const std::filesystem::path& store) { return Beside(store, "-shm"); }

bool CanRead(const std::filesystem::path& file) { return access(file.c_str(), R_OK) == 0; }

void SetUpForWriting(const Connection& connection) {
    connection.Execute("PRAGMA synchronous=FULL");
    sqlite3_wal_autocheckpoint(connection.Handle(), PagesOfLongLog);
}

void Make(const std::filesystem::path& store, std::chrono::milliseconds wait) {
    if (!MakeEmptyFile(store)) {
        return;
    }
    const Connection connection(store, wait);
    connection.Execute("PRAGMA auto_vacuum=NONE;PRAGMA page_size=4096;PRAGMA journal_mode=WAL");
    SetUpForWriting(connection);
    Transaction making(connection, Transaction::Kind::Write);
    StoreLayout::Migrate(connection);
    making.Keep();
    FoldLog(connection);
}

void MakeWhereMissing(const std::filesystem::path& store, std::chrono::milliseconds wait) {
    if (IsThere(store)) {
        return;
    }
    MakeFolder(store.parent_path());
    const FolderLock lock(store.parent_path(), wait);
    Make(store, wait);
}

void FoldLog(const Connection& connection) {
    if (StoreLayout::StateOf(connection) != StoreLayout::State::Current) {
        return;
    }
    SetUpForWriting(connection);
    connection.Execute("PRAGMA wal_checkpoint(TRUNCATE)");
    // The first write to a log costs a flush more: it is made here and not by a save.
    Transaction first(connection, Transaction::Kind::Write);
    const std::string mark = "PRAGMA application_id=" + std::to_string(StoreLayout::ApplicationId);
    connection.Execute(mark.c_str()); // what it is already
    first.Keep();
}

FolderLock::FolderLock(const std::filesystem::path& folder, std::chrono::milliseconds wait)
    : m_folder(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (m_folder < 0) {
        throw StoreError(SQLITE_CANTOPEN);
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

} // namespace StoreFile
