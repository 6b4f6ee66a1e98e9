#include "QuendNames.h"
#include "TestStore.h"

namespace {

void DeleteTree(const RegistryAPI& registry, const std::string& key) {
    for (const std::string& name : registry.GetSubKeys(RegistryRoot::CurrentUser, key)) {
        if (name.find_first_not_of(' ') != std::string::npos) {
            DeleteTree(registry, key + '\\' + name);
        }
    }
    registry.DeleteKey(RegistryRoot::CurrentUser, key);
}

} // namespace

TestStore::TestStore() : m_registry(RegistryAPI::UserStore()) { DeleteTree(m_registry, BaseKey); }

TestStore::~TestStore() { DeleteTree(m_registry, BaseKey); }
