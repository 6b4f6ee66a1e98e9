#include "Recovery.h"

#include "KeyPath.h"
#include "KeyTree.h"
#include "Names.h"
#include "RegistryAPI.h"
#include "RegistryLimits.h"
#include "StorePages.h"
#include "StoreRows.h"
#include "StoreSnapshot.h"
#include "Utf8.h"
#include "ValueBytes.h"

#include <set>
#include <string_view>
#include <vector>

namespace quend::registry {

namespace {

/// Whether the name is valid and matches its folded form.
bool IsNamed(std::string_view name, std::string_view folded, std::size_t longest) {
    return IsUtf8(name) && name.find('\0') == std::string_view::npos &&
           Utf16Length(name) <= longest && Folded(std::string(name)) == folded;
}

bool IsKeyName(std::string_view name, std::string_view folded) {
    return !name.empty() && name.find('\\') == std::string_view::npos &&
           IsNamed(name, folded, LongestKeyName);
}

} // namespace

class Recovery::Reader {
public:
    explicit Reader(Recovery& recovery) : m_recovery(recovery) {}

    void Read(const StoreSnapshot& image) {
        const StorePages pages(image);
        const auto free = pages.FreePages();
        for (std::uint32_t number = 1; number <= image.PageCount(); ++number) {
            const auto page = free && (*free)[number] ? std::nullopt : pages.Read(number);
            if (page && page->kind != TreePage::Kind::InnerTable) {
                ReadCells(pages, *page);
            }
        }
    }

private:
    void ReadCells(const StorePages& pages, const TreePage& page) {
        for (const Cell& cell : page.cells) {
            const auto content = pages.Content(cell, m_collection);
            if (!content || !StorePages::Split(*content, m_fields)) {
                continue;
            }
            if (page.IsTable()) {
                TakeKey(AsKeyRow(cell.row, m_fields));
            } else {
                TakeIndexed(AsKeyIndexRow(m_fields));
                TakeValue(AsValueRow(m_fields));
            }
        }
    }

    void TakeKey(const std::optional<KeyRow>& row) {
        if (row && IsKeyName(row->name, row->folded)) {
            m_recovery.m_keys[row->id] = Key{row->parent, std::string(row->name), false};
        }
    }

    void TakeIndexed(const std::optional<KeyRow>& row) {
        const std::string name = row ? Unfolded(row->folded) : std::string();
        if (row && IsKeyName(name, row->folded)) {
            m_recovery.m_keys.try_emplace(row->id, Key{row->parent, name, true});
        }
    }

    void TakeValue(const std::optional<ValueRow>& row) {
        if (row && row->type >= 0 && row->type <= INT16_MAX &&
            IsKnownType(static_cast<std::int16_t>(row->type)) &&
            IsNamed(row->name, row->folded, LongestValueName)) {
            m_recovery.m_values.try_emplace(
                {row->key, std::string(row->folded)},
                Value{std::string(row->name), row->type, std::string(row->data)});
        }
    }

    Recovery& m_recovery;
    std::string m_collection;
    std::vector<RecordField> m_fields;
};

Recovery::Recovery(const StoreSnapshot& image) {
    Reader(*this).Read(image);
    for (const auto& [id, key] : m_keys) {
        m_children.emplace(key.parent, id);
    }
}

/// The name repeated in the values of a key; empty when there is none.
std::string Recovery::NameOf(std::int64_t key, const NamedKeys& named) const {
    const auto value = m_values.find({key, Folded(named.nameValue)});
    const bool fits = !named.nameValue.empty() && value != m_values.end() &&
                      value->second.type == RegistryType::Text &&
                      IsKeyName(value->second.data, Folded(value->second.data));
    return fits ? value->second.data : std::string();
}

class Recovery::Writer {
public:
    Writer(const Recovery& recovery, KeyTree& keys, const NamedKeys& named)
        : m_recovery(recovery), m_keys(keys), m_named(named) {}

    void WriteRoots() {
        // Roots have negative numbers.
        std::set<std::int64_t> roots;
        const auto& children = m_recovery.m_children;
        for (auto child = children.begin(); child != children.lower_bound(0); ++child) {
            roots.insert(child->first);
        }
        const auto& values = m_recovery.m_values;
        for (auto value = values.begin(); value != values.lower_bound({0, {}}); ++value) {
            roots.insert(value->first.first);
        }
        for (const std::int64_t root : roots) {
            WriteBelow(root, root, 0);
        }
    }

    /// Newest first: of two keys with the same name, the older may have been deleted long ago.
    void WriteLost() {
        const auto parent = PathElements(m_named.parent);
        const std::int64_t root = KeyTree::RootKey(static_cast<std::uint32_t>(m_named.root));
        const auto& values = m_recovery.m_values;
        for (auto value = values.rbegin(); parent && value != values.rend(); ++value) {
            const std::int64_t key = value->first.first;
            const std::string name = m_written.contains(key) ? "" : m_recovery.NameOf(key, m_named);
            KeyTree::Path path = *parent;
            path.push_back(name);
            if (!name.empty() && !m_keys.Find(root, path)) {
                ++m_counts.keys;
                WriteBelow(key, m_keys.Create(root, path), static_cast<int>(path.size()));
            }
        }
    }

    const Counts& Written() const { return m_counts; }

private:
    void WriteBelow(std::int64_t from, std::int64_t to, int depth) {
        m_written.insert(from);
        const auto& values = m_recovery.m_values;
        for (auto value = values.lower_bound({from, {}});
             value != values.end() && value->first.first == from; ++value) {
            m_keys.Set(to, value->second.name, {value->second.type, value->second.data});
            ++m_counts.values;
        }
        const auto [first, end] = m_recovery.m_children.equal_range(from);
        for (auto child = first; child != end && depth < static_cast<int>(DeepestPath); ++child) {
            if (m_written.contains(child->second)) {
                continue; // damage can make a key its own parent
            }
            ++m_counts.keys;
            WriteBelow(child->second, m_keys.Create(to, {NameOfChild(child->second)}), depth + 1);
        }
    }

    std::string NameOfChild(std::int64_t child) const {
        const Key& key = m_recovery.m_keys.at(child);
        const std::string repeated =
            key.nameInUpperCase ? m_recovery.NameOf(child, m_named) : std::string();
        return Folded(repeated) == Folded(key.name) ? repeated : key.name;
    }

    const Recovery& m_recovery;
    KeyTree& m_keys;
    const NamedKeys& m_named;
    std::set<std::int64_t> m_written;
    Counts m_counts;
};

Recovery::Counts Recovery::WriteTo(KeyTree& keys, const NamedKeys& named) const {
    Writer writer(*this, keys, named);
    writer.WriteRoots();
    writer.WriteLost();
    return writer.Written();
}

} // namespace quend::registry
