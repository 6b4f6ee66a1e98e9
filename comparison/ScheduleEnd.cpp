#include "ScheduleEnd.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quend::comparison {

double RateOfPeriod(const ScheduleTerms& terms) {
    return terms.rate.Fraction() / terms.frequency->interestYear * terms.frequency->interestParts;
}

// With a period rate i and interest rounded by at most e, a balance that has repaid S since the
// period began repays p + i * S next, but for two roundings, where p is what the period repaid. So
// n periods repay (p - 2e) * s to (p + 2e) * s, where s = ((1 + i) ^ n - 1) / i, and at least n *
// p, because no period repays less than the one before it.
ScheduleEnd EndAfter(const SchedulePeriod& period, double rateOfPeriod, std::int64_t steps,
                     Money interest) {
    constexpr double Precise = 1e-9; // more than the error of the functions below
    const auto principal = static_cast<double>(period.principal.TenThousandths());
    const auto last = static_cast<double>(period.interest.TenThousandths());
    const double owed = static_cast<double>(period.balance.TenThousandths()) + principal;
    // This period, one for each step, and one that takes none if it repays less than it could.
    const auto periods = static_cast<double>(steps + 2);
    const double growth = std::expm1(periods * std::log1p(rateOfPeriod)) / rateOfPeriod;
    // Half a ten-thousandth each, and what six products and quotients in double may add.
    const double rounding = 1.0 + last * 1e-14;
    if ((principal + rounding) * growth * (1.0 + Precise) < owed) {
        return ScheduleEnd::TooLate;
    }
    // Interest never rises.
    constexpr auto Most = static_cast<double>(std::numeric_limits<std::int64_t>::max());
    const double allInterest =
        static_cast<double>(interest.TenThousandths()) + last * periods * (1.0 + Precise);
    const double least = std::max(periods * principal, (principal - rounding) * growth);
    const bool ends = least * (1.0 - Precise) > owed && allInterest < Most * (1.0 - Precise);
    return ends ? ScheduleEnd::InTime : ScheduleEnd::Unclear;
}

} // namespace quend::comparison
