#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quend::registry {

/// The elements of a path below a root; none for an empty path, which is the root itself. No value
/// for an invalid path: an element is empty (a backslash at either end, or two in a row), too long
/// or not UTF-8, or there are too many. Empty elements are rejected rather than skipped, because a
/// name with a backslash would address a different key. A path ends at its first NUL.
std::optional<std::vector<std::string>> PathElements(const std::string& keyName);

/// The name of a value up to its first NUL; no value for an invalid name.
std::optional<std::string> ValueNameOf(const std::string& valueName);

} // namespace quend::registry
