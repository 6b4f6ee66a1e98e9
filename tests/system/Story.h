#pragma once

#include "Drive.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

/// One run of the program: the actions of the user, and what the window shows.
struct Story {
    const char* name;
    const char* locale;
    std::string steps;
    std::string shown;
};

inline void PrintTo(const Story& story, std::ostream* out) {
    *out << story.name << ' ' << story.locale;
}

inline void ExpectShown(const Story& story) {
    const DriveResult result = Drive(story.locale, story.steps);
    EXPECT_EQ(result.readings, story.shown);
    EXPECT_EQ(result.complaints, "");
}
