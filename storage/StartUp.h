#pragma once

#include <QString>

#include <cstdint>

class RegistryAPI;

/// Makes sure of the program's key in the store, and chooses the language: the one that the user
/// has set, otherwise by the user's language identifier. Throws Failure 1001 when the key cannot be
/// made.
void PrepareKeyAndLanguage(const RegistryAPI& store, std::uint16_t languageIdentifier);
