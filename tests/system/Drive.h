#pragma once

#include <string>

/// What came of one run of the program.
struct DriveResult {
    /// One line for each thing the scenario read: the control, a tab, the text it showed.
    std::string readings;
    /// Why the scenario could not be played to its end, and whatever the program wrote to its
    /// terminal; empty when all went well.
    std::string complaints;
};

/// Starts the program, by default the one that was built, under the locale on a desktop of its own,
/// plays the scenario in its window and ends it. The steps are those that scripts/driver knows.
/// Does not judge what is read.
DriveResult Drive(const std::string& locale, const std::string& scenario,
                  const std::string& program = QUEND_PROGRAM_DIR "/Loan");
