#pragma once

#include "RegistryAPI.h"

#include <filesystem>

class StoreError;

/// Why the store at this place could not be read or written: what SQLite says and, where it says
/// only that it could not, what the file system says of the place now.
StoreTrouble TroubleOf(const StoreError& error, const std::filesystem::path& store);
