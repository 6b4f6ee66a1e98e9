#pragma once

#include "Failure.h"
#include "Settings.h"
#include "StorageNames.h"

#include <cstdint>
#include <vector>

namespace quend::registry {
class RegistryAPI;
}

namespace quend::storage {

/// How many offers can be displayed at a time.
inline constexpr int FewestOffersDisplayed = 1;
inline constexpr int MostOffersDisplayed = 15;

/// At start-up: creates the program's key in the store if missing, and selects the language: the
/// user's setting, otherwise by the user's language identifier. Throws Failure 1001 when the key
/// cannot be created.
void PrepareKeyAndLanguage(const RegistryAPI& store, std::uint16_t languageIdentifier);

/// The contents of the store, as far as they are usable.
struct StoredSettings {
    Settings settings;
    std::vector<Failure> failures; ///< the source is the name of the rejected value
};

/// Reads the settings except the language, which is needed earlier. A missing value gets its
/// default without a failure: 6 offers, terms in years, no picture, no folder, and a comparison of
/// the intended payments over 5 years. An invalid value gets its default with a failure: number 6
/// for a number out of range, 13 for an invalid text. Does not check whether the picture exists.
StoredSettings LoadSettings(const RegistryAPI& store);

/// Writes the settings and the current language in one transaction. Empty texts, and
/// the defaults of the comparison, are deleted. The key must exist. A read-only store stays
/// unchanged; that is not a failure.
void SaveSettings(const RegistryAPI& store, const Settings& settings);

} // namespace quend::storage
