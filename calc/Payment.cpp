#include "Payment.h"

#include "Frequency.h"

#include <cmath>

namespace quend::calc {

Money PrincipalAndInterest(Money principal, double rate, int termMonths, const QString& code) {
    const Frequency* const frequency = FindFrequency(code);
    if (principal.IsZero() || rate == 0.0 || termMonths == 0 || frequency == nullptr) {
        return {};
    }
    const double periodRate = rate / frequency->periodsPerYear;
    const double periods = PeriodsOfTerm(*frequency, termMonths);
    const double annuity = (1.0 - std::pow(1.0 + periodRate, -periods)) / periodRate;
    return Money::FromDoubleInCents(principal.ToDouble() / annuity);
}

} // namespace quend::calc
