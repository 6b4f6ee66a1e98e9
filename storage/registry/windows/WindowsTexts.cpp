// Texts by the calls of the platform.
#include "RegistryLimits.h"
#include "Utf8.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace quend::registry {

namespace {

constexpr std::string_view Replacement = "\xEF\xBF\xBD"; // U+FFFD
constexpr std::size_t MostBytesOfCharacter = 4;

/// The text in UTF-16; empty when it is not UTF-8.
std::wstring Wide(std::string_view text) {
    const auto size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0'); // a character has no more units than bytes
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, wide.data(), size)));
    return wide;
}

/// The number of bytes of the character at the start of the text; 0 when there is none.
std::size_t BytesOfCharacter(std::string_view text) {
    for (std::size_t bytes = 1; bytes <= MostBytesOfCharacter; ++bytes) {
        if (IsUtf8(text.substr(0, bytes))) {
            return bytes;
        }
    }
    return 0;
}

constexpr char32_t Joiner = 0x200D;

struct Range {
    char32_t first;
    char32_t last;
};

/// Code points that belong to the character before them: accents, marks of the scripts read here,
/// variants, skin tones, tags.
constexpr std::array<Range, 13> Extending{{
    {0x0300, 0x036F},
    {0x0483, 0x0489},
    {0x0591, 0x05BD},
    {0x064B, 0x065F},
    {0x093A, 0x093C},
    {0x093E, 0x094F},
    {0x1AB0, 0x1AFF},
    {0x1DC0, 0x1DFF},
    {0x200C, 0x200D},
    {0x20D0, 0x20FF},
    {0xFE00, 0xFE0F},
    {0xFE20, 0xFE2F},
    {0x1F3FB, 0x1F3FF},
}};

bool Extends(char32_t character) {
    const auto holds = [character](const Range& range) {
        return character >= range.first && character <= range.last;
    };
    return std::any_of(Extending.begin(), Extending.end(), holds);
}

/// The character at `position`, which moves past it.
char32_t NextCharacter(const std::wstring& wide, std::size_t& position) {
    const char32_t first = wide[position++];
    if (!IS_HIGH_SURROGATE(first) || position == wide.size()) {
        return first;
    }
    return 0x10000 + ((first - HIGH_SURROGATE_START) << 10) +
           (wide[position++] - LOW_SURROGATE_START);
}

} // namespace

bool IsUtf8(std::string_view text) { return text.empty() || !Wide(text).empty(); }

std::string MadeUtf8(std::string_view text) {
    if (IsUtf8(text)) {
        return std::string(text);
    }
    std::string made;
    while (!text.empty()) {
        const std::size_t bytes = BytesOfCharacter(text);
        made += bytes == 0 ? Replacement : text.substr(0, bytes);
        text.remove_prefix(std::max<std::size_t>(bytes, 1));
    }
    return made;
}

std::size_t Utf16Length(std::string_view text) { return Wide(text).size(); }

bool IsReadableLength(const std::string& text) {
    const std::wstring wide = Wide(text);
    std::size_t count = 0;
    char32_t before = 0;
    for (std::size_t position = 0; position < wide.size();) {
        const char32_t character = NextCharacter(wide, position);
        // A joiner connects the next emoji to the previous one.
        if (!Extends(character) && before != Joiner) {
            ++count;
        }
        before = character;
    }
    return count <= LongestText;
}

} // namespace quend::registry
