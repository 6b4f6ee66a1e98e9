#pragma once

#include "Frequency.h"
#include "Money.h"
#include "QuendNames.h"

#include <cstdint>
#include <optional>

// The rules of a loan computed slowly, with 34 digits where double precision has 16. No function of
// the mathematical library is called, so a fault there is detected as well: powers are products and
// roots are found iteratively.

#ifdef __SIZEOF_FLOAT128__
__extension__ typedef __float128 Precise; // NOLINT(modernize-use-using): a using warns of it
#else
using Precise = long double; // fallback for other compilers
#endif

/// Half the distance from 1 to the next double: the largest relative error of a single operation in
/// double precision.
constexpr auto OneRounding = static_cast<Precise>(0x1p-53);

/// An exact result, and the largest error that double precision may add to it.
struct PreciseAmount {
    Precise units;
    Precise strays;

    /// The nearest whole number, halves to even; none where the error could change it.
    std::optional<std::int64_t> Nearest() const;
    /// Whether the result may round to this number: it is at most half a unit plus the error away.
    bool MayRoundTo(std::int64_t rounded) const;
};

/// value^exponent, by multiplication.
Precise Power(Precise value, std::int64_t exponent);

/// The interest of one period for each unit of the balance.
Precise PeriodRate(const Frequency& frequency, double rate);

/// The interest of one period in ten-thousandths.
PreciseAmount PreciseInterest(const Frequency& frequency, double rate, Money balance);

/// The payment of principal and interest, in cents. Rate and term are above zero.
PreciseAmount PrecisePayment(const Frequency& frequency, Money principal, double rate,
                             int termMonths);
