#pragma once

#include <cstddef>
#include <string>

namespace quend::registry {

/// The longest text that can be read back, in user-perceived characters: an accent or a skin tone
/// belongs to the character before it.
inline constexpr std::size_t LongestText = 1'023;

/// Whether the text (UTF-8) has at most LongestText characters.
bool IsReadableLength(const std::string& text);

} // namespace quend::registry
