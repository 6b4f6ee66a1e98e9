#pragma once

#include "StorageNames.h"

#include <QString>

#include <cstdint>

namespace quend::registry {
class RegistryAPI;
}

namespace quend::storage {

/// Creates the program's key in the store if missing, and selects the language: the user's setting,
/// otherwise by the user's language identifier. Throws Failure 1001 when the key cannot be created.
void PrepareKeyAndLanguage(const RegistryAPI& store, std::uint16_t languageIdentifier);

} // namespace quend::storage
