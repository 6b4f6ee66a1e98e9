#pragma once

#include "Comparison.h"

#include <optional>

namespace quend::comparison {

// Questions that a borrower asks the other way round. A place is that of an offer, from 1, or
// CurrentLoanPlace. None also where there is no such place.

/// The day up to which the loan is kept: the given years after today, cut to the month's last day.
Date HorizonOf(const ComparisonInput& input);

/// The least payment in whole cents, escrow share included and not below the required one (for the
/// loan held today: one cent), with which nothing is owed on that day: the period of the last
/// payment has ended by then. None where no payment does that, and where the loan takes no part
/// whatever is paid.
std::optional<Money> LeastPaymentBy(const ComparisonInput& input, int place, Date day);

/// The largest amount wanted, in whole cents, for which the offer requires at most this payment,
/// escrow share included. None where even a cent requires more.
std::optional<Money> LargestAmount(const ComparisonInput& input, int place, Money payment);

/// The highest rate, in thousandths of a percent, with which the offer requires at most this
/// payment, escrow share included; searched up to 10,000 %. None where even the lowest requires
/// more.
std::optional<Rate> HighestRate(const ComparisonInput& input, int place, Money payment);

} // namespace quend::comparison
