#pragma once

#include "ComparisonNames.h"
#include "Money.h"

#include <cstdint>
#include <limits>

namespace quend::comparison {

/// Amounts in whole cents, as searches count them.
class Cents {
public:
    static constexpr std::int64_t SizeOfCent = 100; ///< in ten-thousandths
    static constexpr Money One = Money::FromTenThousandths(SizeOfCent);
    /// In the largest amount of whole cents.
    static constexpr std::int64_t MostCents = std::numeric_limits<std::int64_t>::max() / SizeOfCent;

    /// Precondition: MostCents at most.
    static Money ToMoney(std::int64_t cents) {
        return Money::FromTenThousandths(cents * SizeOfCent);
    }
    /// The fewest that are no less; for the last amounts of the range one more than MostCents.
    static std::int64_t NotBelow(Money amount) {
        const std::int64_t count = amount.TenThousandths();
        return count / SizeOfCent + (count % SizeOfCent > 0 ? 1 : 0);
    }
};

} // namespace quend::comparison
