#pragma once

#include "Date.h"
#include "QuendNames.h"

/// The same day of the next month, or that month's last day, by the standard library's calendar.
inline Date MonthAfter(Date date) {
    const auto next = date.Calendar() + std::chrono::months(1);
    const auto day = next.ok() ? next : next.year() / next.month() / std::chrono::last;
    return date.PlusDays(static_cast<int>(
        (std::chrono::sys_days(day) - std::chrono::sys_days(date.Calendar())).count()));
}
