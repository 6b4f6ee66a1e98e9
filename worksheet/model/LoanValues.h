#pragma once

#include "Date.h"
#include "LoanTypes.h"
#include "ModelNames.h"
#include "Money.h"
#include "Quantities.h"

#include <QString>

namespace quend::model {

// The values of a worksheet above its offers. Only the worksheet computes the results.

struct WantedLoan {
    QString name;
    LoanTypeCode type;
    Money amount;
    Months term;
    Money taxes; ///< a year, as the insurance
    Money insurance;
    Money escrowMonthly; ///< a result

    friend bool operator==(const WantedLoan&, const WantedLoan&) = default;
};

struct CurrentLoan {
    Money amount;
    Months term;
    Rate rate;
    FrequencyCode frequency;
    Money balance;
    Money actualPayment;
    FrequencyCode actualFrequency;
    Date nextPayment;
    // Results.
    Money pAndI;
    Money payment;
    Money amountLeft;
    Money interestLeft;
    Date payoffDate;

    friend bool operator==(const CurrentLoan&, const CurrentLoan&) = default;
};

} // namespace quend::model
