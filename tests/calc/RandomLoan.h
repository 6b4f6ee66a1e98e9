#pragma once

#include "QuendNames.h"
#include "RandomCases.h"
#include "Schedule.h"

#include <QString>

#include <ostream>

/// A realistic loan, and occasionally one at the limits of term and rate.
struct RandomLoan {
    Money amount; ///< 0.01 to 10^9, occasionally with fractions of a cent
    double points = 0.0;
    bool financePoints = false;
    int term = 0;      ///< 1 to 1,200 months
    double rate = 0.0; ///< above zero, as a fraction
    QString code;      ///< one of the four frequencies
    Money escrowMonthly;
    Date start;

    static RandomLoan Make(Random& random);

    Money EscrowPart() const;
    /// The least payment that repays the loan, escrow included.
    Money LeastPayment() const;
    ScheduleTerms Terms(Money payment) const;
};

std::ostream& operator<<(std::ostream& out, const RandomLoan& loan);
