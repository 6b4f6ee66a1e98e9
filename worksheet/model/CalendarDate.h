#pragma once

#include "Date.h"

#include <QDate>

/// Between the days of the arithmetic and the toolkit's calendar. No date on one side is none on
/// the other.
inline QDate ToCalendar(Date date) {
    if (date.IsNone()) {
        return {};
    }
    const std::chrono::year_month_day day = date.Calendar();
    return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day()))};
}

inline Date FromCalendar(const QDate& date) {
    return date.isValid() ? Date::FromCalendar(date.year(), date.month(), date.day()) : Date();
}
