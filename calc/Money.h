#pragma once

#include "Overflow.h"

#include <cmath>
#include <compare>
#include <cstdint>

namespace quend::calc {

/// An amount of money: whole ten-thousandths of the currency unit.
/// Sums and differences raise OverflowFailure outside the 64-bit range; nothing wraps or saturates.
/// No multiplication: proportional amounts (interest, points, a share) are computed in double and
/// converted back by a factory whose name states the rounding. Does not format.
class Money {
public:
    constexpr Money() = default;

    static constexpr Money FromTenThousandths(std::int64_t count) { return Money(count); }
    /// Nearest ten-thousandth, halves to even. Raises OverflowFailure outside the range and for
    /// NaN.
    static Money FromDouble(double units) { return Money(Rounded(units * PerUnit)); }
    /// Nearest cent, halves to even, rounded once from the double units * 100. Raises as FromDouble
    /// does.
    static Money FromDoubleInCents(double units);

    constexpr std::int64_t TenThousandths() const { return m_count; }
    /// In currency units. Exact to the ten-thousandth up to 2^53 ten-thousandths (9 * 10^11 units).
    constexpr double ToDouble() const { return static_cast<double>(m_count) / PerUnit; }
    /// Nearest cent, halves to even. Never fails: both limits of the range round towards zero.
    Money RoundedToCents() const;
    constexpr bool IsZero() const { return m_count == 0; }

    friend constexpr bool operator==(Money, Money) = default;
    friend constexpr auto operator<=>(Money left, Money right) {
        return left.m_count <=> right.m_count;
    }

    friend constexpr Money operator+(Money left, Money right) {
        std::int64_t sum = 0;
        if (SumOverflows(left.m_count, right.m_count, sum)) {
            RaiseOverflow();
        }
        return Money(sum);
    }
    friend constexpr Money operator-(Money left, Money right) {
        std::int64_t difference = 0;
        if (DifferenceOverflows(left.m_count, right.m_count, difference)) {
            RaiseOverflow();
        }
        return Money(difference);
    }
    constexpr Money operator-() const { return Money() - *this; }
    constexpr Money& operator+=(Money other) { return *this = *this + other; }
    constexpr Money& operator-=(Money other) { return *this = *this - other; }

private:
    static constexpr double PerUnit = 10'000.0;

    explicit constexpr Money(std::int64_t count) : m_count(count) {}

    /// The nearest whole number, halves to even. The range check also rejects NaN.
    static std::int64_t Rounded(double count) {
        constexpr double End = 9'223'372'036'854'775'808.0; // 2^63, the first count too large
        if (!(count >= -End && count < End)) {
            RaiseOverflow();
        }
        return std::llrint(count);
    }
    [[noreturn]] static void RaiseOverflow();

    std::int64_t m_count = 0;
};

} // namespace quend::calc
