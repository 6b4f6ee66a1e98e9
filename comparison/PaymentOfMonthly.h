#pragma once

#include "ComparisonNames.h"
#include "Frequency.h"
#include "Money.h"
#include "Quantities.h"

namespace quend::comparison {

/// An amount of principal and interest a month, as one payment of that frequency, to the cent, with
/// its escrow share. Raises OverflowFailure outside the range of money.
inline Money PaymentOfMonthly(Money monthly, const Frequency& frequency, Money escrowShare) {
    return Money::FromDoubleInCents(monthly.ToDouble() * MonthsPerYear / frequency.periodsPerYear) +
           escrowShare;
}

/// The part of a payment that repays principal and interest, as an amount a month, to the cent.
/// Raises as PaymentOfMonthly does.
inline Money MonthlyOfPayment(Money payment, const Frequency& frequency, Money escrowShare) {
    return Money::FromDoubleInCents((payment - escrowShare).ToDouble() * frequency.periodsPerYear /
                                    MonthsPerYear);
}

} // namespace quend::comparison
