#include "Date.h"

#include "Failure.h"
#include "Overflow.h"

namespace quend::calc {

Date Date::FromCalendar(int year, int month, int day) {
    // std::chrono's month and day hold at most 255 and would truncate larger values.
    if (year < 1 || year > LastYear || month < 1 || month > 12 || day < 1 || day > 31) {
        RaiseOverflow();
    }
    const auto calendar = std::chrono::year(year) / month / day;
    if (!calendar.ok()) {
        RaiseOverflow();
    }
    return Date(static_cast<int>((std::chrono::sys_days(calendar) - DayZero).count()));
}

std::chrono::year_month_day Date::Calendar() const { return DayZero + std::chrono::days(m_days); }

Date Date::PlusDays(int days) const {
    int sum = 0;
    if (SumOverflows(m_days, days, sum)) {
        RaiseOverflow();
    }
    return FromDays(sum);
}

void Date::RaiseOverflow() { throw OverflowFailure("Date"); }

} // namespace quend::calc
