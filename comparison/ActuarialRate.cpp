#include "ActuarialRate.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace quend::comparison {

namespace {

/// The worth of one unit at the end of each of `count` periods, the first now. The functions for
/// numbers close to one keep the digits of a small rate.
double Annuity(double rate, double count) {
    if (rate == 0.0) {
        return count;
    }
    return -std::expm1(-count * std::log1p(rate)) / rate * (1.0 + rate);
}

double PresentValue(const CashFlows& flows, double rate) {
    const double first = (1.0 + flows.fraction * rate) *
                         std::exp(static_cast<double>(flows.periods) * std::log1p(rate));
    return flows.amount * Annuity(rate, static_cast<double>(flows.count)) / first;
}

} // namespace

double PresentValue(std::span<const CashFlows> flows, double rate) {
    double sum = 0.0;
    for (const CashFlows& equal : flows) {
        sum += PresentValue(equal, rate);
    }
    return sum;
}

std::optional<double> ActuarialRate(std::span<const CashFlows> advances,
                                    std::span<const CashFlows> payments, double highest) {
    constexpr double Usual = 0.015625; // few loans have a higher rate; an exact double
    const auto excess = [&](double rate) {
        return PresentValue(payments, rate) - PresentValue(advances, rate);
    };
    const double sum = excess(0.0);
    if (!(sum > 0.0)) {
        return sum == 0.0 ? std::optional(0.0) : std::nullopt;
    }
    double high = std::min(Usual, highest);
    while (excess(high) > 0.0) {
        if (high >= highest) {
            return std::nullopt;
        }
        high = std::min(high * 2.0, highest);
    }
    double low = 0.0;
    // Halving always ends and needs no slope; each step costs a few logarithms only.
    for (double middle = std::midpoint(low, high);
         high - low > 1e-16 && middle > low && middle < high; middle = std::midpoint(low, high)) {
        (excess(middle) > 0.0 ? low : high) = middle;
    }
    return std::midpoint(low, high);
}

} // namespace quend::comparison
