#include "ValueBytes.h"

#include "RegistryLimits.h"
#include "Utf8.h"

#include <charconv>

namespace quend::registry {

namespace {

std::string NumberBytes(std::int32_t number) {
    const auto bits = static_cast<std::uint32_t>(number);
    std::string bytes;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(bits >> shift & 0xFF);
    }
    return bytes;
}

std::int32_t NumberOf(const std::string& bytes) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bits |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    }
    return static_cast<std::int32_t>(bits);
}

std::string CharactersOf(const std::vector<std::byte>& bytes) {
    std::string characters;
    for (const std::byte byte : bytes) {
        characters += static_cast<char>(byte);
    }
    return characters;
}

std::vector<std::byte> BinaryOf(const std::string& bytes) {
    std::vector<std::byte> binary;
    for (const char byte : bytes) {
        binary.push_back(static_cast<std::byte>(byte));
    }
    return binary;
}

std::string TextBytes(const RegistryValue& value) {
    if (const auto* const number = std::get_if<std::int32_t>(&value)) {
        return std::to_string(*number);
    }
    const auto* const binary = std::get_if<std::vector<std::byte>>(&value);
    return MadeUtf8(binary != nullptr ? CharactersOf(*binary) : std::get<std::string>(value));
}

std::optional<std::string> NumberBytesOf(const RegistryValue& value) {
    if (const auto* const number = std::get_if<std::int32_t>(&value)) {
        return NumberBytes(*number);
    }
    const auto* const text = std::get_if<std::string>(&value);
    if (text == nullptr) {
        return std::nullopt;
    }
    std::int32_t number = 0;
    const char* const end = text->data() + text->size();
    const auto [stop, error] = std::from_chars(text->data(), end, number);
    if (error != std::errc() || stop != end) {
        return std::nullopt;
    }
    return NumberBytes(number);
}

} // namespace

bool IsKnownType(std::int16_t type) {
    return type == RegistryType::Text || type == RegistryType::Binary ||
           type == RegistryType::Number;
}

std::optional<std::string> BytesOfValue(std::int16_t type, const RegistryValue& value) {
    if (type == RegistryType::Text) {
        return TextBytes(value);
    }
    if (type == RegistryType::Number) {
        return NumberBytesOf(value);
    }
    const auto* const binary = std::get_if<std::vector<std::byte>>(&value);
    if (type != RegistryType::Binary || binary == nullptr) {
        return std::nullopt;
    }
    return CharactersOf(*binary);
}

std::optional<RegistryValue> ValueOfBytes(std::int16_t type, const std::string& bytes) {
    if (type == RegistryType::Text) {
        std::string text = bytes;
        if (text.ends_with('\0')) {
            text.pop_back();
        }
        text = MadeUtf8(text);
        return IsReadableLength(text) ? std::optional<RegistryValue>(text) : std::nullopt;
    }
    if (type == RegistryType::Number && bytes.size() <= sizeof(std::int32_t)) {
        return NumberOf(bytes);
    }
    if (type == RegistryType::Binary && bytes.size() <= LongestBinary) {
        return BinaryOf(bytes);
    }
    return std::nullopt;
}

} // namespace quend::registry
