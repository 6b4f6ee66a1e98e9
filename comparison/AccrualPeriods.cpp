#include "AccrualPeriods.h"

#include <algorithm>

namespace quend::comparison {

namespace {

Date PlusDays(Date day, int days) {
    const int latest = Date::Last().Days();
    const int earliest = Date::FromCalendar(1, 1, 1).Days();
    return Date::FromDays(std::clamp(day.Days() + days, earliest, latest));
}

/// The whole months from a day to another: the most with which MonthAfter is not later.
int MonthsBetween(Date from, Date until) {
    const auto first = from.Calendar();
    const auto last = until.Calendar();
    const auto months =
        (last.year() / last.month() - first.year() / first.month()) / std::chrono::months(1);
    return static_cast<int>(months) - (MonthAfter(from, static_cast<int>(months)) > until ? 1 : 0);
}

} // namespace

Date MonthAfter(Date day, int months) {
    const auto calendar = day.Calendar();
    const auto month = calendar.year() / calendar.month() + std::chrono::months(months);
    if (static_cast<int>(month.year()) > Date::LastYear) {
        return Date::Last();
    }
    if (static_cast<int>(month.year()) < 1) {
        return Date::FromCalendar(1, 1, 1);
    }
    const std::chrono::day last = (month / std::chrono::last).day();
    return Date::FromCalendar(
        static_cast<int>(month.year()), static_cast<int>(static_cast<unsigned>(month.month())),
        static_cast<int>(static_cast<unsigned>(std::min(calendar.day(), last))));
}

Date OnePeriodBefore(Date day, const Frequency& frequency) {
    switch (frequency.step) {
    case DateStep::Month:
        return MonthAfter(day, -1);
    case DateStep::HalfMonth:
        return PlusDays(day, -15);
    case DateStep::Days:
        break;
    }
    return PlusDays(day, -frequency.interestParts);
}

AccrualPeriods::AccrualPeriods(const DatedLoan& loan)
    : m_frequency(loan.terms.frequency), m_accrual(loan.accrual),
      m_before(OnePeriodBefore(loan.terms.start, *loan.terms.frequency)), m_due(loan.terms.start) {}

AccrualPeriod AccrualPeriods::Next(Date reported) {
    // The schedule takes no date step after a reduced last payment.
    const Date after = reported == m_due ? AfterDue() : reported;
    const AccrualPeriod days = m_accrual == Accrual::AfterPayment ? AccrualPeriod{m_due, after}
                                                                  : AccrualPeriod{m_before, m_due};
    m_before = m_due;
    m_due = after;
    m_secondOfPair = !m_secondOfPair;
    return days;
}

Date AccrualPeriods::AfterDue() const {
    switch (m_frequency->step) {
    case DateStep::Month:
        return MonthAfter(m_due, 1);
    case DateStep::HalfMonth:
        return m_secondOfPair ? MonthAfter(m_before, 1) : PlusDays(m_due, 14);
    case DateStep::Days:
        break;
    }
    return PlusDays(m_due, m_frequency->interestParts);
}

std::int64_t AccrualPeriods::StepsUntil(Date day) const {
    switch (m_frequency->step) {
    case DateStep::Month:
        return MonthsBetween(m_due, day);
    case DateStep::HalfMonth: {
        const Date firstOfPair = m_secondOfPair ? m_before : m_due;
        const int pairs = MonthsBetween(firstOfPair, day);
        const bool both = day.Days() - MonthAfter(firstOfPair, pairs).Days() >= 14;
        return 2 * pairs + (both ? 1 : 0) - (m_secondOfPair ? 1 : 0);
    }
    case DateStep::Days:
        break;
    }
    return (day.Days() - m_due.Days()) / m_frequency->interestParts;
}

Money AccruedBetween(Date from, Date until, const AccrualPeriod& period, Money interest) {
    if (from <= period.start && period.end <= until) {
        return interest;
    }
    const int days = std::min(until, period.end).Days() - std::max(from, period.start).Days();
    if (days <= 0) {
        return {};
    }
    return Money::FromDouble(interest.ToDouble() * days /
                             (period.end.Days() - period.start.Days()));
}

} // namespace quend::comparison
