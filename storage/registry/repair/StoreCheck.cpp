#include "StoreCheck.h"

#include "OpenStore.h"
#include "Recovery.h"
#include "StoreFile.h"
#include "StoreSnapshot.h"
#include "StoreSoundness.h"

#include <sqlite3.h>

#include <chrono>

namespace quend::registry {

namespace {

namespace fs = std::filesystem;
using Condition = StoreCondition::State;

constexpr std::chrono::milliseconds Wait{2'000};
/// A larger store, with hundreds of thousands of worksheets, is assumed intact: the check would
/// keep the user waiting.
constexpr std::uintmax_t LargestChecked = std::uintmax_t{1} << 28;
/// The log slows every transaction down; at this size by a millisecond.
constexpr std::uintmax_t LongLog = std::uintmax_t{1} << 20;
constexpr std::uintmax_t LogWorthFolding = std::uintmax_t{1} << 14;

std::uintmax_t SizeOf(const fs::path& file) {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(file, error);
    return error ? 0 : size;
}

void CheckpointIfLonger(const fs::path& store, std::uintmax_t size) {
    if (SizeOf(StoreFile::LogOf(store)) <= size) {
        return;
    }
    try {
        StoreFile::Checkpoint(Connection(store, std::chrono::milliseconds(0)));
    } catch (const StoreError&) {
        return; // another program has it open and can do this later
    }
}

enum class Finding { Sound, Damaged, Newer };

Finding FindingOf(const StoreSnapshot& image) {
    switch (KindOf(image)) {
    case StoreKind::Newer:
        return Finding::Newer;
    case StoreKind::Older:
        return Finding::Sound; // the next write migrates it to this version
    default:
        return IsSound(image) ? Finding::Sound : Finding::Damaged;
    }
}

/// Apparent damage may be a write in progress: check again while nobody writes.
Finding SecondLook(const fs::path& store) {
    if (SizeOf(store) == 0) {
        return Finding::Damaged; // SQLite would delete the log of an empty file
    }
    try {
        const Connection connection(store, Wait);
        const Transaction nobodyWrites(connection, Transaction::Kind::Write);
        return FindingOf(StoreSnapshot(store));
    } catch (const StoreError& error) {
        // A program that writes has already found the store usable.
        return error.Code() == SQLITE_BUSY ? Finding::Sound : FindingOf(StoreSnapshot(store));
    }
}

fs::path FreeNameFor(const fs::path& store, const std::string& today) {
    fs::path name = store;
    name += ".damaged-" + today;
    fs::path free = name;
    for (int number = 2; fs::exists(fs::symlink_status(free)); ++number) {
        free = name;
        free += '-';
        free += std::to_string(number);
    }
    return free;
}

/// Creates a hard link, or a copy where the file system has no hard links.
void KeepAs(const fs::path& file, const fs::path& name) {
    std::error_code error;
    fs::create_hard_link(file, name, error);
    if (error) {
        fs::copy_file(file, name);
        fs::permissions(name, fs::perms::owner_read | fs::perms::owner_write);
    }
}

Recovery::Counts WriteNew(const fs::path& made, const Recovery& recovery, const NamedKeys& named) {
    StoreFile::Make(made, Wait);
    Recovery::Counts counts;
    {
        const auto store = OpenStore::ToWrite(made, Wait, OpenStore::Missing::Fails);
        counts = recovery.WriteTo(store->Keys(), named);
        store->Keep();
    }
    Connection(made, Wait).Execute("PRAGMA wal_checkpoint(TRUNCATE)");
    return counts;
}

/// The damaged store and its log stay on the disk at every moment.
StoreCondition Repair(const fs::path& store, const std::string& today, const NamedKeys& named) {
    const fs::path made = StoreFile::NewOf(store);
    try {
        const Recovery::Counts counts = WriteNew(made, Recovery(StoreSnapshot(store)), named);
        const fs::path kept = FreeNameFor(store, today);
        KeepAs(store, kept);
        if (fs::exists(StoreFile::LogOf(store))) {
            KeepAs(StoreFile::LogOf(store), StoreFile::LogOf(kept));
        }
        StoreFile::PutInPlace(made, store);
        CheckpointIfLonger(store, 0);
        return {Condition::Repaired, kept, counts.keys, counts.values};
    } catch (const StoreError&) {
        StoreFile::Remove(made);
    } catch (const fs::filesystem_error&) {
        StoreFile::Remove(made);
    }
    return {Condition::Unusable, {}, 0, 0};
}

StoreCondition RepairIfStillDamaged(const fs::path& store, const std::string& today,
                                    const NamedKeys& named) {
    try {
        // When two programs start at once, the second finds the store recovered by the first.
        const StoreFile::FolderLock lock(store.parent_path(), Wait);
        const Finding finding = SecondLook(store);
        return finding == Finding::Damaged
                   ? Repair(store, today, named)
                   : StoreCondition{
                         finding == Finding::Newer ? Condition::Newer : Condition::Sound, {}, 0, 0};
    } catch (const StoreError&) {
        return {Condition::Unusable, {}, 0, 0};
    }
}

} // namespace

StoreCondition PrepareStore(const fs::path& store, const std::string& today,
                            const NamedKeys& named) {
    std::error_code error;
    const fs::file_status status = fs::status(store, error);
    if (status.type() == fs::file_type::not_found) {
        return {Condition::Missing, {}, 0, 0};
    }
    if (!fs::is_regular_file(status) || !StoreFile::CanRead(store)) {
        return {Condition::Unusable, {}, 0, 0};
    }
    if (SizeOf(store) > LargestChecked) {
        return {};
    }
    switch (FindingOf(StoreSnapshot(store))) {
    case Finding::Newer:
        return {Condition::Newer, {}, 0, 0};
    case Finding::Sound:
        CheckpointIfLonger(store, LongLog);
        return {};
    default:
        return RepairIfStillDamaged(store, today, named);
    }
}

StoreCondition RepairStore(const fs::path& store, const std::string& today,
                           const NamedKeys& named) {
    try {
        const StoreFile::FolderLock lock(store.parent_path(), Wait);
        return KindOf(StoreSnapshot(store)) == StoreKind::Newer
                   ? StoreCondition{Condition::Newer, {}, 0, 0}
                   : Repair(store, today, named);
    } catch (const StoreError&) {
        return {Condition::Unusable, {}, 0, 0};
    }
}

void TidyStore(const fs::path& store) {
    if (SizeOf(store) > 0) {
        CheckpointIfLonger(store, LogWorthFolding);
    }
}

} // namespace quend::registry
