#pragma once

#include <chrono>
#include <compare>

namespace quend::calc {

/// A calendar day: whole days since 30 December 1899. Zero, the default, means no date.
/// The range is 1 January of the year 1 to 31 December 9999; a date outside raises OverflowFailure.
/// Does not read the clock and does not format.
class Date {
public:
    static constexpr int LastYear = 9999;

    constexpr Date() = default;

    static constexpr Date FromDays(int days) {
        if (days < FirstDay || days > LastDay) {
            RaiseOverflow();
        }
        return Date(days);
    }
    /// Raises OverflowFailure also for a day that does not exist, such as 31 April.
    static Date FromCalendar(int year, int month, int day);

    /// The last day of the range.
    static constexpr Date Last() { return Date(LastDay); }

    constexpr int Days() const { return m_days; }
    constexpr bool IsNone() const { return m_days == 0; }
    /// No date gives 30 December 1899.
    std::chrono::year_month_day Calendar() const;

    /// No date counts as 30 December 1899. A step by a month: MonthlyDates (DueDates.h).
    Date PlusDays(int days) const;

    friend constexpr bool operator==(Date, Date) = default;
    friend constexpr auto operator<=>(Date left, Date right) {
        return left.m_days <=> right.m_days;
    }

private:
    static constexpr std::chrono::sys_days DayZero = std::chrono::year(1899) / 12 / 30;
    static constexpr int FirstDay =
        (std::chrono::sys_days(std::chrono::year(1) / 1 / 1) - DayZero).count();
    static constexpr int LastDay =
        (std::chrono::sys_days(std::chrono::year(LastYear) / 12 / 31) - DayZero).count();

    explicit constexpr Date(int days) : m_days(days) {}

    [[noreturn]] static void RaiseOverflow();

    int m_days = 0;
};

} // namespace quend::calc
