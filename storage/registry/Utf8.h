#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quend::registry {

/// Texts of the store are UTF-8. These functions check only the encoding, not the meaning.

/// Replaces bytes that are not a character.
inline constexpr char32_t ReplacementCharacter = 0xFFFD;

/// The character at `position`, which moves past it. A byte that starts no complete, shortest
/// encoding of a character counts as one U+FFFD.
char32_t NextCharacter(std::string_view text, std::size_t& position);

bool IsUtf8(std::string_view text);

/// The text itself when it is UTF-8, otherwise with U+FFFD for each invalid byte.
std::string MadeUtf8(std::string_view text);

/// The length of the text in UTF-16 units, in which both platforms measure names.
std::size_t Utf16Length(std::string_view text);

} // namespace quend::registry
