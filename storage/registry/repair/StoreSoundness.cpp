#include "StoreSoundness.h"

#include "StorePages.h"
#include "StoreRows.h"
#include "StoreSchema.h"
#include "StoreSnapshot.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <tuple>

namespace quend::registry {

namespace {

constexpr std::size_t HeaderSize = 100;
constexpr std::string_view Magic{"SQLite format 3\0", 16};
constexpr int DeepestTree = 20;
/// A version far above is damage.
constexpr std::uint64_t LastVersion = 9'999;

/// The sort key of rows (row number) or of entries (key and name).
using Order = std::tuple<std::int64_t, std::string>;

/// The sort key of a row in its tree; no value when it does not belong to the tree.
using Ranking =
    std::function<std::optional<Order>(std::int64_t row, const std::vector<RecordField>&)>;

std::optional<Order> RankValue(std::int64_t, const std::vector<RecordField>& fields) {
    const auto value = AsValueRow(fields);
    return value ? std::optional<Order>({value->key, std::string(value->folded)}) : std::nullopt;
}

/// Covers what both the table of keys and its index contain.
std::size_t HashOf(const KeyRow& key) {
    const std::string numbers = std::to_string(key.id) + ' ' + std::to_string(key.parent) + ' ';
    return std::hash<std::string>()(numbers + std::string(key.folded));
}

/// Exact comparison: SQLite opens no store in which any of this differs.
bool IsOfLayout(const SchemaRow& row) {
    return std::ranges::any_of(StoreSchema::Objects(), [&row](const StoreSchema::Object& object) {
        return row.kind == object.kind && row.name == object.name && row.table == object.table &&
               row.command == object.command;
    });
}

class Inspection {
public:
    explicit Inspection(const StoreSnapshot& image) : m_image(image), m_pages(image) {}

    bool Passes() {
        return HeaderFits() && WalkFreePages() && WalkSchema() && WalkTrees() && AllUsed();
    }

private:
    bool HeaderFits() const {
        const std::string_view bytes = m_image.Bytes();
        const std::uint64_t modes = BigEndian(bytes, 18, 2); // with or without a log
        return (modes == 0x0202 || modes == 0x0101) &&
               BigEndian(bytes, 16, 2) == m_image.PageSize() % 65'535 &&
               BigEndian(bytes, 28, 4) == m_image.PageCount() &&
               bytes.size() == m_image.PageCount() * m_image.PageSize() &&
               BigEndian(bytes, 20, 4) == 0x0040'2020 &&
               BigEndian(bytes, 24, 4) == BigEndian(bytes, 92, 4) && BigEndian(bytes, 44, 4) == 4 &&
               BigEndian(bytes, 52, 4) == 0 && BigEndian(bytes, 64, 4) == 0 &&
               BigEndian(bytes, 56, 4) == 1;
    }

    /// False when the page does not exist or is already used.
    bool Use(std::uint32_t number) {
        if (number == 0 || number > m_image.PageCount() || m_used[number]) {
            return false;
        }
        m_used[number] = true;
        return true;
    }

    bool WalkFreePages() {
        const auto free = m_pages.FreePages();
        if (!free) {
            return false;
        }
        m_used = *free;
        return static_cast<std::uint64_t>(std::ranges::count(m_used, true)) ==
               BigEndian(m_image.Bytes(), 36, 4);
    }

    bool WalkSchema() {
        const auto note = [this](std::int64_t row, const std::vector<RecordField>& fields) {
            const auto object = AsSchemaRow(fields);
            if (!object || !IsOfLayout(*object)) {
                return std::optional<Order>();
            }
            m_roots[std::string(object->name)] = static_cast<std::uint32_t>(object->root);
            return std::optional<Order>({row, {}});
        };
        return Walk(1, note) && m_roots.size() == StoreSchema::Objects().size();
    }

