#include "Quantities.h"

#include "Failure.h"

#include <cmath>
#include <limits>

namespace quend::calc {

Months Months::Nearest(double months) {
    const double nearest = std::nearbyint(months);
    if (!(std::abs(nearest) <= std::numeric_limits<int>::max())) {
        throw OverflowFailure(ProgramSource);
    }
    return {static_cast<int>(nearest)};
}

Months Months::FromWholeYears(double years) { return FromYears(std::nearbyint(years)); }

} // namespace quend::calc
