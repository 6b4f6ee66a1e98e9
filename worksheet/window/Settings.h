#pragma once

#include <QString>

namespace quend::window {

/// The user's settings while the program runs. Does not know where they are stored.
struct Settings {
    int loansDisplayed = 5; ///< the index of the last row that shows without scrolling
    bool termInMonths = false;
    QString wallpaper;          ///< path of the background picture; empty: none
    QString wallpaperDirectory; ///< the folder to look for the next picture; empty: anywhere
};

} // namespace quend::window
