#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace quend::registry {

class Connection;

/// The schema of the store file and its versions, described in docs/store.md.
namespace StoreSchema {

/// "Loan", in the file's header: identifies the program's stores.
inline constexpr std::int64_t ApplicationId = 0x4C6F'616E;

/// Each row migrates a store to the next version; the first row fills an empty file. A new schema
/// adds a row; existing rows never change.
inline constexpr std::array<const char*, 1> Steps{
    "CREATE TABLE Keys(id INTEGER PRIMARY KEY, parent INTEGER NOT NULL, "
    "folded BLOB NOT NULL, name TEXT NOT NULL) STRICT;"
    "CREATE UNIQUE INDEX KeysByName ON Keys(parent, folded);"
    "CREATE TABLE KeyValues(key INTEGER NOT NULL, folded BLOB NOT NULL, name TEXT NOT NULL, "
    "type INTEGER NOT NULL, data BLOB NOT NULL, PRIMARY KEY(key, folded)) STRICT, WITHOUT ROWID;",
};

inline constexpr std::int64_t Version = Steps.size();

enum class State {
    Older, ///< can be migrated to this version
    Current,
    Other, ///< empty, of a later version or of another program: neither read nor written
};

/// Throws StoreError when the file cannot be read.
State StateOf(const Connection& connection);

/// Migrates an empty or older store to the version after the last step, within the caller's
/// transaction. When a step fails with StoreError, nothing of it is committed.
void Migrate(const Connection& connection, std::span<const char* const> steps = Steps);

/// A table or an index, as in SQLite's schema table of a store of this version.
struct Object {
    std::string kind;
    std::string name;
    std::string table;
    std::string command;
};

const std::vector<Object>& Objects();

} // namespace StoreSchema

} // namespace quend::registry
