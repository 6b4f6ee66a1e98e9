#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace quend::registry {

/// The bytes of a store file with its log applied: the state after the last commit. Needs only read
/// permission and tolerates any damage; a missing or unreadable file is empty. Does not interpret
/// the pages.
class StoreSnapshot {
public:
    explicit StoreSnapshot(const std::filesystem::path& store);

    /// In bytes; a power of two from 512 to 65,536. A damaged header is treated as that of a store.
    std::size_t PageSize() const { return m_pageSize; }
    /// Counts whole pages only.
    std::size_t PageCount() const { return m_bytes.size() / m_pageSize; }
    /// Numbered from 1. Empty for a page that does not exist.
    std::string_view Page(std::uint32_t number) const;
    /// All bytes read, including a truncated last page.
    const std::string& Bytes() const { return m_bytes; }

    /// The same content as a file that needs no log. Moves it out, because it may be large.
    std::string AsPlainFile() &&;

private:
    void LayOver(std::string_view log);

    std::size_t m_pageSize;
    std::string m_bytes;
};

/// The number in `count` bytes of the text from `position`, high byte first. The bytes must exist.
std::uint64_t BigEndian(std::string_view bytes, std::size_t position, std::size_t count);

} // namespace quend::registry
