#pragma once

#include <QString>

#include <cstdint>

/// The language identifier of a locale name: "es_MX" is 0x080A, "en_US.UTF-8" 0x0409, a language
/// without a country its neutral identifier ("es" is 0x000A). An encoding or modifier does not
/// count. 0 for "C", "POSIX", "" and names that nobody gave an identifier.
std::uint16_t LanguageIdentifierOf(const QString& localeName);

/// The identifier of the language in which this user reads messages; 0 when none is set.
std::uint16_t UserDefaultLanguageIdentifier();
