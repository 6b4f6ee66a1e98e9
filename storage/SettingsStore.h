#pragma once

#include "Failure.h"
#include "Settings.h"

#include <vector>

class RegistryAPI;

/// How many offers can be displayed at a time.
inline constexpr int FewestOffersDisplayed = 1;
inline constexpr int MostOffersDisplayed = 15;

/// What the store holds, as far as it can be used.
struct StoredSettings {
    Settings settings;
    std::vector<Failure> failures; ///< the source is the name of the value that was refused
};

/// Reads the settings but the language, which is needed earlier. A value that is missing has its
/// default, without a failure: 6 offers, terms in years, no picture, no folder. So has one that
/// cannot be, with a failure: 6 for a number of offers out of range, 13 for a text that is none.
/// Whether the picture exists is not looked at.
StoredSettings LoadSettings(const RegistryAPI& store);

/// Writes the settings and the language in use, all in one step. Texts that are empty are deleted.
/// The key must exist. A store that cannot be written to keeps what it has; that is no failure.
void SaveSettings(const RegistryAPI& store, const Settings& settings);
