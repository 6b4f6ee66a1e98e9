#pragma once

#include "QuendNames.h"
#include "RandomCases.h"
#include "Schedule.h"

#include <ostream>

/// A realistic loan, and occasionally one at the limits of term and rate.
struct RandomLoan {
    Money amount; ///< 0.01 to 10^9, occasionally with fractions of a cent
    Percent points;
    bool financePoints = false;
    Months term;        ///< 1 to 1,200 months
    Rate rate;          ///< above zero
    FrequencyCode code; ///< one of the four frequencies
    Money escrowMonthly;
    Date start;

    static RandomLoan Make(Random& random);

    Money EscrowPart() const;
    /// The least payment that repays the loan, escrow included.
    Money LeastPayment() const;
    ScheduleTerms Terms(Money payment) const;
};

std::ostream& operator<<(std::ostream& out, const RandomLoan& loan);
