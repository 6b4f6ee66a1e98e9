#pragma once

#include "Date.h"

#include <array>

namespace quend::calc {

/// A date that advances month by month, to the same day of the next month, or to that month's last
/// day where it has no such day; a day once reduced stays reduced. Keeps the calendar fields beside
/// the day count, so that a step needs no conversion.
class MonthlyDates {
public:
    explicit MonthlyDates(Date start)
        : m_date(start), m_year(static_cast<int>(start.Calendar().year())),
          m_month(static_cast<unsigned>(start.Calendar().month())),
          m_day(static_cast<int>(static_cast<unsigned>(start.Calendar().day()))) {}

    Date Current() const { return m_date; }
    /// Raises OverflowFailure past the last date.
    void Step() {
        const int leftOfMonth = DaysInMonth() - m_day;
        if (++m_month > 12) {
            m_month = 1;
            ++m_year;
        }
        const int length = DaysInMonth();
        m_day = m_day < length ? m_day : length;
        m_date = Date::FromDays(m_date.Days() + leftOfMonth + m_day);
    }

private:
    int DaysInMonth() const {
        constexpr std::array Lengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        const bool isLeapDay = m_month == 2 && std::chrono::year(m_year).is_leap();
        return Lengths[m_month - 1] + (isLeapDay ? 1 : 0);
    }

    Date m_date;
    int m_year;
    unsigned m_month;
    int m_day;
};

/// Two dates in every month, the second 14 days after the first.
class HalfMonthlyDates {
public:
    explicit HalfMonthlyDates(Date start) : m_first(start), m_date(start) {}

    Date Current() const { return m_date; }
    /// Raises OverflowFailure past the last date.
    void Step() {
        if (m_secondHalf) {
            m_first.Step();
            m_date = m_first.Current();
        } else {
            m_date = Date::FromDays(m_date.Days() + 14);
        }
        m_secondHalf = !m_secondHalf;
    }

private:
    MonthlyDates m_first; ///< of the pair
    Date m_date;
    bool m_secondHalf = false;
};

/// Dates a fixed number of days apart.
class DailyDates {
public:
    DailyDates(Date start, int days) : m_date(start), m_days(days) {}

    Date Current() const { return m_date; }
    /// Raises OverflowFailure past the last date.
    void Step() { m_date = Date::FromDays(m_date.Days() + m_days); }

private:
    Date m_date;
    int m_days;
};

} // namespace quend::calc
