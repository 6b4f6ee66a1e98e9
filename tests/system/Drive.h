#pragma once

#include <string>

/// The result of one run of the program.
struct DriveResult {
    /// One line for each item the scenario read: the control, a tab, its text.
    std::string readings;
    /// Why the scenario did not finish, and the program's terminal output; empty on success.
    std::string complaints;
};

/// What shows the program's windows.
enum class Desktop { XServer, Wayland };

/// Starts the program, by default the one just built, with the locale on a separate desktop, plays
/// the scenario in its window and ends it. The steps are those of scripts/driver. Does not judge
/// the results.
DriveResult Drive(const std::string& locale, const std::string& scenario,
                  const std::string& program = QUEND_PROGRAM_DIR "/Loan",
                  Desktop desktop = Desktop::XServer);
