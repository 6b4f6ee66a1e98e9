#include "RegistryAPI.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace quend::registry {

namespace {

// Relative folders are ignored: they would depend on the working directory.

std::filesystem::path HomeFolder() {
    const char* const home = std::getenv("HOME");
    if (home != nullptr && std::filesystem::path(home).is_absolute()) {
        return home;
    }
    const passwd* const user = getpwuid(getuid());
    return user != nullptr ? user->pw_dir : "/";
}

std::filesystem::path DataFolder() {
    const char* const data = std::getenv("XDG_DATA_HOME");
    return data != nullptr && std::filesystem::path(data).is_absolute()
               ? std::filesystem::path(data)
               : HomeFolder() / ".local" / "share";
}

} // namespace

std::filesystem::path RegistryAPI::UserStore() {
    return DataFolder() / "Quend Halverworks" / "Loan.store";
}

} // namespace quend::registry
