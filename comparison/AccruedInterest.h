#pragma once

#include "AccrualPeriods.h"

#include <optional>

namespace quend::comparison {

// Questions about one day, for searches: they keep no rows and run no further than the answer
// needs.

/// What a loan has cost by a day: its costs at closing and the interest accrued from today on. None
/// where its schedule never ends, or an amount is outside the range of money.
std::optional<Money> CostByDay(const DatedLoan& loan, Money closing, Date today, Date day);

/// The payment with which the loan is repaid by a day on which a period has ended; the rounding of
/// interest may require some ten-thousandths more or less. None outside the range of money.
std::optional<Money> EstimatePaymentUntil(const DatedLoan& loan, Date day);

/// The least payment in whole cents, not below the given one raised to a whole cent, with which
/// nothing is owed on that day; the loan's own payment is not read. None where no payment does
/// that.
std::optional<Money> LeastPaymentUntil(const DatedLoan& loan, Date day, Money atLeast);

} // namespace quend::comparison
