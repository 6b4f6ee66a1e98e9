#pragma once

#include "Date.h"
#include "DueDates.h"
#include "Frequency.h"
#include "Money.h"

#include <cstdint>

/// What a loan is repaid from, at the moment its schedule starts.
struct ScheduleTerms {
    Money balance;
    double rate = 0.0; ///< annual, as a fraction
    Money payment;     ///< of one period, its escrow share included
    Money escrowShare; ///< of one period
    /// Null for a code that is none of the four: no interest is borne and no date moves.
    const Frequency* frequency = nullptr;
    Date start; ///< no date counts as 30 December 1899
};

/// What one period of the schedule does, or several equal ones.
struct SchedulePeriod {
    Date date;      ///< after the period's step
    Money interest; ///< to the nearest ten-thousandth
    Money principal;
    Money balance;            ///< after the period, or after the last of the equal ones
    std::int64_t repeats = 1; ///< how many periods bear this interest and principal each
};

/// When a loan is repaid, and the interest it bears until then.
struct Payoff {
    Date date;
    Money interest;
    std::int64_t periods = 0;
    Money lastPrincipal; ///< of the last period, which alone may differ from the payment
    Money lastInterest;
};

struct ScheduleTotals {
    Date payoff;
    Money interest;
    Money paid; ///< escrow share, principal part and interest of every period
    std::int64_t periods = 0;
};

/// The amortization schedule, the one of offers and of the loan held today. In every period the
/// balance bears interest, and what the payment leaves after escrow share and interest repays
/// principal. A principal part greater than the balance is cut to it and does not advance the date;
/// one that exactly clears the balance does. A zero balance has no period and no date.
///
/// It always ends: with the payoff, or with OverflowFailure. That is raised
/// - at once, as NeverRepaidFailure, when a positive balance can never fall again: its principal
/// part is zero, or it is
///   below zero and the rate is not, so that each period adds at least as much as the last;
/// - when a payment date would lie past the last date, which bounds whatever still may fall, as a
///   balance may that grows under a negative rate;
/// - when an amount leaves the range of money, or a rate makes no number.
///
/// The watch is called with a SchedulePeriod after each period; the schedule itself keeps none.
/// With a code that moves no date, equal periods come as one record, and the last as another.
template <typename Watch>
Payoff RunToPayoff(const ScheduleTerms& terms, Watch watch);
Payoff RunToPayoff(const ScheduleTerms& terms);

/// The same with the sum of all payments, which raises OverflowFailure on its own account.
template <typename Watch>
ScheduleTotals RunSchedule(const ScheduleTerms& terms, Watch watch);
ScheduleTotals RunSchedule(const ScheduleTerms& terms);

// How it runs. Nobody outside this header calls what follows.

namespace ScheduleLoop {

/// The balance can never fall again.
[[noreturn]] void RaiseEndless();
/// Sums what was paid: the payment in every period but the last.
ScheduleTotals Totals(const ScheduleTerms& terms, const Payoff& payoff);

/// Is a balance whose period repays this principal above zero for good? From a principal part of
/// zero on nothing changes. Below zero the balance grows, and with it the interest; only under a
/// negative rate does that help to repay.
inline bool IsEndless(Money balance, Money principal, double rate) {
    return principal <= Money() && balance > Money() && (principal.IsZero() || !(rate < 0.0));
}

/// The frequency is resolved by the caller: the loop knows only its dates and two numbers.
template <typename Dates, typename Watch>
Payoff RunPeriods(const ScheduleTerms& terms, Dates dates, Watch& watch) {
    const double year = terms.frequency->interestYear;
    const double parts = terms.frequency->interestParts;
    const double rate = terms.rate;
    const Money available = terms.payment - terms.escrowShare;
    Money balance = terms.balance;
    Payoff payoff;
    while (true) {
        const Money interest = Money::FromDouble(balance.ToDouble() * rate / year * parts);
        Money principal = available - interest;
        if (principal > balance) {
            principal = balance;
        } else if (IsEndless(balance, principal, rate)) {
            RaiseEndless();
        } else {
            dates.Step();
        }
        payoff.interest += interest;
        balance -= principal;
        ++payoff.periods;
        watch(SchedulePeriod{dates.Current(), interest, principal, balance, 1});
        if (balance.IsZero()) {
            payoff.date = dates.Current();
            payoff.lastPrincipal = principal;
            payoff.lastInterest = interest;
            return payoff;
        }
    }
}

/// No interest and no date: as many equal periods as the balance holds, then what is left of it.
template <typename Watch>
Payoff Divide(const ScheduleTerms& terms, Watch& watch) {
    const Money available = terms.payment - terms.escrowShare;
    const bool owed = terms.balance > Money();
    if (owed ? available <= Money() : available < terms.balance) {
        RaiseEndless();
    }
    const std::int64_t balance = terms.balance.TenThousandths();
    const std::int64_t equal = owed ? (balance - 1) / available.TenThousandths() : 0;
    const Money last = Money::FromTenThousandths(balance - equal * available.TenThousandths());
    if (equal > 0) {
        watch(SchedulePeriod{terms.start, Money(), available, last, equal});
    }
    watch(SchedulePeriod{terms.start, Money(), last, Money(), 1});
    return {terms.start, Money(), equal + 1, last, Money()};
}

} // namespace ScheduleLoop

template <typename Watch>
Payoff RunToPayoff(const ScheduleTerms& terms, Watch watch) {
    if (terms.balance.IsZero()) {
        return {};
    }
    if (terms.frequency == nullptr) {
        return ScheduleLoop::Divide(terms, watch);
    }
    switch (terms.frequency->step) {
    case DateStep::Month:
        return ScheduleLoop::RunPeriods(terms, MonthlyDates(terms.start), watch);
    case DateStep::HalfMonth:
        return ScheduleLoop::RunPeriods(terms, HalfMonthlyDates(terms.start), watch);
    case DateStep::Days:
        break;
    }
    const DailyDates dates(terms.start, terms.frequency->interestParts);
    return ScheduleLoop::RunPeriods(terms, dates, watch);
}

template <typename Watch>
ScheduleTotals RunSchedule(const ScheduleTerms& terms, Watch watch) {
    return ScheduleLoop::Totals(terms, RunToPayoff(terms, watch));
}
