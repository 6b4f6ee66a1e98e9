#include "TextLength.h"

#include "Utf8.h"

#include <algorithm>
#include <array>

namespace quend::registry {

namespace {

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

} // namespace

bool IsReadableLength(const std::string& text) {
    std::size_t count = 0;
    char32_t before = 0;
    for (std::size_t position = 0; position < text.size();) {
        const char32_t character = NextCharacter(text, position);
        // A joiner connects the next emoji to the previous one.
        if (!Extends(character) && before != Joiner) {
            ++count;
        }
        before = character;
    }
    return count <= LongestText;
}

} // namespace quend::registry
