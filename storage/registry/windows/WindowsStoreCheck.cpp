#include "StoreCheck.h"

namespace quend::registry {

// The platform maintains its registry itself.

StoreCondition PrepareStore(const std::filesystem::path&, const std::string&, const NamedKeys&) {
    return {};
}

StoreCondition RepairStore(const std::filesystem::path&, const std::string&, const NamedKeys&) {
    return {};
}

void TidyStore(const std::filesystem::path&) {}

} // namespace quend::registry
