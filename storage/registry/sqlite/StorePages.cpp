#include "StorePages.h"

#include <algorithm>
#include <array>

namespace quend::registry {

namespace {

constexpr std::size_t FileHeader = 100;
constexpr std::size_t LinkSize = 4;
constexpr std::size_t SmallestCell = 4;

/// A number of one to nine bytes: seven bits each, eight in the ninth. Moves the position past it.
/// No value when the bytes end early.
std::optional<std::uint64_t> Varint(std::string_view bytes, std::size_t& position) {
    std::uint64_t number = 0;
    for (int i = 0; i < 9; ++i) {
        if (position >= bytes.size()) {
            return std::nullopt;
        }
        const auto byte = static_cast<unsigned char>(bytes[position++]);
        if (i == 8) {
            return number << 8 | byte;
        }
        number = number << 7 | (byte & 0x7F);
        if (byte < 0x80) {
            return number;
        }
    }
    return number;
}

/// How much of a content of that length is on the page itself.
std::size_t LocalLength(std::size_t length, std::size_t page, bool table) {
    const std::size_t most = table ? page - 35 : (page - 12) * 64 / 255 - 23;
    if (length <= most) {
        return length;
    }
    const std::size_t least = (page - 12) * 32 / 255 - 23;
    const std::size_t wanted = least + (length - least) % (page - LinkSize);
    return wanted <= most ? wanted : least;
}

/// The number of free bytes between the cells. They form a chain of blocks, each with the offset of
/// the next and its own size. No value when the chain is broken.
std::optional<std::size_t> FreeBytes(std::string_view page, std::size_t first) {
    std::size_t sum = 0;
    std::size_t end = 0;
    for (std::size_t at = first; at != 0;) {
        if (at < end || at + LinkSize > page.size()) {
            return std::nullopt;
        }
        const std::size_t size = BigEndian(page, at + 2, 2);
        if (size < LinkSize || at + size > page.size()) {
            return std::nullopt;
        }
        sum += size;
        end = at + size;
        at = BigEndian(page, at, 2);
    }
    return sum;
}

std::int64_t SignedNumber(std::string_view bytes) {
    std::uint64_t number = BigEndian(bytes, 0, bytes.size());
    const std::size_t unused = 64 - 8 * bytes.size();
    return static_cast<std::int64_t>(number << unused) >> unused;
}

/// The length for a column's type code; no value for an undefined code.
std::optional<std::size_t> LengthOf(std::uint64_t code) {
    constexpr std::array<std::size_t, 10> Lengths{0, 1, 2, 3, 4, 6, 8, 8, 0, 0};
    if (code < Lengths.size()) {
        return Lengths.at(code);
    }
    return code < 12 ? std::nullopt : std::optional<std::size_t>((code - 12) / 2);
}

RecordField FieldOf(std::uint64_t code, std::string_view bytes) {
    if (code == 0) {
        return {};
    }
    if (code >= 12) {
        return {code % 2 == 0 ? RecordField::Kind::Blob : RecordField::Kind::Text, 0, bytes};
    }
    if (code == 7) {
        return {RecordField::Kind::Fraction, 0, bytes};
    }
    return {RecordField::Kind::Number,
            code >= 8 ? static_cast<std::int64_t>(code - 8) : SignedNumber(bytes),
            {}};
}

bool IsTreeKind(std::uint64_t kind) { return kind == 2 || kind == 5 || kind == 10 || kind == 13; }

} // namespace

std::optional<Cell> StorePages::ReadCell(std::string_view page, std::size_t position,
                                         TreePage::Kind kind) const {
    using Kind = TreePage::Kind;
    const bool inner = kind == Kind::InnerIndex || kind == Kind::InnerTable;
    Cell cell;
    std::size_t at = position;
    if (inner) {
        if (at + LinkSize > page.size()) {
            return std::nullopt;
        }
        cell.child = static_cast<std::uint32_t>(BigEndian(page, at, LinkSize));
        at += LinkSize;
    }
    if (kind != Kind::InnerTable) {
        const auto length = Varint(page, at);
        if (!length || *length > m_image->Bytes().size()) {
            return std::nullopt;
        }
        cell.length = *length;
    }
    if (kind == Kind::LeafTable || kind == Kind::InnerTable) {
        const auto row = Varint(page, at);
        if (!row) {
            return std::nullopt;
        }
        cell.row = static_cast<std::int64_t>(*row);
    }
    const std::size_t local = LocalLength(cell.length, page.size(), kind == Kind::LeafTable);
    const std::size_t link = local < cell.length ? LinkSize : 0;
    if (at + local + link > page.size()) {
        return std::nullopt;
    }
    cell.local = page.substr(at, local);
    cell.overflow = static_cast<std::uint32_t>(link == 0 ? 0 : BigEndian(page, at + local, link));
    cell.size = std::max(at + local + link - position, SmallestCell);
    return cell;
}

std::optional<TreePage> StorePages::Read(std::uint32_t number) const {
    const std::string_view page = m_image->Page(number);
    const std::size_t start = number == 1 ? FileHeader : 0;
    if (page.empty() || !IsTreeKind(BigEndian(page, start, 1))) {
        return std::nullopt;
    }
    TreePage read;
    read.kind = static_cast<TreePage::Kind>(page[start]);
    const std::size_t pointers = start + (read.IsInner() ? 12 : 8);
    if (read.IsInner()) {
        read.lastChild = static_cast<std::uint32_t>(BigEndian(page, start + 8, 4));
    }
    const std::size_t count = BigEndian(page, start + 3, 2);
    const std::size_t startOfContent = BigEndian(page, start + 5, 2);
    const std::size_t content = startOfContent == 0 ? 65'536 : startOfContent;
    const auto free = FreeBytes(page, BigEndian(page, start + 1, 2));
    std::size_t used = BigEndian(page, start + 7, 1) + free.value_or(0);
    read.cells.reserve(std::min(count, page.size() / 2));
    for (std::size_t i = 0; i < count && pointers + 2 * i + 2 <= page.size(); ++i) {
        const std::size_t position = BigEndian(page, pointers + 2 * i, 2);
        const auto cell = position >= pointers ? ReadCell(page, position, read.kind) : std::nullopt;
        if (cell) {
            read.cells.push_back(*cell);
            used += cell->size;
            read.whole = read.whole && position >= content;
        }
    }
    read.whole = read.whole && free && read.cells.size() == count &&
                 pointers + 2 * count <= content && content + used == page.size();
    return read;
}

std::optional<std::vector<bool>> StorePages::FreePages() const {
    std::vector<bool> free(m_image->PageCount() + 1, false);
    const auto mark = [&free](std::uint64_t number) {
        const bool fits = number > 1 && number < free.size() && !free[number];
        if (fits) {
            free[number] = true;
        }
        return fits;
    };
    const std::string_view bytes = m_image->Bytes();
    if (bytes.size() < FileHeader) {
        return std::nullopt;
    }
    for (std::uint64_t trunk = BigEndian(bytes, 32, 4); trunk != 0;) {
        if (!mark(trunk)) {
            return std::nullopt;
        }
        const std::string_view page = m_image->Page(static_cast<std::uint32_t>(trunk));
        const std::uint64_t leaves = BigEndian(page, 4, 4);
        if (leaves > page.size() / 4 - 2) {
            return std::nullopt;
        }
        for (std::uint64_t i = 0; i < leaves; ++i) {
            if (!mark(BigEndian(page, 8 + 4 * i, 4))) {
                return std::nullopt;
            }
        }
        trunk = BigEndian(page, 0, 4);
    }
    return free;
}

std::optional<std::string_view> StorePages::Content(const Cell& cell, std::string& whole,
                                                    std::vector<std::uint32_t>* used) const {
    if (cell.overflow == 0) {
        return cell.local;
    }
    whole = cell.local;
    std::uint32_t next = cell.overflow;
    while (whole.size() < cell.length) {
        const std::string_view page = m_image->Page(next);
        if (page.empty()) {
            return std::nullopt;
        }
        if (used != nullptr) {
            used->push_back(next);
        }
        whole += page.substr(LinkSize, cell.length - whole.size());
        next = static_cast<std::uint32_t>(BigEndian(page, 0, LinkSize));
    }
    return next == 0 ? std::optional<std::string_view>(whole) : std::nullopt;
}

bool StorePages::Split(std::string_view content, std::vector<RecordField>& fields) {
    fields.clear();
    std::size_t at = 0;
    const auto header = Varint(content, at);
    if (!header || *header > content.size()) {
        return false;
    }
    std::size_t body = *header;
    while (at < *header) {
        const auto code = Varint(content.substr(0, *header), at);
        const auto length = code ? LengthOf(*code) : std::nullopt;
        if (!length || *length > content.size() - body) {
            return false;
        }
        fields.push_back(FieldOf(*code, content.substr(body, *length)));
        body += *length;
    }
    return at == *header && body == content.size();
}

} // namespace quend::registry
