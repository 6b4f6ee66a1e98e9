#pragma once

#include "ComparisonNames.h"
#include "Date.h"
#include "Schedule.h"

#include <cstdint>

namespace quend::comparison {

/// The same day so many months later (negative: earlier), cut to that month's last day; counted
/// from the given day, not month by month. Outside the range of dates the nearest date in it.
Date MonthAfter(Date day, int months);

/// A month, 15 days or the days of the frequency; not before the first date.
Date OnePeriodBefore(Date day, const Frequency& frequency);

/// When the interest of a payment accrues.
enum class Accrual {
    AfterPayment, ///< until the next payment: an offer, whose first period begins today
    BeforePayment ///< since the last payment: the loan held today
};

/// A schedule and when its interest accrues. The frequency is known, the rate zero or more.
struct DatedLoan {
    ScheduleTerms terms; ///< its start is the date of the first payment
    Accrual accrual;
};

/// The days from `start` to `end`.
struct AccrualPeriod {
    Date start;
    Date end;
};

/// Finds the accrual periods of a schedule while it runs. Computes no interest.
class AccrualPeriods {
public:
    explicit AccrualPeriods(const DatedLoan& loan);

    /// The days in which the interest of the next schedule period accrues. Call it once for each
    /// period of the schedule, in order, with the date that the schedule reports. Past the last
    /// date an end is that date.
    AccrualPeriod Next(Date reported);

    /// The number of date steps from the next payment to the last one due by that day, which is no
    /// earlier. Exact up to Date::Last(); otherwise it may be too low by one where the dates have
    /// been cut to a shorter month.
    std::int64_t StepsUntil(Date day) const;

private:
    Date AfterDue() const;

    const Frequency* m_frequency;
    Accrual m_accrual;
    Date m_before; ///< the payment before the next one
    Date m_due;    ///< the next payment
    bool m_secondOfPair = false;
};

/// The interest of a period that accrues from one day to another: by days in double, to the nearest
/// ten-thousandth; all of it, unchanged, where the days contain the period.
Money AccruedBetween(Date from, Date until, const AccrualPeriod& period, Money interest);

} // namespace quend::comparison
