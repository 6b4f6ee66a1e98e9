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

/// What the step "dialog" reads of the message about a raised payment.
inline const std::string Notice =
    "dialog\tThe payment you intend to make cannot be lower than the payment calculated for the "
    "offer. It has been set to the calculated payment; you can enter a higher one.\n";
inline const std::string NoticeInSpanish =
    "dialog\tEl pago que piensa hacer no puede ser menor que el pago calculado para la oferta. Se "
    "fijó en el pago calculado; puede escribir uno mayor.\n";

inline void PrintTo(const Story& story, std::ostream* out) {
    *out << story.name << ' ' << story.locale;
}

inline void ExpectShown(const Story& story) {
    const DriveResult result = Drive(story.locale, story.steps);
    EXPECT_EQ(result.readings, story.shown);
    EXPECT_EQ(result.complaints, "");
}
