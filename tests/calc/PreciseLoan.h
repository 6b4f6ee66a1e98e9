#pragma once

#include "Frequency.h"
#include "Money.h"

#include <cstdint>
#include <optional>

// The rules of a loan computed slowly, with 34 digits where double precision has 16. No function of
// the mathematical library is called: powers are products and roots are found step by step, so that
// a fault there would show, too.

#ifdef __SIZEOF_FLOAT128__
__extension__ typedef __float128 Precise; // NOLINT(modernize-use-using): a using warns of it
#else
using Precise = long double; // as long, where there is no other
#endif

/// Half the distance from 1 to the next double: no single operation in double precision is
/// further off than by this part of its result.
constexpr auto OneRounding = static_cast<Precise>(0x1p-53);

/// A result as it should be, and how far double precision may stray from it.
struct PreciseAmount {
    Precise units;
    Precise strays;

    /// The nearest whole number, halves to even, where straying cannot lead to another one.
    std::optional<std::int64_t> Nearest() const;
    /// Whether a rounded result may come of it: half a unit and the straying away from it at most.
    bool MayRoundTo(std::int64_t rounded) const;
};

/// value^exponent, by multiplying.
Precise Power(Precise value, std::int64_t exponent);

/// What one period bears for each unit of the balance.
Precise PeriodRate(const Frequency& frequency, double rate);

/// The interest of one period in ten-thousandths.
PreciseAmount PreciseInterest(const Frequency& frequency, double rate, Money balance);

/// The payment of principal and interest, in cents. Rate and term are above zero.
PreciseAmount PrecisePayment(const Frequency& frequency, Money principal, double rate,
                             int termMonths);
