#pragma once

#include <QString>

/// What the user has set, as long as the program runs. Does not know where it is kept.
struct Settings {
    int loansDisplayed = 5; ///< the index of the last row that shows without scrolling
    bool termInMonths = false;
    QString wallpaper;          ///< path of the background picture; empty: none
    QString wallpaperDirectory; ///< where the next picture is looked for; empty: anywhere
};
