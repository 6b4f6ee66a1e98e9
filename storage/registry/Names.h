#pragma once

#include <string>
#include <string_view>

/// A name as it is compared: each unit of its UTF-16 in upper case by itself, so that nothing grows
/// or shrinks (ß stays ß), which is how the platform's registry compares. As bytes, the higher one
/// of each unit first: their order is the order of the subkeys.
std::string Folded(const std::string& name);

/// The name in upper case that was folded to these bytes.
std::string Unfolded(std::string_view folded);
