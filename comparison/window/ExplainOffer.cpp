#include "ExplainedLoan.h"

#include "CompareTextNumbers.h"
#include "LoanSchedule.h"

#include <array>
#include <cstddef>

namespace quend::compare {

namespace {

using namespace TextNumber;

/// What an offer with the least cost by the horizon is called, and what it costs.
struct Cheapest {
    QString name;
    Money cost;
};

Cheapest CheapestOf(const ComparedWorksheet& worksheet) {
    const int place = *worksheet.result.cheapestByHorizon;
    return {NameOfLoan(worksheet, place), FiguresOf(worksheet, place)->costByHorizon};
}

QString Terms(const ExplainedOffer& offer) {
    const Months term =
        offer.entered.term.IsZero() ? offer.worksheet.input.term : offer.entered.term;
    return offer.say(CompareOfferTerms, offer.name, *offer.result.principal, offer.entered.rate,
                     Duration(term.count, offer.say.Formats()), offer.PaymentsAYear());
}

QString Monthly(const ExplainedOffer& offer) {
    return offer.say(CompareMonthlyOfOffer, offer.name,
                     offer.figures.paymentCompared - offer.EscrowOfPayment(), offer.PaymentsAYear(),
                     offer.figures.monthlyEquivalent);
}

/// What the offer requires is what is compared.
QString RequiredPayment(const ExplainedOffer& offer) {
    const Money required = *offer.result.payment;
    const Money intended = offer.entered.actualPayment;
    if (offer.worksheet.input.choice == PaymentChoice::Intended && !intended.IsZero() &&
        intended < required) {
        return offer.say(CompareRaisedTo, offer.name, intended, required);
    }
    const Money principalAndInterest = *offer.result.principalAndInterest;
    return offer.EscrowOfPayment().IsZero()
               ? offer.say(CompareRequiresNoEscrow, offer.name, principalAndInterest)
               : offer.say(CompareRequires, offer.name, principalAndInterest,
                           offer.EscrowOfPayment(), required);
}

QString PaymentCompared(const ExplainedOffer& offer) {
    const Money payment = offer.figures.paymentCompared;
    if (!offer.PaysMoreThanRequired()) {
        return RequiredPayment(offer);
    }
    if (offer.worksheet.input.choice == PaymentChoice::Monthly) {
        const Money escrow = offer.EscrowOfPayment();
        return offer.say(CompareSameForOffer, offer.name, offer.worksheet.input.monthlyPayment,
                         payment - escrow, offer.PaymentsAYear(), escrow, payment);
    }
    const Money required = *offer.result.payment;
    return offer.say(CompareIntended, offer.name, payment, payment - required, required);
}

QString Upfront(const ExplainedOffer& offer) {
    const Money costs = offer.entered.costs;
    if (offer.entered.points.IsZero()) {
        return costs.IsZero() ? offer.say(CompareUpfrontNothing, offer.name)
                              : offer.say(CompareUpfrontCosts, offer.name, costs);
    }
    if (offer.entered.pointsFinanced) {
        return offer.say(CompareUpfrontFinanced, offer.name, costs, offer.PointsCost());
    }
    return offer.say(CompareUpfrontPoints, offer.name, offer.PointsCost(),
                     offer.entered.points.ToRate(), offer.worksheet.input.amount, costs);
}

QString Effective(const ExplainedOffer& offer) {
    return offer.figures.effectiveRate
               ? offer.say(CompareEffective, offer.name, *offer.figures.apr, offer.PaymentsAYear(),
                           *offer.figures.effectiveRate)
               : offer.say(CompareEffectiveNone, offer.name);
}

QString CostByHorizon(const ExplainedOffer& offer) {
    const Money cost = offer.figures.costByHorizon;
    return offer.say(CompareCostOfOffer, offer.name, offer.kept, cost, offer.PointsCost(),
                     offer.entered.costs, cost - offer.PointsAndCosts());
}

QString Balance(const ExplainedOffer& offer) {
    const Money owed = offer.figures.balanceAtHorizon;
    const Money principal = *offer.result.principal;
    return owed.IsZero() ? offer.say(CompareBalanceOfOfferZero, offer.name, offer.kept, principal,
                                     offer.figures.payoff)
                         : offer.say(CompareBalanceOfOffer, offer.name, offer.kept, owed, principal,
                                     principal - owed);
}

QString TotalCost(const ExplainedOffer& offer) {
    const Money cost = offer.figures.totalCost;
    return offer.say(CompareTotalOfOffer, offer.name, offer.figures.payoff, cost,
                     offer.PointsCost(), offer.entered.costs, cost - offer.PointsAndCosts());
}

QString Payoff(const ExplainedOffer& offer) {
    const auto rows = ScheduleOf(offer.worksheet.input, offer.place);
    const Money last = rows->back().payment;
    if (rows->size() == 1) {
        return offer.say(ComparePayoffOfOfferAtOnce, offer.name, offer.figures.payoff, last);
    }
    return offer.say(ComparePayoffOfOffer, offer.name, offer.figures.payoff, rows->back().number,
                     rows->front().date, rows->front().payment, last);
}

QString Cheaper(const ExplainedOffer& offer) {
    const auto& cheaper = offer.figures.cheaper;
    if (!cheaper) {
        return offer.say(CompareCheaperNone, offer.name);
    }
    if (!cheaper->empty()) {
        return offer.say(CompareCheaperFrom, offer.name, offer.PointsAndCosts(), *cheaper);
    }
    const Money more = offer.figures.costByHorizon - *offer.worksheet.result.current->costByHorizon;
    return offer.say(CompareCheaperNever, offer.name, offer.PointsAndCosts(), offer.kept, more);
}

QString RateToMatch(const ExplainedOffer& offer) {
    const Cheapest cheapest = CheapestOf(offer.worksheet);
    if (offer.figures.rateToMatch) {
        return offer.say(CompareRateToMatch, offer.name, *offer.figures.rateToMatch,
                         offer.entered.rate, offer.kept, cheapest.name, cheapest.cost);
    }
    if (offer.figures.costByHorizon <= cheapest.cost) {
        return offer.say(CompareRateCheapest, offer.name, offer.kept);
    }
    const Rate half = Rate::FromFraction(offer.entered.rate.Fraction() / 2.0);
    return offer.say(CompareRateTooLow, offer.name, half, offer.kept, cheapest.name);
}

QString PaymentForHorizon(const ExplainedOffer& offer) {
    return offer.figures.paymentForHorizon
               ? offer.say(CompareEnoughForOffer, offer.name, *offer.figures.paymentForHorizon,
                           offer.kept, *offer.result.payment)
               : offer.say(CompareNotEnoughForOffer, offer.name, offer.kept);
}

struct Row {
    Figure figure;
    QString (*explain)(const ExplainedOffer&);
};

constexpr std::array Rows{
    Row{Figure::Lender, &Terms},
    Row{Figure::MonthlyEquivalent, &Monthly},
    Row{Figure::PaymentCompared, &PaymentCompared},
    Row{Figure::Upfront, &Upfront},
    Row{Figure::Apr, &AprSentences},
    Row{Figure::EffectiveRate, &Effective},
    Row{Figure::CostByHorizon, &CostByHorizon},
    Row{Figure::BalanceAtHorizon, &Balance},
    Row{Figure::TotalCost, &TotalCost},
    Row{Figure::PayoffDate, &Payoff},
    Row{Figure::InterestSaved, &InterestSavedSentences},
    Row{Figure::PaymentsSaved, &PaymentsSavedSentences},
    Row{Figure::Cheaper, &Cheaper},
    Row{Figure::RateToMatch, &RateToMatch},
    Row{Figure::PaymentForHorizon, &PaymentForHorizon},
};

} // namespace

QString ExplainOffer(const ExplainedOffer& offer, Figure figure) {
    for (const Row& row : Rows) {
        if (row.figure == figure) {
            return row.explain(offer);
        }
    }
    return {};
}

} // namespace quend::compare
