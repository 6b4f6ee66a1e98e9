#pragma once

#include "Comparison.h"
#include "CostByMonth.h"

#include <optional>

namespace quend::comparison {

/// The loan held today of a comparison.
struct ComparedCurrent {
    std::optional<CurrentLoanComparison> result; ///< none where there is no such loan
    /// With the compared payment; none where nothing is owed or its frequency is unknown. Its
    /// schedule may never end.
    std::optional<DatedLoan> loan;
    std::optional<CostByMonth> costs; ///< none where it takes no part
};

ComparedCurrent CompareCurrent(const ComparisonInput& input);

} // namespace quend::comparison
