#pragma once

#include "RegistryAPI.h"

/// Where the program's key stands: what it keeps is this user's own.
inline constexpr RegistryRoot StoreRoot = RegistryRoot::CurrentUser;

/// The key of the program in the user's store: its values are the settings, its subkeys the saved
/// worksheets.
inline constexpr const char* BaseKey = "Software\\Quend Halverworks\\Loan";

/// Every worksheet repeats its name in a value, by which a repair can find it again.
inline constexpr const char* LoanNameName = "LoanName";
inline NamedKeys NamedLoans() { return {StoreRoot, BaseKey, LoanNameName}; }
