#include "FigureColumns.h"

#include "CompareTextNumbers.h"
#include "Language.h"

#include <array>
#include <cstddef>

namespace quend::compare {

namespace {

using namespace TextNumber;

constexpr auto Left = Qt::AlignLeft;
constexpr auto Right = Qt::AlignRight;
constexpr bool Shown = true;
constexpr bool Hidden = false;

// Only costs and rates have a best. What depends on how much is paid, or how often, has none: a
// lower payment, a later payoff or more interest saved does not make an offer better.
// clang-format off
constexpr std::array Columns{
    // figure                                heading                  tooltip                      topic side   best          at first
    FigureColumn{Figure::Lender,            HeadLender,              0,                           700, Left,  Best::None,  Shown},
    FigureColumn{Figure::MonthlyEquivalent, HeadMonthlyEquivalent,   ExplainMonthlyEquivalent,    701, Right, Best::None,  Shown},
    FigureColumn{Figure::PaymentCompared,   HeadPayment,             ExplainPaymentCompared,      702, Right, Best::None,  Hidden},
    FigureColumn{Figure::Upfront,           HeadUpfront,             ExplainUpfront,              703, Right, Best::Least, Shown},
    FigureColumn{Figure::Costs,             HeadCosts,               ExplainCosts,                704, Right, Best::None,  Shown},
    FigureColumn{Figure::Apr,               HeadApr,                 ExplainApr,                  705, Right, Best::Least, Shown},
    FigureColumn{Figure::EffectiveRate,     HeadEffectiveRate,       ExplainEffectiveRate,        706, Right, Best::Least, Hidden},
    FigureColumn{Figure::CostByHorizon,     HeadCostByYears,         ExplainCostByHorizon,        707, Right, Best::Least, Shown},
    FigureColumn{Figure::BalanceAtHorizon,  HeadBalanceAtHorizon,    ExplainBalanceAtHorizon,     708, Right, Best::None,  Shown},
    FigureColumn{Figure::TotalCost,         HeadTotalCost,           ExplainTotalCost,            709, Right, Best::Least, Shown},
    FigureColumn{Figure::PayoffDate,        HeadPayoffDate,          ExplainPayoffDate,           710, Right, Best::None,  Hidden},
    FigureColumn{Figure::InterestSaved,     HeadInterestSaved,       ExplainInterestSaved,        711, Right, Best::None,  Hidden},
    FigureColumn{Figure::PaymentsSaved,     HeadPaymentsSaved,       ExplainPaymentsSaved,        712, Right, Best::None,  Hidden},
    FigureColumn{Figure::Cheaper,           HeadCheaper,             ExplainCheaper,              713, Left,  Best::None,  Hidden},
    FigureColumn{Figure::RateToMatch,       HeadRateToMatch,         ExplainRateToMatch,          714, Right, Best::None,  Shown},
    FigureColumn{Figure::PaymentForHorizon, HeadPaymentForHorizon,   ExplainPaymentForHorizon,    715, Right, Best::None,  Hidden},
};
// clang-format on

} // namespace

std::span<const FigureColumn> FigureColumns() { return Columns; }

const FigureColumn& ColumnOf(Figure figure) { return Columns.at(static_cast<std::size_t>(figure)); }

QString HeadingOf(Figure figure, int years, const DisplayFormats& formats) {
    if (figure != Figure::CostByHorizon) {
        return GetResourceText(ColumnOf(figure).heading);
    }
    return years == 1
               ? GetResourceText(HeadCostByYear)
               : GetResourceText(HeadCostByYears).arg(formats.InOwnDigits(QString::number(years)));
}

QString InTwoLines(QString heading) {
    constexpr qsizetype shortOne = 10; // characters
    if (heading.size() <= shortOne) {
        return heading;
    }
    const qsizetype middle = heading.size() / 2;
    const qsizetype before = heading.lastIndexOf(u' ', middle);
    const qsizetype after = heading.indexOf(u' ', middle);
    const bool isFirst = after < 0 || (before >= 0 && middle - before <= after - middle);
    if (const qsizetype blank = isFirst ? before : after; blank >= 0) {
        heading[blank] = u'\n';
    }
    return heading;
}

} // namespace quend::compare
