#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

class Connection;

/// What is in a store file, and which versions of it there are. docs/store.md describes it.
namespace StoreLayout {

/// "Loan", in the file's header: the file is one of this program's stores.
inline constexpr std::int64_t ApplicationId = 0x4C6F'616E;

/// Each row brings a store to the next version; the first makes an empty file one. A new layout is
/// a row more, and no row is ever changed.
inline constexpr std::array<const char*, 1> Steps{
    "CREATE TABLE Keys(id INTEGER PRIMARY KEY, parent INTEGER NOT NULL, "
    "folded BLOB NOT NULL, name TEXT NOT NULL) STRICT;"
    "CREATE UNIQUE INDEX KeysByName ON Keys(parent, folded);"
    "CREATE TABLE KeyValues(key INTEGER NOT NULL, folded BLOB NOT NULL, name TEXT NOT NULL, "
    "type INTEGER NOT NULL, data BLOB NOT NULL, PRIMARY KEY(key, folded)) STRICT, WITHOUT ROWID;",
};

inline constexpr std::int64_t Version = Steps.size();

enum class State {
    Empty, ///< a file without anything in it yet
    Older, ///< can be brought to this version
    Current,
    Newer,   ///< from a later version of the program: neither read nor written
    Foreign, ///< no store of this program
};

/// Throws StoreError when the file cannot be read.
State StateOf(const Connection& connection);

/// Brings an empty or older store to the version that the steps end at, within the caller's
/// transaction: kept with it as a whole or, when a step fails with StoreError, not at all.
void Migrate(const Connection& connection, std::span<const char* const> steps = Steps);

/// A table or an index as SQLite notes it in a store of this version.
struct Object {
    std::string kind;
    std::string name;
    std::string table;
    std::string command;
};

const std::vector<Object>& Objects();

} // namespace StoreLayout
