#pragma once

#include "Date.h"
#include "DueDates.h"
#include "Frequency.h"
#include "Money.h"
#include "Quantities.h"

#include <concepts>
#include <cstdint>
#include <type_traits>

namespace quend::calc {

/// The inputs of a schedule.
struct ScheduleTerms {
    Money balance;
    Rate rate;
    Money payment;     ///< of one period, including its escrow share
    Money escrowShare; ///< of one period
    /// Null for an unknown code: no interest accrues and the date does not advance.
    const Frequency* frequency = nullptr;
    Date start; ///< no date counts as 30 December 1899
};

/// The result of one schedule period, or of several equal ones.
struct SchedulePeriod {
    Date date;      ///< after the date step
    Money interest; ///< to the nearest ten-thousandth
    Money principal;
    Money balance;            ///< after the period, or after the last of the equal ones
    std::int64_t repeats = 1; ///< number of periods with this interest and principal each
};

/// The payoff date, and the interest until then.
struct Payoff {
    Date date;
    Money interest;
    std::int64_t periods = 0;
    Money lastPrincipal; ///< of the last period, the only one that may differ from the payment
    Money lastInterest;
};

struct ScheduleTotals {
    Date payoff;
    Money interest;
    Money paid; ///< escrow share, principal and interest of all periods
    std::int64_t periods = 0;
};

/// The amortization schedule of offers and of the current loan. In every period interest accrues on
/// the balance, and the rest of the payment after escrow share and interest repays principal. A
/// principal part greater than the balance is reduced to it and does not advance the date; one that
/// equals the balance does. A zero balance has no period and no date.
///
/// It always terminates: with the payoff, or with OverflowFailure, which is raised
/// - immediately, as NeverRepaidFailure, if a positive balance can never fall again: the principal
/// part is zero, or it is negative and the rate is not, so that each period adds at least as much
/// as the last;
/// - if a payment date would be past the last date; this bounds the cases where the balance may
/// still fall, such as a balance that grows under a negative rate;
/// - if an amount is outside the range of money, or the rate leads to NaN.
///
/// The watch is called with a SchedulePeriod after each period; the schedule stores none. For an
/// unknown code, all equal periods are reported as one record, and the last as another.
/// A watch that returns bool ends the run early with false: the payoff then has no date, and the
/// interest and periods until there. Without a known frequency the whole run is reported.
template <typename Watch>
Payoff RunToPayoff(const ScheduleTerms& terms, Watch watch);
Payoff RunToPayoff(const ScheduleTerms& terms);

/// As RunToPayoff, with the sum of all payments, which may also raise OverflowFailure.
template <typename Watch>
ScheduleTotals RunSchedule(const ScheduleTerms& terms, Watch watch);
ScheduleTotals RunSchedule(const ScheduleTerms& terms);

// Implementation. Not for use outside this header.

namespace ScheduleLoop {

/// The balance can never fall again.
[[noreturn]] void RaiseEndless();
/// Sums what was paid: the full payment in every period except the last.
ScheduleTotals Totals(const ScheduleTerms& terms, const Payoff& payoff);

/// Whether a balance whose period repays this principal can never reach zero. With a zero principal
/// part nothing changes any more. With a negative one the balance grows, and the interest with it,
/// which helps to repay only under a negative rate.
inline bool IsEndless(Money balance, Money principal, double rate) {
    return principal <= Money() && balance > Money() && (principal.IsZero() || !(rate < 0.0));
}

/// Reports a period; true if the watch wants no further one.
template <typename Watch>
bool EndsEarly(Watch& watch, const SchedulePeriod& period) {
    if constexpr (std::same_as<std::invoke_result_t<Watch&, const SchedulePeriod&>, bool>) {
        return !watch(period);
    } else {
        watch(period);
        return false;
    }
}

/// The caller resolves the frequency; the loop needs only its dates and two numbers.
template <typename Dates, typename Watch>
Payoff RunPeriods(const ScheduleTerms& terms, Dates dates, Watch& watch) {
    const double year = terms.frequency->interestYear;
    const double parts = terms.frequency->interestParts;
    const double rate = terms.rate.Fraction();
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
        const bool endsEarly =
            EndsEarly(watch, SchedulePeriod{dates.Current(), interest, principal, balance, 1});
        if (balance.IsZero()) {
            payoff.date = dates.Current();
            payoff.lastPrincipal = principal;
            payoff.lastInterest = interest;
            return payoff;
        }
        if (endsEarly) {
            return payoff;
        }
    }
}

/// Without interest and dates: as many equal periods as fit into the balance, then the remainder.
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

} // namespace quend::calc
