#pragma once

#include "Sqlite.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quend::registry {

/// The keys and values of an open store, inside the caller's transaction. Keys are identified by
/// number; a root has a negative number and always exists. All functions throw StoreError. Knows no
/// texts, numbers or defaults: a value is a type code and bytes.
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
    /// The key of the path; missing keys are created.
    std::int64_t Create(std::int64_t root, const Path& path);
    /// Deletes the key and its values unless it has subkeys.
    void Delete(std::int64_t key);
    std::vector<std::string> Subkeys(std::int64_t key);

    /// The values of the key, by name.
    std::map<std::string, Value> Values(std::int64_t key);
    std::optional<Value> Get(std::int64_t key, const std::string& name);
    void Set(std::int64_t key, const std::string& name, const Value& value);
    void Remove(std::int64_t key, const std::string& name);

private:
    std::optional<std::int64_t> Child(std::int64_t parent, const std::string& folded);
    Statement& Prepared(const char* command);

    /// The last key found, cached because a worksheet is read and written value by value.
    struct Found {
        std::int64_t root;
        Path path;
        std::int64_t key;
    };

    const Connection* m_connection;
    std::optional<Found> m_found;
    std::map<const char*, Statement> m_prepared;
};

} // namespace quend::registry
