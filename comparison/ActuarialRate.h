#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace quend::comparison {

/// Equal cash flows, one at the end of each unit period.
struct CashFlows {
    double amount;            ///< of each, in any unit that all flows of a loan share
    std::int64_t count = 1;   ///< zero or more
    std::int64_t periods = 0; ///< whole unit periods before the first
    double fraction = 0.0;    ///< of a further period before the first, from 0 to below 1
};

/// What the flows are worth at time zero, by the actuarial method: each is divided by
/// (1 + fraction * rate) * (1 + rate) ^ periods. The rate is that of one unit period, a fraction of
/// zero or more.
double PresentValue(std::span<const CashFlows> flows, double rate);

/// The rate of one unit period, from zero to `highest`, at which the payments are worth what the
/// advances are; good to 1e-14, or to the precision of a double where that is larger. Zero where
/// both add up to the same; none where the payments add up to less, where the rate is above the
/// highest, and where an amount is no number. Where the payments precede some advances, several
/// rates may exist; it returns one of them.
std::optional<double> ActuarialRate(std::span<const CashFlows> advances,
                                    std::span<const CashFlows> payments, double highest);

} // namespace quend::comparison
