#pragma once

/// The key of the program in the user's store: its values are the settings, its subkeys the saved
/// worksheets.
inline constexpr const char* BaseKey = "Software\\Quend Halverworks\\Loan";
