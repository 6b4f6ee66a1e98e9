#include "PreciseLoan.h"

namespace {

Precise Magnitude(Precise value) { return value < 0 ? -value : value; }

std::int64_t Floor(Precise value) {
    const auto whole = static_cast<std::int64_t>(value); // towards zero
    return static_cast<Precise>(whole) > value ? whole - 1 : whole;
}

/// The root of a value above zero, by Newton's method: each step doubles the correct digits.
Precise Root(Precise value, int degree) {
    Precise root = 1;
    for (int step = 0; step < 200; ++step) {
        const Precise next =
            root - (root - value / Power(root, degree - 1)) / static_cast<Precise>(degree);
        if (next == root) {
            break;
        }
        root = next;
    }
    return root;
}

} // namespace

std::optional<std::int64_t> PreciseAmount::Nearest() const {
    const auto half = static_cast<Precise>(0.5);
    const std::int64_t lowest = Floor(units - strays + half);
    const std::int64_t highest = Floor(units + strays + half);
    return lowest == highest ? std::optional(lowest) : std::nullopt;
}

bool PreciseAmount::MayRoundTo(std::int64_t rounded) const {
    return Magnitude(static_cast<Precise>(rounded) - units) <= strays + static_cast<Precise>(0.5);
}

Precise Power(Precise value, std::int64_t exponent) {
    Precise power = 1;
    for (std::int64_t rest = exponent; rest > 0; rest /= 2) {
        if (rest % 2 != 0) {
            power *= value;
        }
        value *= value;
    }
    return power;
}

Precise PeriodRate(const Frequency& frequency, double rate) {
    const auto annual = static_cast<Precise>(rate);
    switch (frequency.code) {
    case u'M':
        return annual / 12;
    case u'B':
        return annual / 24;
    case u'W':
        return annual * 14 / 365;
    default:
        return annual * 28 / 365;
    }
}

/// Double precision rounds five times: the balance in units, times the rate, divided by the year,
/// times the part of it, and back to ten-thousandths. Six allows for their combined effect.
PreciseAmount PreciseInterest(const Frequency& frequency, double rate, Money balance) {
    const Precise interest =
        static_cast<Precise>(balance.TenThousandths()) * PeriodRate(frequency, rate);
    return {interest, 6 * OneRounding * Magnitude(interest)};
}

/// With x the rate of a period, n the periods and v = (1 + x)^-n the payment is P * x / (1 - v).
/// In double precision
/// - 1 + x is off by up to two roundings, and v by n times as much;
/// - n, a product and a quotient, is off by two, and v by n * ln(1 + x) <= n * x times as much;
/// - the power itself is off by two (one unit in its last place);
/// - relative to 1 - v these errors of v weigh more, the smaller 1 - v is;
/// - x, the difference, two quotients, the principal and the cents add one rounding each.
PreciseAmount PrecisePayment(const Frequency& frequency, Money principal, double rate,
                             int termMonths) {
    const int perYear = frequency.code == u'M'   ? 12
                        : frequency.code == u'B' ? 24
                        : frequency.code == u'W' ? 26
                                                 : 13;
    const auto x = static_cast<Precise>(rate) / perYear;
    // A term of months may not be a whole number of periods, but twelve times it is.
    const std::int64_t twelfths = std::int64_t(termMonths) * perYear;
    const Precise growth = Power(1 + x, twelfths / 12) * Power(Root(1 + x, 12), twelfths % 12);
    const Precise v = 1 / growth;
    const Precise n = static_cast<Precise>(twelfths) / 12;
    const Precise cents = static_cast<Precise>(principal.TenThousandths()) / 100 * x / (1 - v);
    const Precise roundings = (2 * n + 2 * n * x + 2) * v / (1 - v) + 6;
    return {cents, cents * roundings * OneRounding};
}