    bool WalkTrees() {
        // The hashes of the keys in the table and in the index cancel each other out.
        std::size_t sum = 0;
        const auto rankKey = [&sum](std::int64_t row, const std::vector<RecordField>& fields) {
            const auto key = AsKeyRow(row, fields);
            sum += key ? HashOf(*key) : 0;
            return key ? std::optional<Order>({row, {}}) : std::nullopt;
        };
        const auto rankIndex = [&sum](std::int64_t, const std::vector<RecordField>& fields) {
            const auto key = AsKeyIndexRow(fields);
            sum -= key ? HashOf(*key) : 0;
            return key ? std::optional<Order>({key->parent, std::string(key->folded)})
                       : std::nullopt;
        };
        return Walk(m_roots["Keys"], rankKey) && Walk(m_roots["KeysByName"], rankIndex) &&
               sum == 0 && Walk(m_roots["KeyValues"], RankValue);
    }

    bool AllUsed() const {
        return std::find(m_used.begin() + 1, m_used.end(), false) == m_used.end();
    }

    bool Walk(std::uint32_t root, const Ranking& ranking) {
        m_last = {std::numeric_limits<std::int64_t>::min(), {}};
        return WalkPage(root, ranking, 0);
    }

    bool WalkPage(std::uint32_t number, const Ranking& ranking, int depth) {
        const auto page = depth < DeepestTree && Use(number) ? m_pages.Read(number) : std::nullopt;
        if (!page || !page->whole) {
            return false;
        }
        for (const Cell& cell : page->cells) {
            if (page->IsInner() && !WalkPage(cell.child, ranking, depth + 1)) {
                return false;
            }
            const bool fits = page->kind == TreePage::Kind::InnerTable ? PassBound(cell.row)
                                                                       : PassRow(cell, ranking);
            if (!fits) {
                return false;
            }
        }
        return !page->IsInner() || WalkPage(page->lastChild, ranking, depth + 1);
    }

    /// Rows before an inner page's number are not above it, and rows after it are.
    bool PassBound(std::int64_t row) {
        const bool fits = std::get<0>(m_last) <= row;
        m_last = {row, {}};
        return fits;
    }

    bool PassRow(const Cell& cell, const Ranking& ranking) {
        m_overflow.clear();
        const auto content = m_pages.Content(cell, m_collection, &m_overflow);
        if (!content || !StorePages::Split(*content, m_fields)) {
            return false;
        }
        for (const std::uint32_t number : m_overflow) {
            if (!Use(number)) {
                return false;
            }
        }
        auto rank = ranking(cell.row, m_fields);
        const bool fits = rank && m_last < *rank;
        if (fits) {
            m_last = std::move(*rank);
        }
        return fits;
    }

    const StoreSnapshot& m_image;
    StorePages m_pages;
    std::vector<bool> m_used; ///< by page number
    std::map<std::string, std::uint32_t> m_roots;
    Order m_last;
    std::string m_collection;
    std::vector<RecordField> m_fields;
    std::vector<std::uint32_t> m_overflow;
};

} // namespace

StoreKind KindOf(const StoreSnapshot& image) {
    const std::string_view bytes = image.Bytes();
    if (bytes.size() < HeaderSize || !bytes.starts_with(Magic) ||
        BigEndian(bytes, 68, 4) != static_cast<std::uint64_t>(StoreSchema::ApplicationId)) {
        return StoreKind::NoStore;
    }
    const std::uint64_t version = BigEndian(bytes, 60, 4);
    constexpr auto Current = static_cast<std::uint64_t>(StoreSchema::Version);
    if (version == 0 || version > LastVersion) {
        return StoreKind::NoStore;
    }
    return version < Current    ? StoreKind::Older
           : version == Current ? StoreKind::Current
                                : StoreKind::Newer;
}

bool IsSound(const StoreSnapshot& image) {
    return KindOf(image) == StoreKind::Current && Inspection(image).Passes();
}

} // namespace quend::registry
