#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>

namespace quend::registry {

struct NamedKeys;
class KeyTree;
class StoreSnapshot;

/// All data that is still readable in a damaged store. Scans every page, even if nothing refers to
/// it, and takes every row with a valid format. Pages on the file's free list are left out if that
/// list is intact.
class Recovery {
public:
    explicit Recovery(const StoreSnapshot& image);

    struct Counts {
        std::size_t keys = 0;
        std::size_t values = 0;
    };

    /// Writes everything below the roots of an empty store. Data of a key whose name and parent are
    /// lost is left out, except for named keys, whose values give both. An existing key of that
    /// name stays unchanged. Throws StoreError.
    Counts WriteTo(KeyTree& keys, const NamedKeys& named) const;

private:
    struct Key {
        std::int64_t parent = 0;
        std::string name;
        bool nameInUpperCase = false; ///< only its upper-case form is left
    };
    struct Value {
        std::string name;
        std::int64_t type = 0;
        std::string data;
    };
    class Reader;
    class Writer;

    std::string NameOf(std::int64_t key, const NamedKeys& named) const;

    std::map<std::int64_t, Key> m_keys;
    std::multimap<std::int64_t, std::int64_t> m_children;
    std::map<std::pair<std::int64_t, std::string>, Value> m_values; ///< by key and folded name
};

} // namespace quend::registry
