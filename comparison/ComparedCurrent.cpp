#include "ComparedCurrent.h"

#include "AccruedInterest.h"
#include "Cents.h"
#include "Failure.h"
#include "Frequency.h"
#include "PaymentOfMonthly.h"

#include <algorithm>

namespace quend::comparison {

namespace {

/// As the main window shows it: without balance or payment nothing is left to pay.
void Fill(CurrentLoanComparison& result, const ScheduleTerms& terms) {
    try {
        ScheduleTotals totals;
        if (!terms.balance.IsZero() && !terms.payment.IsZero()) {
            totals = RunSchedule(terms);
        }
        result.amountLeft = totals.paid;
        result.interestLeft = totals.interest;
        if (!totals.payoff.IsNone()) {
            result.payoffDate = totals.payoff;
        }
    } catch (const OverflowFailure&) {
        result.overflow = true;
    }
}

DatedLoan WithComparedPayment(const ComparisonInput& input, const ScheduleTerms& terms) {
    DatedLoan loan{.terms = terms, .accrual = Accrual::BeforePayment};
    if (input.choice == PaymentChoice::Monthly) {
        loan.terms.payment =
            std::max(terms.payment,
                     PaymentOfMonthly(input.monthlyPayment, *terms.frequency, terms.escrowShare));
    }
    return loan;
}

/// Raises OverflowFailure if the loan takes no part because it is never repaid.
void RunCompared(const ComparisonInput& input, ComparedCurrent& current) {
    const int horizon = input.years * MonthsPerYear;
    current.costs = RunCosts(*current.loan, Money(), input.today, horizon);
    const ScheduleTerms& terms = current.loan->terms;
    current.result->figures = {
        .paymentCompared = terms.payment,
        .monthlyEquivalent = MonthlyOfPayment(terms.payment, *terms.frequency, terms.escrowShare),
        .totalCost = current.costs->last,
        .payoff = current.costs->payoff.date,
    };
    current.result->costByHorizon = current.costs->By(horizon);
    current.result->balanceAtHorizon = current.costs->balanceAtHorizon;
    current.result->paymentForHorizon =
        LeastPaymentUntil(*current.loan, HorizonDay(input.today, input.years), Cents::One);
}

} // namespace

ComparedCurrent CompareCurrent(const ComparisonInput& input) {
    const CurrentLoanInput& held = input.current;
    ComparedCurrent current;
    if (held == CurrentLoanInput()) {
        return current;
    }
    const ScheduleTerms terms{
        .balance = held.balance,
        .rate = held.rate,
        .payment = held.actualPayment,
        .escrowShare = EscrowShare(held.actualFrequency, input.escrowMonthly),
        .frequency = FindFrequency(held.actualFrequency),
        .start = held.nextPayment.IsNone() ? input.today : held.nextPayment,
    };
    Fill(current.result.emplace(), terms);
    if (held.balance <= Money() || terms.frequency == nullptr) {
        return current;
    }
    try {
        current.loan = WithComparedPayment(input, terms);
        if (held.actualPayment > Money()) {
            RunCompared(input, current);
        }
    } catch (const OverflowFailure&) {
        current.costs.reset(); // it is never repaid: no part, and no failure beside its own
    }
    return current;
}

} // namespace quend::comparison
