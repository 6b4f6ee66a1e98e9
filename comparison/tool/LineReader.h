#pragma once

#include "ToolNames.h"

#include <QByteArray>

#include <cstddef>
#include <istream>
#include <vector>

namespace quend::tool {

/// Reads lines of bytes, as soon as they arrive. A line that is too long is passed over in chunks,
/// so that the memory used does not grow with the input.
class LineReader {
public:
    enum class Kind {
        Line,
        TooLong,
        End,   ///< nothing is left; a last line needs no line end
        Failed ///< the stream could not be read; nothing more will come
    };

    /// The stream must outlive the reader. `most`: the bytes of the longest line, its end not
    /// counted.
    LineReader(std::istream& in, qsizetype most);

    Kind Next();
    /// After Kind::Line: without its line feed.
    const QByteArray& Line() const { return m_line; }

private:
    bool Fill();
    void Take(const char* begin, const char* end);

    std::istream* m_in;
    qsizetype m_most;
    QByteArray m_line;
    bool m_isTooLong = false;
    std::vector<char> m_chunk;
    std::size_t m_begin = 0; ///< of what is left of the chunk
    std::size_t m_end = 0;
};

} // namespace quend::tool
