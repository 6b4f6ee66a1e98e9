#include "TestStore.h"

#include <cstdlib>

namespace {

std::filesystem::path NewFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "loan-store-XXXXXX").string();
    return mkdtemp(name.data());
}

} // namespace

TestStore::TestStore() : m_folder(NewFolder()), m_registry(m_folder / "data" / "Loan.store") {}

TestStore::~TestStore() { std::filesystem::remove_all(m_folder); }
