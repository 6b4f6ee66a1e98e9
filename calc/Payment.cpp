#include "Payment.h"

#include "Frequency.h"

#include <cmath>

namespace quend::calc {

Money PrincipalAndInterest(Money principal, Rate rate, Months term, const FrequencyCode& code) {
    const Frequency* const frequency = FindFrequency(code);
    if (principal.IsZero() || rate.IsZero() || term.IsZero() || frequency == nullptr) {
        return {};
    }
    const double periodRate = rate.Fraction() / frequency->periodsPerYear;
    const double periods = PeriodsOfTerm(*frequency, term);
    const double annuity = (1.0 - std::pow(1.0 + periodRate, -periods)) / periodRate;
    return Money::FromDoubleInCents(principal.ToDouble() / annuity);
}

Money MonthlyEscrow(Money annualTaxes, Money annualInsurance) {
    return Money::FromDoubleInCents((annualTaxes + annualInsurance).ToDouble() / MonthsPerYear);
}

} // namespace quend::calc
