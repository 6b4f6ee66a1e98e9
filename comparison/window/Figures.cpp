#include "Figures.h"

namespace quend::compare {

namespace {

template <typename Value>
FigureValue OrNone(const std::optional<Value>& value) {
    return value ? FigureValue(*value) : FigureValue();
}

FigureValue ValueOfCurrent(const CurrentLoanComparison& loan, Figure figure) {
    switch (figure) {
    case Figure::MonthlyEquivalent:
        return loan.figures->monthlyEquivalent;
    case Figure::PaymentCompared:
        return loan.figures->paymentCompared;
    case Figure::CostByHorizon:
        return OrNone(loan.costByHorizon);
    case Figure::BalanceAtHorizon:
        return OrNone(loan.balanceAtHorizon);
    case Figure::TotalCost:
        return loan.figures->totalCost;
    case Figure::PayoffDate:
        return loan.figures->payoff;
    case Figure::PaymentForHorizon:
        return OrNone(loan.paymentForHorizon);
    default:
        return {};
    }
}

FigureValue ValueOfOffer(const OfferFigures& offer, Figure figure) {
    switch (figure) {
    case Figure::MonthlyEquivalent:
        return offer.monthlyEquivalent;
    case Figure::PaymentCompared:
        return offer.paymentCompared;
    case Figure::Upfront:
        return offer.upfront;
    case Figure::Apr:
        return OrNone(offer.apr);
    case Figure::EffectiveRate:
        return OrNone(offer.effectiveRate);
    case Figure::CostByHorizon:
        return offer.costByHorizon;
    case Figure::BalanceAtHorizon:
        return offer.balanceAtHorizon;
    case Figure::TotalCost:
        return offer.totalCost;
    case Figure::PayoffDate:
        return offer.payoff;
    case Figure::InterestSaved:
        return OrNone(offer.interestSaved);
    case Figure::PaymentsSaved:
        return OrNone(offer.paymentsSaved);
    case Figure::Cheaper:
        return OrNone(offer.cheaper);
    case Figure::RateToMatch:
        return OrNone(offer.rateToMatch);
    case Figure::PaymentForHorizon:
        return OrNone(offer.paymentForHorizon);
    default:
        return {};
    }
}

} // namespace

FigureValue ValueOf(const ComparedWorksheet& worksheet, Figure figure, int place) {
    if (figure == Figure::Lender) {
        return NameOfLoan(worksheet, place);
    }
    if (place == CurrentLoanPlace) {
        const auto& current = worksheet.result.current;
        return current && current->figures ? ValueOfCurrent(*current, figure) : FigureValue();
    }
    if (figure == Figure::Costs) {
        return worksheet.input.offers.at(static_cast<std::size_t>(place) - 1).costs;
    }
    const OfferFigures* const offer = FiguresOf(worksheet, place);
    return offer != nullptr ? ValueOfOffer(*offer, figure) : FigureValue();
}

} // namespace quend::compare
