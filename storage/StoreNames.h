#pragma once

#include "RegistryAPI.h"
#include "StorageNames.h"

namespace quend::storage {

/// The root of the program's key: all data is per user.
inline constexpr RegistryRoot StoreRoot = RegistryRoot::CurrentUser;

/// The program's key in the user's store. Its values are the settings, its subkeys the saved
/// worksheets.
inline constexpr const char* BaseKey = "Software\\Quend Halverworks\\Loan";

/// Its subkeys are worksheets that were closed unsaved, for the next start.
inline constexpr const char* UnsavedKey = "Software\\Quend Halverworks\\Loan.Unsaved";

/// Each worksheet repeats its name in this value, so that recovery can find it again.
inline constexpr const char* LoanNameName = "LoanName";
inline NamedKeys NamedLoans() { return {StoreRoot, BaseKey, LoanNameName}; }

} // namespace quend::storage
