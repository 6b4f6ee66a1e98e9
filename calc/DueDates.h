#pragma once

#include "Date.h"

namespace quend::calc {

/// A date that advances month by month. It keeps the calendar fields beside the day count, so that
/// a step needs no conversion. A day reduced to a short month's end stays reduced.
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
        if (m_month == 2) {
            return std::chrono::year(m_year).is_leap() ? 29 : 28;
        }
        return 30 + static_cast<int>((m_month ^ (m_month >> 3U)) & 1U);
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
