#include "Utf8.h"

#include <array>

namespace quend::registry {

namespace {

constexpr std::string_view Replacement = "\xEF\xBF\xBD";

struct Form {
    unsigned char mask; ///< the bits of the first byte that identify the form
    unsigned char mark; ///< the value of those bits
    std::size_t length;
    char32_t least; ///< the first character that has no shorter form
};

constexpr std::array<Form, 4> Forms{{
    {0x80, 0x00, 1, 0},
    {0xE0, 0xC0, 2, 0x80},
    {0xF0, 0xE0, 3, 0x800},
    {0xF8, 0xF0, 4, 0x10000},
}};

const Form* FormOf(unsigned char first) {
    for (const Form& form : Forms) {
        if ((first & form.mask) == form.mark) {
            return &form;
        }
    }
    return nullptr;
}

unsigned char ByteAt(std::string_view text, std::size_t position) {
    return static_cast<unsigned char>(text[position]);
}

bool IsCharacter(char32_t character, const Form& form) {
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    return character >= form.least && character <= 0x10FFFF && !surrogate;
}

/// The length of the form at `position` and its character; length 0 when it is invalid.
struct Decoded {
    std::size_t length = 0;
    char32_t character = ReplacementCharacter;
};

Decoded Decode(std::string_view text, std::size_t position) {
    const unsigned char first = ByteAt(text, position);
    const Form* const form = FormOf(first);
    if (form == nullptr || text.size() - position < form->length) {
        return {};
    }
    char32_t character = first & static_cast<unsigned char>(~form->mask);
    for (std::size_t i = 1; i < form->length; ++i) {
        const unsigned char next = ByteAt(text, position + i);
        if ((next & 0xC0) != 0x80) {
            return {};
        }
        character = character << 6 | (next & 0x3F);
    }
    return IsCharacter(character, *form) ? Decoded{form->length, character} : Decoded{};
}

} // namespace

char32_t NextCharacter(std::string_view text, std::size_t& position) {
    const Decoded decoded = Decode(text, position);
    position += decoded.length == 0 ? 1 : decoded.length;
    return decoded.character;
}

bool IsUtf8(std::string_view text) {
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t length = Decode(text, position).length;
        if (length == 0) {
            return false;
        }
        position += length;
    }
    return true;
}

std::string MadeUtf8(std::string_view text) {
    if (IsUtf8(text)) {
        return std::string(text);
    }
    std::string made;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t length = Decode(text, position).length;
        made += length == 0 ? Replacement : text.substr(position, length);
        position += length == 0 ? 1 : length;
    }
    return made;
}

std::size_t Utf16Length(std::string_view text) {
    std::size_t units = 0;
    for (std::size_t position = 0; position < text.size();) {
        units += NextCharacter(text, position) > 0xFFFF ? 2U : 1U;
    }
    return units;
}

} // namespace quend::registry
