#pragma once

#include <chrono>
#include <filesystem>

class Connection;

/// The store as a file: made readable by its user alone, and its log kept short. What is in it is
/// StoreLayout's and KeyTree's.
namespace StoreFile {

/// The names of the files that SQLite keeps beside a store: the log of what was written last, and
/// what programs that have it open share.
std::filesystem::path LogOf(const std::filesystem::path& store);
std::filesystem::path SharedOf(const std::filesystem::path& store);

/// Whether this user may read the file; false where there is none.
bool CanRead(const std::filesystem::path& file);

/// The place beside a store where a new one is made, under the lock of their folder.
std::filesystem::path NewOf(const std::filesystem::path& store);

/// Makes an empty store, in place of what a making that was cut short has left; the folder must be
/// there. It is one file. Throws StoreError, with nothing left.
void Make(const std::filesystem::path& store, std::chrono::milliseconds wait);

/// Gives a store that is one file the place of another, with the log of that one gone. Throws
/// StoreError, with the other one untouched or without its log.
void PutInPlace(const std::filesystem::path& made, const std::filesystem::path& store);

/// Removes a store with all that stands beside it.
void Remove(const std::filesystem::path& store);

/// Makes the store with its folders unless there is a file. It appears whole or not at all, so that
/// an empty file is damage: StoreError says so. Throws StoreError, with no file left.
void MakeWhereMissing(const std::filesystem::path& store, std::chrono::milliseconds wait);

/// Each step that is kept is then on the disk, at the cost of one flush.
void SetUpForWriting(const Connection& connection);

/// Folds the log into the file and begins a new one, so that the next save costs its one flush
/// only. Takes three flushes or so. Does nothing to a store of another version. Throws StoreError,
/// also when other programs are in the way.
void FoldLog(const Connection& connection);

/// Keeps other programs from making or repairing the stores of a folder while it lives; reading and
/// writing goes on. Throws StoreError after the wait, or when the folder cannot be opened.
class FolderLock {
public:
    FolderLock(const std::filesystem::path& folder, std::chrono::milliseconds wait);
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    FolderLock(FolderLock&&) = delete;
    FolderLock& operator=(FolderLock&&) = delete;
    ~FolderLock();

private:
    int m_folder;
};

} // namespace StoreFile
