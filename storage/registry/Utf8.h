#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quend::registry {

/// Texts of the store are UTF-8. The platform's library decodes them; the meaning is not checked.

bool IsUtf8(std::string_view text);

/// The text itself when it is UTF-8, otherwise with U+FFFD for each invalid byte.
std::string MadeUtf8(std::string_view text);

/// The length of a text in UTF-8 in UTF-16 units, in which both platforms measure names.
std::size_t Utf16Length(std::string_view text);

} // namespace quend::registry
