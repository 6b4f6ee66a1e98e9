#include "StoreSnapshot.h"

#include "StoreFile.h"

#include <QtEndian>

#include <bit>
#include <fstream>
#include <map>
#include <utility>

namespace quend::registry {

namespace {

constexpr std::size_t UsualPageSize = 4'096;
constexpr std::size_t FileHeaderSize = 100;
constexpr std::size_t LogHeaderSize = 32;
constexpr std::size_t FrameHeaderSize = 24;
/// A damaged page number must not allocate all memory.
constexpr std::size_t MostBytes = std::size_t{1} << 31;

std::string BytesOf(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) {
        return {};
    }
    std::ifstream stream(file, std::ios::binary | std::ios::ate);
    const auto size = static_cast<std::streamoff>(stream.tellg());
    if (size <= 0 || static_cast<std::size_t>(size) > MostBytes) {
        return {};
    }
    std::string bytes(static_cast<std::size_t>(size), '\0');
    stream.seekg(0);
    stream.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

std::size_t PageSizeOf(std::string_view bytes) {
    if (bytes.size() < FileHeaderSize) {
        return UsualPageSize;
    }
    const std::uint64_t size = BigEndian(bytes, 16, 2);
    const std::uint64_t meant = size == 1 ? 65'536 : size;
    return meant >= 512 && std::has_single_bit(meant) ? static_cast<std::size_t>(meant)
                                                      : UsualPageSize;
}

/// The running checksum of a log, over pairs of 32-bit words in the byte order of its magic number.
class LogSum {
public:
    explicit LogSum(bool bigEndian) : m_bigEndian(bigEndian) {}

    void Add(std::string_view bytes) {
        for (std::size_t i = 0; i + 8 <= bytes.size(); i += 8) {
            m_first += Word(bytes, i) + m_second;
            m_second += Word(bytes, i + 4) + m_first;
        }
    }
    bool Is(std::string_view bytes, std::size_t position) const {
        return BigEndian(bytes, position, 4) == m_first &&
               BigEndian(bytes, position + 4, 4) == m_second;
    }

private:
    std::uint32_t Word(std::string_view bytes, std::size_t position) const {
        const char* const word = bytes.data() + position;
        return m_bigEndian ? qFromBigEndian<quint32>(word) : qFromLittleEndian<quint32>(word);
    }

    bool m_bigEndian;
    std::uint32_t m_first = 0;
    std::uint32_t m_second = 0;
};

bool IsLogHeader(std::string_view log) {
    return log.size() >= LogHeaderSize && (BigEndian(log, 0, 4) | 1) == 0x377F'0683;
}

/// The pages of all committed transactions in the log, and the page count of the file after them.
struct LogContent {
    std::map<std::uint32_t, std::string_view> pages;
    std::uint32_t pageCount = 0;
};

LogContent ReadLog(std::string_view log, std::size_t pageSize) {
    LogContent content;
    LogSum sum((BigEndian(log, 0, 4) & 1) != 0);
    sum.Add(log.substr(0, 24));
    if (!sum.Is(log, 24)) {
        return content;
    }
    const std::string_view salt = log.substr(16, 8);
    std::map<std::uint32_t, std::string_view> step;
    const std::size_t frameSize = FrameHeaderSize + pageSize;
    for (std::size_t at = LogHeaderSize; at + frameSize <= log.size(); at += frameSize) {
        const std::string_view frame = log.substr(at, frameSize);
        sum.Add(frame.substr(0, 8));
        sum.Add(frame.substr(FrameHeaderSize));
        if (frame.substr(8, 8) != salt || !sum.Is(frame, 16)) {
            break;
        }
        step[static_cast<std::uint32_t>(BigEndian(frame, 0, 4))] = frame.substr(FrameHeaderSize);
        if (const std::uint64_t pageCount = BigEndian(frame, 4, 4); pageCount != 0) {
            for (const auto& [number, page] : step) {
                content.pages[number] = page;
            }
            step.clear();
            content.pageCount = static_cast<std::uint32_t>(pageCount);
        }
    }
    return content;
}

} // namespace

std::uint64_t BigEndian(std::string_view bytes, std::size_t position, std::size_t count) {
    std::uint64_t number = 0;
    for (std::size_t i = position; i < position + count; ++i) {
        number = number << 8 | static_cast<unsigned char>(bytes[i]);
    }
    return number;
}

StoreSnapshot::StoreSnapshot(const std::filesystem::path& store)
    : m_pageSize(UsualPageSize), m_bytes(BytesOf(store)) {
    m_pageSize = PageSizeOf(m_bytes);
    const std::string log = BytesOf(StoreFile::LogOf(store));
    if (IsLogHeader(log)) {
        LayOver(log);
    }
}

void StoreSnapshot::LayOver(std::string_view log) {
    const auto pageSize = static_cast<std::size_t>(BigEndian(log, 8, 4));
    if (pageSize < 512 || pageSize > 65'536 || !std::has_single_bit(pageSize)) {
        return;
    }
    const LogContent content = ReadLog(log, pageSize);
    const std::size_t size = content.pageCount * pageSize;
    if (content.pages.empty() || size > MostBytes) {
        return;
    }
    m_pageSize = pageSize;
    m_bytes.resize(size);
    for (const auto& [number, page] : content.pages) {
        if (number >= 1 && number <= content.pageCount) {
            page.copy(m_bytes.data() + (number - 1) * pageSize, pageSize);
        }
    }
}

std::string_view StoreSnapshot::Page(std::uint32_t number) const {
    return number >= 1 && number <= PageCount()
               ? std::string_view(m_bytes).substr((number - 1) * m_pageSize, m_pageSize)
               : std::string_view();
}

std::string StoreSnapshot::AsPlainFile() && {
    if (m_bytes.size() >= FileHeaderSize) {
        m_bytes[18] = 1; // the write and read versions: 2 would require a log
        m_bytes[19] = 1;
    }
    return std::move(m_bytes);
}

} // namespace quend::registry
