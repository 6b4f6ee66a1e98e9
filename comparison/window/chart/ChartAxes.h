#pragma once

#include "CompareNames.h"
#include "DisplayFormats.h"
#include "Money.h"

#include <QString>

#include <vector>

namespace quend::compare {

/// The axis of amounts. Its ends are round, but may lie beyond the range of money, which its ticks
/// do not.
struct AmountAxis {
    double low = 0; ///< in ten-thousandths
    double high = 1;
    Money step;               ///< 1, 2 or 5 times a power of ten, at least a cent
    std::vector<Money> ticks; ///< ascending

    /// 0 at the lower end, 1 at the upper one.
    double ShareOf(Money amount) const;
};

/// With the least step that needs no more ticks, of which there may be at least three.
AmountAxis AxisOfAmounts(Money least, Money greatest, int mostTicks);

/// A tick in the locale's money; without decimals where the steps are whole units.
QString TickText(const DisplayFormats& formats, const AmountAxis& axis, Money tick);

/// The axis of months after today, from 0.
struct MonthAxis {
    int step = 1; ///< months; a whole number of years from 12 on
    std::vector<int> ticks;

    bool IsInYears() const;
    /// The tick as the axis counts, in months or in years.
    int CountAt(int tick) const;
};

/// With the least step that needs no more ticks; of 100 years where none does.
MonthAxis AxisOfMonths(int months, int mostTicks);

} // namespace quend::compare
