#include "AccruedInterest.h"

#include "Failure.h"

#include <limits>
#include <numeric>

namespace quend::comparison {

namespace {

constexpr std::int64_t PerCent = 100;

/// Whether a balance is repaid before the last date in any case: the principal parts never fall, as
/// the rate is not negative, and no date step is longer than 31 days.
bool EndsInTime(const SchedulePeriod& period) {
    const std::int64_t stepsLeft = (Date::Last().Days() - period.date.Days()) / 31;
    const std::int64_t principal = period.principal.TenThousandths();
    return principal > 0 && period.balance.TenThousandths() / principal < stepsLeft;
}

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

} // namespace

std::optional<Money> AccruedInterest(const DatedLoan& loan, Date today, Date day) {
    AccrualPeriods periods(loan);
    Money accrued;
    try {
        RunToPayoff(loan.terms, [&](const SchedulePeriod& period) {
            const AccrualPeriod days = periods.Next(period.date);
            accrued += AccruedBetween(today, day, days, period.interest);
            return days.end < day || !EndsInTime(period);
        });
    } catch (const OverflowFailure&) {
        return std::nullopt;
    }
    return accrued;
}

std::optional<Money> LeastPaymentUntil(const DatedLoan& loan, Date day, Money atLeast) {
    const auto suffices = [&](std::int64_t cents) {
        DatedLoan tried = loan;
        tried.terms.payment = OfCents(cents);
        return IsRepaidBy(tried, day);
    };
    // Otherwise the search would go on to the greatest payment.
    if (AccrualPeriods(loan).Next(loan.terms.start).end > day) {
        return std::nullopt;
    }
    std::int64_t low = CentsNotBelow(atLeast);
    if (suffices(low)) {
        return OfCents(low);
    }
    constexpr std::int64_t Highest = std::numeric_limits<std::int64_t>::max() / PerCent;
    std::int64_t high = low;
    do {
        if (high > Highest / 2) {
            return std::nullopt;
        }
        low = high;
        high = high > 0 ? high * 2 : 1;
    } while (!suffices(high));
    while (high - low > 1) {
        const std::int64_t middle = std::midpoint(low, high);
        (suffices(middle) ? high : low) = middle;
    }
    return OfCents(high);
}

} // namespace quend::comparison
