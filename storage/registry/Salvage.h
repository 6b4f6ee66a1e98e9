#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>

struct NamedKeys;
class KeyTree;
class StoreImage;

/// All that can still be read of a damaged store: every page is looked at by itself, whether or not
/// anything leads to it, and every row on it that has the form of one is taken. Pages that the file
/// itself holds to be free are left out, as long as that can be made out.
class Salvage {
public:
    explicit Salvage(const StoreImage& image);

    struct Counts {
        std::size_t keys = 0;
        std::size_t values = 0;
    };

    /// Writes it all below the roots of an empty store. What belonged to a key whose name and place
    /// are lost is left out, but for named keys: their values say both. Where a key of that name is
    /// there already, it stays as it is. Throws StoreError.
    Counts WriteTo(KeyTree& keys, const NamedKeys& named) const;

private:
    struct Key {
        std::int64_t parent = 0;
        std::string name;
        bool nameInUpperCase = false; ///< all that was left of it
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
