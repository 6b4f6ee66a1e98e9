#pragma once

#include <string>
#include <string_view>

namespace quend::registry {

/// A name in the form used for comparison: each UTF-16 unit is converted to upper case separately,
/// so that the length never changes (ß stays ß). The platform's registry compares in the same way.
/// Returned as bytes, high byte first: their order is the order of the subkeys.
std::string Folded(const std::string& name);

/// The upper-case name that was folded to these bytes.
std::string Unfolded(std::string_view folded);

} // namespace quend::registry
