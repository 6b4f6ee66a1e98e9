#include "Salvage.h"

#include "KeyPath.h"
#include "KeyTree.h"
#include "Names.h"
#include "StoreImage.h"
#include "StorePages.h"
#include "StoreRows.h"
#include "Utf8.h"
#include "ValueBytes.h"

#include <set>
#include <string_view>
#include <vector>

namespace {

/// Whether the name can be one, and is the one that was sorted in.
bool IsNamed(std::string_view name, std::string_view folded, std::size_t longest) {
    return IsUtf8(name) && name.find('\0') == std::string_view::npos &&
           Utf16Length(name) <= longest && Folded(std::string(name)) == folded;
}

bool IsKeyName(std::string_view name, std::string_view folded) {
    return !name.empty() && name.find('\\') == std::string_view::npos &&
           IsNamed(name, folded, LongestKeyName);
}

/// Marks the free pages; false when their chain is broken.
bool MarkFreePages(const StoreImage& image, std::vector<bool>& free) {
    const auto mark = [&free](std::uint64_t number) {
        const bool fits = number > 1 && number < free.size() && !free[number];
        if (fits) {
            free[number] = true;
        }
        return fits;
    };
    if (image.Bytes().size() < 100) {
        return false;
    }
    for (std::uint64_t trunk = BigEndian(image.Bytes(), 32, 4); trunk != 0;) {
        const std::string_view page = image.Page(static_cast<std::uint32_t>(trunk));
        if (page.empty() || !mark(trunk) || BigEndian(page, 4, 4) > page.size() / 4 - 2) {
            return false;
        }
        for (std::uint64_t i = 0; i < BigEndian(page, 4, 4); ++i) {
            if (!mark(BigEndian(page, 8 + 4 * i, 4))) {
                return false;
            }
        }
        trunk = BigEndian(page, 0, 4);
    }
    return true;
}

/// By their numbers; none when it cannot be made out which they are.
std::vector<bool> FreePages(const StoreImage& image) {
    std::vector<bool> free(image.PageCount() + 1, false);
    if (!MarkFreePages(image, free)) {
        free.assign(free.size(), false);
    }
    return free;
}

} // namespace

class Salvage::Reader {
public:
    explicit Reader(Salvage& salvage) : m_salvage(salvage) {}

    void Read(const StoreImage& image) {
        const StorePages pages(image);
        const std::vector<bool> free = FreePages(image);
        for (std::uint32_t number = 1; number <= image.PageCount(); ++number) {
            const auto page = free[number] ? std::nullopt : pages.Read(number);
            if (page && page->kind != TreePage::Kind::InnerTable) {
                ReadCells(pages, *page);
            }
        }
    }

private:
    void ReadCells(const StorePages& pages, const TreePage& page) {
        for (const Cell& cell : page.cells) {
            const auto content = pages.Content(cell, m_content);
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
            m_salvage.m_keys[row->id] = Key{row->parent, std::string(row->name)};
        }
    }

    void TakeIndexed(const std::optional<KeyRow>& row) {
        const std::string name = row ? Unfolded(row->folded) : std::string();
        if (row && IsKeyName(name, row->folded)) {
            m_salvage.m_keys.try_emplace(row->id, Key{row->parent, name});
        }
    }

    void TakeValue(const std::optional<ValueRow>& row) {
        if (row && row->type >= 0 && row->type <= INT16_MAX &&
            IsKnownType(static_cast<std::int16_t>(row->type)) &&
            IsNamed(row->name, row->folded, LongestValueName)) {
            m_salvage.m_values.try_emplace(
                {row->key, std::string(row->folded)},
                Value{std::string(row->name), row->type, std::string(row->data)});
        }
    }

    Salvage& m_salvage;
    std::string m_content;
    std::vector<Field> m_fields;
};

Salvage::Salvage(const StoreImage& image) {
    Reader(*this).Read(image);
    for (const auto& [id, key] : m_keys) {
        m_children.emplace(key.parent, id);
    }
}

Salvage::Counts Salvage::WriteTo(KeyTree& keys) const {
    Counts counts;
    // The roots have the numbers below zero.
    std::set<std::int64_t> roots;
    for (auto child = m_children.begin(); child != m_children.lower_bound(0); ++child) {
        roots.insert(child->first);
    }
    for (auto value = m_values.begin(); value != m_values.lower_bound({0, {}}); ++value) {
        roots.insert(value->first.first);
    }
    for (const std::int64_t root : roots) {
        WriteBelow(keys, root, root, 0, counts);
    }
    return counts;
}

void Salvage::WriteBelow(KeyTree& keys, std::int64_t from, std::int64_t to, int depth,
                         Counts& counts) const {
    for (auto value = m_values.lower_bound({from, {}});
         value != m_values.end() && value->first.first == from; ++value) {
        keys.Set(to, value->second.name, {value->second.type, value->second.data});
        ++counts.values;
    }
    const auto [first, end] = m_children.equal_range(from);
    for (auto child = first; child != end && depth < static_cast<int>(DeepestPath); ++child) {
        const std::int64_t made = keys.Create(to, {m_keys.at(child->second).name});
        ++counts.keys;
        WriteBelow(keys, child->second, made, depth + 1, counts);
    }
}
