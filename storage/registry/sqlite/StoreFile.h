#pragma once

#include <chrono>
#include <filesystem>

namespace quend::registry {

class Connection;

/// File operations on the store: creates it readable only by its user, and keeps its log short. The
/// content belongs to StoreSchema and KeyTree.
namespace StoreFile {

/// The files that SQLite keeps beside a store: the write-ahead log, and the memory shared by
/// programs that have it open.
std::filesystem::path LogOf(const std::filesystem::path& store);
std::filesystem::path SharedOf(const std::filesystem::path& store);

/// Whether this user may read the file; false when it does not exist.
bool CanRead(const std::filesystem::path& file);

/// The path beside a store where a new one is created, under the lock of their folder.
std::filesystem::path NewOf(const std::filesystem::path& store);

/// Creates an empty store as a single file and replaces the remains of an interrupted attempt. The
/// folder must exist. Throws StoreError and leaves no file then.
void Make(const std::filesystem::path& store, std::chrono::milliseconds wait);

/// Moves the single-file store `made` to the path of `store` and removes the old log. Throws
/// StoreError; the old store is then untouched or lacks its log.
void PutInPlace(const std::filesystem::path& made, const std::filesystem::path& store);

/// Removes a store and the files beside it.
void Remove(const std::filesystem::path& store);

/// Creates the store and its folders unless the file exists. The store appears as a whole or not at
/// all, so an empty file is damage and throws StoreError. Throws StoreError and leaves no file
/// then.
void MakeWhereMissing(const std::filesystem::path& store, std::chrono::milliseconds wait);

/// Makes every commit durable, at the cost of one flush.
void SetUpForWriting(const Connection& connection);

/// Checkpoints the log into the file and starts a new log, so that the next save needs only one
/// flush. Takes about three flushes. Does nothing to a store of another version. Throws StoreError,
/// also when other programs hold locks.
void Checkpoint(const Connection& connection);

/// While it exists, no other program can create or recover stores in the folder; reads and writes
/// continue. Throws StoreError after the wait, or when the folder cannot be opened.
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

} // namespace quend::registry
