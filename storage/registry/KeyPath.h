#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// How long a name may be, in units of UTF-16, and how deep a path: what the platform's registry
/// holds, so that a store can move between platforms.
inline constexpr std::size_t LongestKeyName = 255;
inline constexpr std::size_t LongestValueName = 16'383;
inline constexpr std::size_t DeepestPath = 512;

/// The elements of a path below a root: none for an empty path, which is the root itself. No value
/// when no key can have that path: an element is empty (a backslash at either end, or two in a
/// row), longer than a store holds or no UTF-8, or there are too many. An empty element is refused
/// rather than passed over, because a name with a backslash would lead to another key than was
/// meant. A path ends at its first NUL.
std::optional<std::vector<std::string>> PathElements(const std::string& keyName);

/// The name of a value up to its first NUL, or no value when no value can have that name.
std::optional<std::string> ValueNameOf(const std::string& valueName);
