#include "TextLength.h"

#include <QString>
#include <QTextBoundaryFinder>

namespace quend::registry {

bool IsReadableLength(const std::string& text) {
    if (text.size() <= LongestText) {
        return true; // a character has at least one byte
    }
    const QString characters = QString::fromStdString(text);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, characters);
    std::size_t count = 0;
    while (count <= LongestText && finder.toNextBoundary() != -1) {
        ++count;
    }
    return count <= LongestText;
}

} // namespace quend::registry
