#pragma once

#include "Date.h"
#include "ModelNames.h"

#include <QDate>

namespace quend::model {

/// Converts between the dates of the arithmetic and QDate. No date on one side is no date on the
/// other.
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

} // namespace quend::model
