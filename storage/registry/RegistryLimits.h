#pragma once

#include <cstddef>
#include <string>

namespace quend::registry {

/// The limits of the store. They match the platform's registry, so that a store can move between
/// platforms.

inline constexpr std::size_t LongestKeyName = 255;      ///< in UTF-16 units
inline constexpr std::size_t LongestValueName = 16'383; ///< in UTF-16 units
inline constexpr std::size_t DeepestPath = 512;         ///< keys below each other

/// The longest text that can be read back, in user-perceived characters: an accent or a skin tone
/// belongs to the character before it.
inline constexpr std::size_t LongestText = 1'023;
/// The longest binary value that can be read back, in bytes.
inline constexpr std::size_t LongestBinary = 4'096;

/// The length of the single blank name that means "no subkeys"; longer than any name.
inline constexpr std::size_t NoSubkeysLength = 260;

/// Whether the text (UTF-8) has at most LongestText characters.
bool IsReadableLength(const std::string& text);

} // namespace quend::registry
