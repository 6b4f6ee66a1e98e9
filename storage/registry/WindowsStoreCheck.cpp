#include "StoreCheck.h"

// The platform looks after its registry itself.

StoreCondition PrepareStore(const std::filesystem::path&, const std::string&) { return {}; }

bool RepairStore(const std::filesystem::path&, const std::string&) { return false; }

void TidyStore(const std::filesystem::path&) {}
