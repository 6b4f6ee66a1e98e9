#include "LineReader.h"

#include <algorithm>
#include <iterator>

namespace quend::tool {

namespace {

constexpr std::size_t ChunkBytes = 65'536;

} // namespace

LineReader::LineReader(std::istream& in, qsizetype most)
    : m_in(&in), m_most(most), m_chunk(ChunkBytes) {}

LineReader::Kind LineReader::Next() {
    m_line.resize(0);
    m_isTooLong = false;
    bool hasBytes = false;
    while (m_begin < m_end || Fill()) {
        hasBytes = true;
        const auto begin = std::next(m_chunk.begin(), static_cast<std::ptrdiff_t>(m_begin));
        const auto end = std::next(m_chunk.begin(), static_cast<std::ptrdiff_t>(m_end));
        const auto lineEnd = std::find(begin, end, '\n');
        Take(&*begin, &*begin + std::distance(begin, lineEnd));
        m_begin += static_cast<std::size_t>(std::distance(begin, lineEnd));
        if (lineEnd != end) {
            ++m_begin;
            return m_isTooLong ? Kind::TooLong : Kind::Line;
        }
    }
    if (m_in->bad()) {
        return Kind::Failed;
    }
    if (!hasBytes) {
        return Kind::End;
    }
    return m_isTooLong ? Kind::TooLong : Kind::Line;
}

/// Waits for the first byte and then takes what is there: a whole chunk may never come.
bool LineReader::Fill() {
    m_begin = 0;
    m_end = 0;
    if (m_in->peek() != std::istream::traits_type::eof()) {
        const auto read = m_in->readsome(m_chunk.data(), static_cast<std::streamsize>(ChunkBytes));
        m_end = static_cast<std::size_t>(read);
    }
    return m_end > 0;
}

void LineReader::Take(const char* begin, const char* end) {
    const qsizetype size = end - begin;
    m_isTooLong = m_isTooLong || size > m_most - m_line.size();
    if (m_isTooLong) {
        m_line.resize(0);
    } else {
        m_line.append(begin, size);
    }
}

} // namespace quend::tool
