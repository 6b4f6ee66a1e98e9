#pragma once

#include "Sqlite.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// The keys and values of one open store, inside the caller's transaction. Keys are known by their
/// number; a root has a number below zero and is always there. Everything throws StoreError.
/// It knows no texts, numbers or defaults: a value is its type code and its bytes.
class KeyTree {
public:
    using Path = std::vector<std::string>;

    struct Value {
        std::int64_t type;
        std::string bytes;
    };

    explicit KeyTree(const Connection& connection) : m_connection(&connection) {}

    static std::int64_t RootKey(std::uint32_t root) { return -static_cast<std::int64_t>(root); }

    std::optional<std::int64_t> Find(std::int64_t root, const Path& path);
    /// The key of the path, with all that was missing of it made.
    std::int64_t Create(std::int64_t root, const Path& path);
    /// Deletes the key and its values unless it has subkeys.
    void Delete(std::int64_t key);
    std::vector<std::string> Subkeys(std::int64_t key);

    std::optional<Value> Get(std::int64_t key, const std::string& name);
    void Set(std::int64_t key, const std::string& name, const Value& value);
    void Remove(std::int64_t key, const std::string& name);

private:
    std::optional<std::int64_t> Child(std::int64_t parent, const std::string& folded);
    Statement& Prepared(const char* command);

    /// The key that was looked for last: a worksheet is read and written value by value.
    struct Found {
        std::int64_t root;
        Path path;
        std::int64_t key;
    };

    const Connection* m_connection;
    std::optional<Found> m_found;
    std::map<const char*, Statement> m_prepared;
};
