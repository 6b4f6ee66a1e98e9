#pragma once

#include "Comparison.h"
#include "Money.h"
#include "WindowNames.h"

#include <QString>

namespace quend::window {

/// The user's settings while the program runs. Does not know where they are stored.
struct Settings {
    int loansDisplayed = 5; ///< the index of the last row that shows without scrolling
    bool termInMonths = false;
    QString wallpaper;          ///< path of the background picture; empty: none
    QString wallpaperDirectory; ///< the folder to look for the next picture; empty: anywhere
    // How offers are compared.
    int compareYears = 5; ///< 1 to 50
    comparison::PaymentChoice comparePayments = comparison::PaymentChoice::Intended;
    Money compareMonthly{}; ///< for PaymentChoice::Monthly
};

} // namespace quend::window
