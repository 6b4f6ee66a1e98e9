#pragma once

#include "StoreImage.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// One column of a row.
struct Field {
    enum class Kind { Null, Number, Fraction, Text, Blob };

    Kind kind = Kind::Null;
    std::int64_t number = 0;
    std::string_view bytes; ///< of a text or blob, inside the row that was read
};

/// A row or an entry of an index, or on an inner page the way to a child.
struct Cell {
    std::uint32_t child = 0;    ///< the page with what comes before it; 0 on a leaf
    std::int64_t row = 0;       ///< of a table: its number
    std::size_t size = 0;       ///< bytes that it takes on its page
    std::string_view local;     ///< what stands of its content on its page
    std::size_t length = 0;     ///< of its content
    std::uint32_t overflow = 0; ///< the page on which the content goes on, or 0
};

struct TreePage {
    enum class Kind { InnerIndex = 2, InnerTable = 5, LeafIndex = 10, LeafTable = 13 };

    bool IsInner() const { return kind == Kind::InnerIndex || kind == Kind::InnerTable; }
    bool IsTable() const { return kind == Kind::InnerTable || kind == Kind::LeafTable; }

    Kind kind = Kind::LeafTable;
    std::uint32_t lastChild = 0; ///< of an inner page
    std::vector<Cell> cells;     ///< those that can be read
    bool whole = true;           ///< all can be read, and every byte of the page is accounted for
};

/// Reads the pages of a store without trusting anything on them. It reads what is there and does
/// not say whether it makes sense.
class StorePages {
public:
    explicit StorePages(const StoreImage& image) : m_image(&image) {}

    /// No value for a page that is none of a tree.
    std::optional<TreePage> Read(std::uint32_t number) const;

    /// All of a cell's content; `whole` holds it where it goes over several pages, and `used`, if
    /// given, gets their numbers. No value when the pages are not there.
    std::optional<std::string_view> Content(const Cell& cell, std::string& whole,
                                            std::vector<std::uint32_t>* used = nullptr) const;

    /// Splits the content of a cell into its columns. False when it is none.
    static bool Split(std::string_view content, std::vector<Field>& fields);

private:
    std::optional<Cell> ReadCell(std::string_view page, std::size_t position,
                                 TreePage::Kind kind) const;

    const StoreImage* m_image;
};
