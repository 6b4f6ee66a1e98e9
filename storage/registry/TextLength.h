#pragma once

#include <cstddef>
#include <string>

/// The longest text that is read back, in characters as the user counts them: an accent or a skin
/// tone belongs to the letter or face before it.
inline constexpr std::size_t LongestText = 1'023;

/// Whether the text (UTF-8) has at most LongestText characters.
bool IsReadableLength(const std::string& text);
