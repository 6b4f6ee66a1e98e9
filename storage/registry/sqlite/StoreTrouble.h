#pragma once

#include "RegistryAPI.h"

#include <filesystem>

namespace quend::registry {

class StoreError;

/// Why the store at this path could not be read or written: SQLite's reason or, if SQLite gives
/// none, the current state of the file system.
StoreTrouble TroubleOf(const StoreError& error, const std::filesystem::path& store);

} // namespace quend::registry
