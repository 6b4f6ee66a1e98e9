#include "Money.h"

#include "Failure.h"

namespace quend::calc {

namespace {

constexpr std::int64_t PerCent = 100;

} // namespace

Money Money::FromDoubleInCents(double units) {
    std::int64_t count = 0;
    if (ProductOverflows(Rounded(units * (PerUnit / PerCent)), PerCent, count)) {
        RaiseOverflow();
    }
    return Money(count);
}

Money Money::RoundedToCents() const {
    const std::int64_t cents = m_count / PerCent;
    const std::int64_t rest = m_count % PerCent; // has the sign of the amount
    const std::int64_t beyondHalf = (rest < 0 ? -rest : rest) * 2 - PerCent;
    const bool awayFromZero = beyondHalf > 0 || (beyondHalf == 0 && cents % 2 != 0);
    const std::int64_t step = rest < 0 ? -1 : 1;
    return Money((cents + (awayFromZero ? step : 0)) * PerCent);
}

void Money::RaiseOverflow() { throw OverflowFailure("Money"); }

} // namespace quend::calc
