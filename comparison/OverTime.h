#pragma once

#include "Comparison.h"

#include <vector>

namespace quend::comparison {

/// What a loan has cost and what it still owes, by months after today.
struct LoanOverTime {
    int place;                  ///< CurrentLoanPlace, or that of the offer
    std::vector<Money> cost;    ///< by month 0, 1, 2, …; by month 0 the costs at closing
    std::vector<Money> balance; ///< as long as the costs; by month 0 the starting balance
};

/// Every loan that takes part, the offers in their order and the loan held today last, each by the
/// months from 0 to `months` (ComparisonResult::months).
std::vector<LoanOverTime> OverTime(const ComparisonInput& input, int months);

} // namespace quend::comparison
