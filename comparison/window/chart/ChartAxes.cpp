#include "ChartAxes.h"

#include "Quantities.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

namespace quend::compare {

namespace {

constexpr std::int64_t CountsPerUnit = 10'000;
constexpr std::int64_t CountsPerCent = 100;
constexpr std::int64_t GreatestStep = 5'000'000'000'000'000'000;
constexpr std::array MonthSteps{1, 2, 3, 6, 12, 24, 60, 120, 240, 600, 1200};

/// The first and the last tick, counted in steps from zero.
struct TickRange {
    std::int64_t first;
    std::int64_t last;

    static double EndAt(std::int64_t tick, std::int64_t step) {
        return static_cast<double>(tick) * static_cast<double>(step);
    }
    /// Of great amounts a double does not distinguish cents.
    bool HasLength(std::int64_t step) const { return EndAt(first, step) < EndAt(last, step); }
};

std::int64_t RoundedDown(std::int64_t count, std::int64_t step) {
    return count / step - (count % step < 0 ? 1 : 0);
}

TickRange TicksAround(Money least, Money greatest, std::int64_t step) {
    const std::int64_t first = RoundedDown(least.TenThousandths(), step);
    const std::int64_t below = RoundedDown(greatest.TenThousandths(), step);
    const std::int64_t last = below + (greatest.TenThousandths() % step != 0 ? 1 : 0);
    return {first, std::max(last, first + 1)};
}

/// 1, 2, 5, 10, 20, 50 …
std::int64_t NextStep(std::int64_t step) {
    std::int64_t power = step;
    while (power % 10 == 0) {
        power /= 10;
    }
    return power == 2 ? step / 2 * 5 : step * 2;
}

bool IsAmount(std::int64_t tick, std::int64_t step) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    return tick <= most / step && tick >= -(most / step);
}

} // namespace

double AmountAxis::ShareOf(Money amount) const {
    return (static_cast<double>(amount.TenThousandths()) - low) / (high - low);
}

AmountAxis AxisOfAmounts(Money least, Money greatest, int mostTicks) {
    constexpr int fewest = 3; // with zero between the ends
    const int most = std::max(mostTicks, fewest);
    std::int64_t step = CountsPerCent;
    TickRange range = TicksAround(least, greatest, step);
    while ((range.last - range.first >= most || !range.HasLength(step)) && step < GreatestStep) {
        step = NextStep(step);
        range = TicksAround(least, greatest, step);
    }
    AmountAxis axis{.low = TickRange::EndAt(range.first, step),
                    .high = TickRange::EndAt(range.last, step),
                    .step = Money::FromTenThousandths(step),
                    .ticks = {}};
    for (std::int64_t tick = range.first; tick <= range.last; ++tick) {
        if (IsAmount(tick, step)) {
            axis.ticks.push_back(Money::FromTenThousandths(tick * step));
        }
    }
    return axis;
}

QString TickText(const DisplayFormats& formats, const AmountAxis& axis, Money tick) {
    QString text = formats.Currency(tick);
    if (axis.step.TenThousandths() % CountsPerUnit == 0) {
        const QString cents =
            formats.Locale().decimalPoint() + formats.InOwnDigits(QStringLiteral("00"));
        const qsizetype place = text.lastIndexOf(cents);
        text.remove(std::max<qsizetype>(place, 0), place < 0 ? 0 : cents.size());
    }
    return text;
}

bool MonthAxis::IsInYears() const { return step >= MonthsPerYear; }

int MonthAxis::CountAt(int tick) const { return IsInYears() ? tick / MonthsPerYear : tick; }

MonthAxis AxisOfMonths(int months, int mostTicks) {
    const auto* const found =
        std::ranges::find_if(MonthSteps, [&](int step) { return months / step < mostTicks; });
    MonthAxis axis{.step = found != MonthSteps.end() ? *found : MonthSteps.back(), .ticks = {}};
    for (int tick = 0; tick <= months; tick += axis.step) {
        axis.ticks.push_back(tick);
    }
    return axis;
}

} // namespace quend::compare
