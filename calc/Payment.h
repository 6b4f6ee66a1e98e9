#pragma once

#include "Money.h"
#include "Quantities.h"

namespace quend::calc {

/// The payment (principal and interest) that repays a loan within its term, rounded to the nearest
/// cent, halves to even. Zero for a zero principal, rate or term
/// and for an unknown code: there is no formula without interest. Raises OverflowFailure for a
/// payment outside the range of money or NaN, and for "B" if twice the term is outside the 32-bit
/// range.
Money PrincipalAndInterest(Money principal, Rate rate, Months term, const FrequencyCode& code);

/// The escrow of a month for the taxes and the insurance of a year, to the nearest cent, halves to
/// even. Raises OverflowFailure if their sum is outside the range of money.
Money MonthlyEscrow(Money annualTaxes, Money annualInsurance);

} // namespace quend::calc
