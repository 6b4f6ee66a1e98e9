#pragma once

#include <QString>

#include <cstdint>

namespace quend::language {

/// The language identifier of a locale name: "es_MX" is 0x080A, "en_US.UTF-8" 0x0409, a language
/// without a country has its neutral identifier ("es" is 0x000A). Encodings and modifiers are
/// ignored. 0 for "C", "POSIX", "" and names without an identifier.
std::uint16_t LanguageIdentifierOf(const QString& localeName);

/// The identifier of the user's message language; 0 if none is set.
std::uint16_t UserDefaultLanguageIdentifier();

} // namespace quend::language
