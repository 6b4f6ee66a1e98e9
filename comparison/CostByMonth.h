#pragma once

#include "AccrualPeriods.h"
#include "Comparison.h"

#include <optional>
#include <vector>

namespace quend::comparison {

/// The longest comparison, in months.
inline constexpr int MostMonths = 1200;

/// What a loan has cost by each month after today, and what its schedule says beside. The costs at
/// closing count from the first month on.
struct CostByMonth {
    std::vector<Money> costs; ///< by month 1, 2, … while a period has not ended; at most MostMonths
    Money last;               ///< by every later month
    Money balanceAtHorizon;
    Date end; ///< of the last period
    Payoff payoff;

    Money By(int month) const;
};

/// Runs the schedule once, to its end. Raises OverflowFailure if it has none, or if a cost is
/// outside the range of money. The horizon is in months after today.
CostByMonth RunCosts(const DatedLoan& loan, Money closing, Date today, int horizon);

/// Whether one amount is clearly more than the other: by at least 1.00 and a thousandth of it.
bool IsClearlyMore(Money amount, Money than);
bool IsClearlyLess(Money amount, Money than);

/// The stretches in which an offer has cost no more than the loan held today.
std::vector<CheaperStretch> FindCheaper(const CostByMonth& offer, const CostByMonth& current,
                                        int months);

/// An offer that takes part, and its place from 1.
struct PlacedCosts {
    int place;
    const CostByMonth* costs;
};

/// The offers that have cost least, in the order of the months.
std::vector<CheapestOffer> FindCheapest(const std::vector<PlacedCosts>& offers, int months);

} // namespace quend::comparison
