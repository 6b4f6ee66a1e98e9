#include "Schedule.h"

#include "Failure.h"
#include "Overflow.h"

namespace quend::calc {

namespace {

constexpr auto Unwatched = [](const SchedulePeriod&) {};

} // namespace

void ScheduleLoop::RaiseEndless() { throw NeverRepaidFailure("Schedule"); }

ScheduleTotals ScheduleLoop::Totals(const ScheduleTerms& terms, const Payoff& payoff) {
    if (payoff.periods == 0) {
        return {};
    }
    std::int64_t fullPayments = 0;
    if (ProductOverflows(terms.payment.TenThousandths(), payoff.periods - 1, fullPayments)) {
        throw OverflowFailure("Schedule");
    }
    const Money lastPayment = terms.escrowShare + payoff.lastPrincipal + payoff.lastInterest;
    const Money paid = Money::FromTenThousandths(fullPayments) + lastPayment;
    return {payoff.date, payoff.interest, paid, payoff.periods};
}

Payoff RunToPayoff(const ScheduleTerms& terms) { return RunToPayoff(terms, Unwatched); }

ScheduleTotals RunSchedule(const ScheduleTerms& terms) {
    return ScheduleLoop::Totals(terms, RunToPayoff(terms));
}

} // namespace quend::calc
