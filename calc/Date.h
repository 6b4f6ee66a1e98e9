#pragma once

#include <chrono>
#include <compare>

namespace quend::calc {

/// A calendar day: whole days since 30 December 1899. Zero, the default, means no date.
/// The range is 1 January of the year 1 to 31 December 9999; a date outside raises OverflowFailure.
/// Does not read the clock and does not format.
class Date {
public:
    constexpr Date() = default;

    static constexpr Date FromDays(int days) {
        if (days < FirstDay || days > LastDay) {
            RaiseOverflow();
        }
        return Date(days);
    }
    /// Raises OverflowFailure also for a day that does not exist, such as 31 April.
    static Date FromCalendar(int year, int month, int day);

    constexpr int Days() const { return m_days; }
    constexpr bool IsNone() const { return m_days == 0; }
    /// No date gives 30 December 1899.
    std::chrono::year_month_day Calendar() const;

    /// No date counts as 30 December 1899 in both.
    Date PlusDays(int days) const;
    /// The same day of the next month, or that month's last day where it has no such day.
    Date PlusOneMonth() const;

    friend constexpr bool operator==(Date, Date) = default;
    friend constexpr auto operator<=>(Date left, Date right) {
        return left.m_days <=> right.m_days;
    }

private:
    static constexpr int FirstDay = -693'593;
    static constexpr int LastDay = 2'958'465;

    explicit constexpr Date(int days) : m_days(days) {}

    [[noreturn]] static void RaiseOverflow();

    int m_days = 0;
};

} // namespace quend::calc
