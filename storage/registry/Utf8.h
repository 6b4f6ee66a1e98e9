#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Texts of the store are UTF-8. These functions look at their form only, not at what they mean.

/// What stands for bytes that are no character.
inline constexpr char32_t ReplacementCharacter = 0xFFFD;

/// The character that starts at `position`, which moves behind it. A byte that begins no whole,
/// shortest form of a character counts as one U+FFFD.
char32_t NextCharacter(std::string_view text, std::size_t& position);

bool IsUtf8(std::string_view text);

/// The text itself when it is UTF-8, otherwise with U+FFFD for each byte that is not.
std::string MadeUtf8(std::string_view text);

/// How many units the text takes in UTF-16, in which both platforms measure names.
std::size_t Utf16Length(std::string_view text);
