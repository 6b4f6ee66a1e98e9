#include "OverTime.h"

#include "ComparedCurrent.h"
#include "ComparedOffer.h"
#include "CostByMonth.h"
#include "LoanSchedule.h"

namespace quend::comparison {

namespace {

/// What is owed by each month: the balance after the last period that has ended by then.
std::vector<Money> BalanceByMonth(const DatedLoan& loan, Date today, int months) {
    std::vector<Money> balance{loan.terms.balance};
    AccrualPeriods periods(loan);
    Money owed = loan.terms.balance;
    int month = 1;
    Date day = MonthAfter(today, month);
    RunToPayoff(loan.terms, [&](const SchedulePeriod& period) {
        const Date end = periods.Next(period.date).end;
        while (month <= months && day < end) {
            balance.push_back(owed);
            day = MonthAfter(today, ++month);
        }
        owed = period.balance;
        return month <= months;
    });
    balance.resize(static_cast<std::size_t>(months) + 1, owed);
    return balance;
}

LoanOverTime LinesOf(int place, const DatedLoan& loan, Money closing, Date today, int months) {
    const CostByMonth costs = RunCosts(loan, closing, today, 1);
    LoanOverTime lines{.place = place, .cost = {closing}, .balance = {}};
    for (int month = 1; month <= months; ++month) {
        lines.cost.push_back(costs.By(month));
    }
    lines.balance = BalanceByMonth(loan, today, months);
    return lines;
}

} // namespace

std::vector<LoanOverTime> OverTime(const ComparisonInput& input, int months) {
    std::vector<LoanOverTime> lines;
    int place = 0;
    for (const OfferInput& entered : input.offers) {
        ++place;
        const ComparedOffer offer(input, entered);
        if (const auto loan = offer.Compared()) {
            lines.push_back(LinesOf(place, *loan, offer.Closing(), input.today, months));
        }
    }
    const ComparedCurrent current = CompareCurrent(input);
    if (current.costs) {
        lines.push_back(LinesOf(CurrentLoanPlace, *current.loan, Money(), input.today, months));
    }
    return lines;
}

} // namespace quend::comparison
