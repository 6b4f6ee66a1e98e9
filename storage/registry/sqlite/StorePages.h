#pragma once

#include "StoreSnapshot.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quend::registry {

/// One column of a row.
struct RecordField {
    enum class Kind { Null, Number, Fraction, Text, Blob };

    Kind kind = Kind::Null;
    std::int64_t number = 0;
    std::string_view bytes; ///< of a text or blob; points into the row that was read
};

/// A table row or an index entry; on an inner page, the link to a child page.
struct Cell {
    std::uint32_t child = 0;    ///< the page of the entries before this one; 0 on a leaf
    std::int64_t row = 0;       ///< the row number, in tables
    std::size_t size = 0;       ///< bytes used on its page
    std::string_view local;     ///< the part of the content on its page
    std::size_t length = 0;     ///< of the whole content
    std::uint32_t overflow = 0; ///< the page where the content continues, or 0
};

struct TreePage {
    enum class Kind { InnerIndex = 2, InnerTable = 5, LeafIndex = 10, LeafTable = 13 };

    bool IsInner() const { return kind == Kind::InnerIndex || kind == Kind::InnerTable; }
    bool IsTable() const { return kind == Kind::InnerTable || kind == Kind::LeafTable; }

    Kind kind = Kind::LeafTable;
    std::uint32_t lastChild = 0; ///< of an inner page
    std::vector<Cell> cells;     ///< those that are readable
    bool whole = true;           ///< all are readable, and every byte of the page is accounted for
};

/// Reads the pages of a store without trusting their content. Does not check whether the data makes
/// sense.
class StorePages {
public:
    explicit StorePages(const StoreSnapshot& image) : m_image(&image) {}

    /// No value when the page is not part of a tree.
    std::optional<TreePage> Read(std::uint32_t number) const;

    /// Whether a page is on the list of free pages, by its number. No value when the list is
    /// broken.
    std::optional<std::vector<bool>> FreePages() const;

    /// The whole content of a cell. `whole` is the buffer for content on several pages; `used`, if
    /// given, receives the numbers of the overflow pages. No value when pages are missing.
    std::optional<std::string_view> Content(const Cell& cell, std::string& whole,
                                            std::vector<std::uint32_t>* used = nullptr) const;

    /// Splits the content of a cell into columns. False when the content is invalid.
    static bool Split(std::string_view content, std::vector<RecordField>& fields);

private:
    std::optional<Cell> ReadCell(std::string_view page, std::size_t position,
                                 TreePage::Kind kind) const;

    const StoreSnapshot* m_image;
};

} // namespace quend::registry
