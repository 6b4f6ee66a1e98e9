#pragma once

#include "RegistryAPI.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quend::registry {

/// The bytes of a value, the same on every platform: the characters of a text, the bytes of a
/// binary value, the four bytes of a number, low byte first. A text is stored without a terminator
/// and read with one NUL after it.

bool IsKnownType(std::int16_t type);

/// The bytes to store for a value of that type. Converts other types: a number to a decimal text, a
/// text of decimal digits to a number. No value when the conversion fails or the type is unknown;
/// nothing is written then.
std::optional<std::string> BytesOfValue(std::int16_t type, const RegistryValue& value);

/// Interprets the bytes as that type, whatever type was written. A text loses one NUL at its end.
/// No value when there are too many bytes for the type.
std::optional<RegistryValue> ValueOfBytes(std::int16_t type, const std::string& bytes);

} // namespace quend::registry
