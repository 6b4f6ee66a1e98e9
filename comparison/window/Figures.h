#pragma once

#include "ComparedWorksheet.h"

#include <array>
#include <cstdint>
#include <span>
#include <variant>
#include <vector>

namespace quend::compare {

/// The columns of the table of costs, in their usual order.
enum class Figure {
    Lender,
    MonthlyEquivalent, ///< a month, without escrow
    PaymentCompared,
    Upfront,
    Costs, ///< entered
    Apr,
    EffectiveRate,
    CostByHorizon,
    BalanceAtHorizon,
    TotalCost,
    PayoffDate, ///< with the compared payment
    InterestSaved,
    PaymentsSaved,
    Cheaper,
    RateToMatch,
    PaymentForHorizon,
};

/// Which value of a column is the best.
enum class Best { None, Least, Greatest };

/// No value: there is none, or the loan held today has no such figure.
using FigureValue = std::variant<std::monostate, QString, Money, Rate, Date, std::int64_t,
                                 std::vector<CheaperStretch>>;

/// A loan that takes part; for Costs any offer.
FigureValue ValueOf(const ComparedWorksheet& worksheet, Figure figure, int place);

} // namespace quend::compare
