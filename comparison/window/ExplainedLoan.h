#pragma once

#include "CompareNames.h"
#include "ComparedWorksheet.h"
#include "Figures.h"
#include "Frequency.h"
#include "Sentences.h"

#include <QString>

#include <cstdint>

namespace quend::compare {

/// An offer that takes part, and what its explanations name. The worksheet must outlive it.
struct ExplainedOffer {
    const ComparedWorksheet& worksheet;
    int place;
    Sentences say;
    QString name;
    QString kept; ///< the years up to the horizon
    const OfferInput& entered;
    const OfferComparison& result;
    const OfferFigures& figures;
    const Frequency& frequency;

    std::int64_t PaymentsAYear() const { return frequency.periodsPerYear; }
    Money EscrowOfPayment() const {
        return EscrowShare(entered.frequency, worksheet.input.escrowMonthly);
    }
    Money PointsCost() const {
        return Money::FromDouble(entered.points.Of(worksheet.input.amount.ToDouble()));
    }
    Money PointsAndCosts() const { return PointsCost() + entered.costs; }
    bool PaysMoreThanRequired() const { return figures.paymentCompared > *result.payment; }
};

/// The loan held today where it takes part.
struct ExplainedCurrent {
    const ComparedWorksheet& worksheet;
    Sentences say;
    QString kept;
    const CurrentLoanInput& entered;
    const CurrentLoanComparison& result;
    const CurrentLoanFigures& figures;
    const Frequency& frequency;

    std::int64_t PaymentsAYear() const { return frequency.periodsPerYear; }
    Money EscrowOfPayment() const {
        return EscrowShare(entered.actualFrequency, worksheet.input.escrowMonthly);
    }
};

/// Empty for the figures that only offers have.
QString ExplainCurrent(const ExplainedCurrent& loan, Figure figure);

QString ExplainOffer(const ExplainedOffer& offer, Figure figure);

// Those of ExplainOffer that need the schedule with the required payment.
QString AprSentences(const ExplainedOffer& offer);
QString InterestSavedSentences(const ExplainedOffer& offer);
QString PaymentsSavedSentences(const ExplainedOffer& offer);

} // namespace quend::compare
