#include "AccruedInterest.h"

#include "ActuarialRate.h"
#include "Failure.h"
#include "ScheduleEnd.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>

namespace quend::comparison {

namespace {

constexpr std::int64_t PerCent = 100;
constexpr std::int64_t MostCents = std::numeric_limits<std::int64_t>::max() / PerCent;

bool IsRepaidBy(const DatedLoan& loan, Date day) {
    AccrualPeriods periods(loan);
    bool repaid = false;
    try {
        RunToPayoff(loan.terms, [&](const SchedulePeriod& period) {
            const bool inTime = periods.Next(period.date).end <= day;
            repaid = inTime && period.balance.IsZero();
            return inTime;
        });
    } catch (const OverflowFailure&) {
        return false;
    }
    return repaid;
}

Money OfCents(std::int64_t cents) { return Money::FromTenThousandths(cents * PerCent); }

std::int64_t CentsNotBelow(Money amount) {
    const std::int64_t count = amount.TenThousandths();
    return count / PerCent + (count % PerCent > 0 ? 1 : 0);
}

/// With which the schedule repays the loan by the day, but for the rounding of each period.
std::int64_t EstimateInCents(const DatedLoan& loan, Date day) {
    const std::int64_t ended =
        AccrualPeriods(loan).StepsUntil(day) + (loan.accrual == Accrual::BeforePayment ? 1 : 0);
    const std::array<CashFlows, 1> unit{{{.amount = 1.0, .count = ended, .periods = 1}}};
    const double units =
        loan.terms.balance.ToDouble() / PresentValue(unit, RateOfPeriod(loan.terms)) +
        loan.terms.escrowShare.ToDouble();
    const double cents = std::ceil(units * PerCent);
    const bool isInRange = std::abs(cents) < static_cast<double>(MostCents);
    return isInRange ? static_cast<std::int64_t>(cents) : MostCents;
}

/// The least number that suffices, where `low` does not and no number above one that does fails;
/// none up to the most. Searched outwards from a guess in growing steps.
template <typename Suffices>
std::optional<std::int64_t> LeastAbove(std::int64_t low, std::int64_t guess, Suffices suffices) {
    std::int64_t high = std::max(guess, low + 1);
    std::int64_t step = 1;
    if (suffices(high)) {
        while (high - low > step && suffices(high - step)) {
            high -= step;
            step *= 2;
        }
        low = std::max(low, high - step);
    } else {
        do {
            if (high == MostCents) {
                return std::nullopt;
            }
            low = high;
            high = low > MostCents - step ? MostCents : low + step;
            step *= 2;
        } while (!suffices(high));
    }
    while (high - low > 1) {
        const std::int64_t middle = std::midpoint(low, high);
        (suffices(middle) ? high : low) = middle;
    }
    return high;
}

} // namespace

std::optional<Money> CostByDay(const DatedLoan& loan, Money closing, Date today, Date day) {
    constexpr std::int64_t BetweenTries = 256;
    const double rate = RateOfPeriod(loan.terms);
    AccrualPeriods periods(loan);
    Money byDay = closing;
    Money all = closing;
    std::int64_t later = 0;
    auto end = ScheduleEnd::Unclear;
    try {
        RunToPayoff(loan.terms, [&](const SchedulePeriod& period) {
            const AccrualPeriod days = periods.Next(period.date);
            byDay += AccruedBetween(today, day, days, period.interest);
            all += AccruedBetween(today, days.end, days, period.interest);
            if (days.end >= day && !period.balance.IsZero() && later++ % BetweenTries == 0) {
                end = EndAfter(period, rate, periods.StepsUntil(Date::Last()), all);
            }
            return end == ScheduleEnd::Unclear;
        });
    } catch (const OverflowFailure&) {
        return std::nullopt;
    }
    return end == ScheduleEnd::TooLate ? std::nullopt : std::optional(byDay);
}

std::optional<Money> LeastPaymentUntil(const DatedLoan& loan, Date day, Money atLeast) {
    const auto suffices = [&](std::int64_t cents) {
        DatedLoan tried = loan;
        tried.terms.payment = OfCents(cents);
        return IsRepaidBy(tried, day);
    };
    const std::int64_t least = CentsNotBelow(atLeast);
    // Otherwise the search would go on to the greatest payment.
    if (least > MostCents || AccrualPeriods(loan).Next(loan.terms.start).end > day) {
        return std::nullopt;
    }
    if (suffices(least)) {
        return OfCents(least);
    }
    const auto found = LeastAbove(least, EstimateInCents(loan, day), suffices);
    return found ? std::optional(OfCents(*found)) : std::nullopt;
}

} // namespace quend::comparison
