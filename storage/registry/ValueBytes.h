#pragma once

#include "RegistryAPI.h"

#include <cstdint>
#include <optional>
#include <string>

/// The bytes behind a value, the same on every platform: the characters of a text, the bytes of a
/// binary value, the four bytes of a number with the lowest first. A text is kept without an end
/// mark, and read with one NUL behind it.

/// The longest binary value that is read back.
inline constexpr std::size_t LongestBinary = 4'096;

bool IsKnownType(std::int16_t type);

/// The bytes to keep for a value of that type, the value converted where it is of another: a number
/// to a text in decimal, a text of decimal digits to a number. No bytes, and nothing to write, for
/// what cannot be converted and for an unknown type.
std::optional<std::string> BytesOfValue(std::int16_t type, const RegistryValue& value);

/// What the bytes mean to a reader who asks for that type, whatever type they were written with. A
/// text loses one NUL at its end. No value when they are too long for a reader of that type.
std::optional<RegistryValue> ValueOfBytes(std::int16_t type, const std::string& bytes);
