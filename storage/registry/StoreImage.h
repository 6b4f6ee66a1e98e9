#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

/// The bytes of a store file as they are, with what its log holds laid over them: the state after
/// the last step that was kept. Needs no right but to read, and copes with any damage; a file that
/// is missing or cannot be read is empty. It knows nothing of what is on the pages.
class StoreImage {
public:
    explicit StoreImage(const std::filesystem::path& store);

    /// Bytes; a power of two from 512 to 65,536. A damaged header is taken for that of a store.
    std::size_t PageSize() const { return m_pageSize; }
    /// Whole pages.
    std::size_t PageCount() const { return m_bytes.size() / m_pageSize; }
    /// Counted from 1. Nothing for a page that there is not.
    std::string_view Page(std::uint32_t number) const;
    /// All that was read, also a last page that is cut short.
    const std::string& Bytes() const { return m_bytes; }

    /// The same as a file that needs no log.
    std::string AsPlainFile() const;

private:
    void LayOver(std::string_view log);

    std::size_t m_pageSize;
    std::string m_bytes;
};

/// The number in `count` bytes of the text from `position` on, the highest byte first. The bytes
/// must be there.
std::uint64_t BigEndian(std::string_view bytes, std::size_t position, std::size_t count);
