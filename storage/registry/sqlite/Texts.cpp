// Texts by Qt.
#include "RegistryLimits.h"
#include "Utf8.h"

#include <QString>
#include <QStringDecoder>
#include <QTextBoundaryFinder>

namespace quend::registry {

namespace {

/// Each invalid byte becomes U+FFFD. QString::fromUtf8 would drop a U+FEFF at the start, which may
/// belong to the text.
QString Decoded(std::string_view text) {
    using Flag = QStringDecoder::Flag;
    QStringDecoder decoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    return decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

} // namespace

bool IsUtf8(std::string_view text) {
    return QUtf8StringView(text.data(), static_cast<qsizetype>(text.size())).isValidUtf8();
}

std::string MadeUtf8(std::string_view text) {
    return IsUtf8(text) ? std::string(text) : Decoded(text).toStdString();
}

std::size_t Utf16Length(std::string_view text) {
    return static_cast<std::size_t>(Decoded(text).size());
}

bool IsReadableLength(const std::string& text) {
    if (text.size() <= LongestText) {
        return true; // a character has at least one byte
    }
    const QString characters = Decoded(text);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, characters);
    std::size_t count = 0;
    while (count <= LongestText && finder.toNextBoundary() != -1) {
        ++count;
    }
    return count <= LongestText;
}

} // namespace quend::registry
