#include "AccruedInterest.h"

#include "ActuarialRate.h"
#include "Cents.h"
#include "Failure.h"
#include "LeastNumber.h"
#include "ScheduleEnd.h"

#include <algorithm>
#include <array>

namespace quend::comparison {

namespace {

bool IsRepaidBy(const DatedLoan& loan, Date day) {
    AccrualPeriods periods(loan);
    bool repaid = true; // where nothing is owed, no period says so
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

std::optional<Money> EstimatePaymentUntil(const DatedLoan& loan, Date day) {
    const std::int64_t steps = AccrualPeriods(loan).StepsUntil(day);
    // A period of an offer ends one date step after its payment, at the calendar's end without one.
    const std::int64_t ended =
        loan.accrual == Accrual::BeforePayment ? steps + 1 : std::max<std::int64_t>(steps, 1);
    const std::array unit{CashFlows{.amount = 1.0, .count = ended, .periods = 1}};
    const double repaying =
        loan.terms.balance.ToDouble() / PresentValue(unit, RateOfPeriod(loan.terms));
    try {
        return Money::FromDouble(repaying) + loan.terms.escrowShare;
    } catch (const OverflowFailure&) {
        return std::nullopt;
    }
}

std::optional<Money> LeastPaymentUntil(const DatedLoan& loan, Date day, Money atLeast) {
    const auto suffices = [&](std::int64_t cents) {
        DatedLoan tried = loan;
        tried.terms.payment = Cents::ToMoney(cents);
        return IsRepaidBy(tried, day);
    };
    const std::int64_t least = Cents::NotBelow(atLeast);
    // Otherwise the search would go on to the greatest payment.
    if (least > Cents::MostCents || AccrualPeriods(loan).Next(loan.terms.start).end > day) {
        return std::nullopt;
    }
    const std::optional<Money> estimate = EstimatePaymentUntil(loan, day);
    if (!estimate) {
        return std::nullopt;
    }
    const std::int64_t guess = std::clamp(Cents::NotBelow(*estimate), least, Cents::MostCents);
    const auto found = LeastNumber(least - 1, Cents::MostCents, guess, suffices);
    return found ? std::optional(Cents::ToMoney(*found)) : std::nullopt;
}

} // namespace quend::comparison
