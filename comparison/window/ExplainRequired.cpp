#include "ExplainedLoan.h"

#include "CompareTextNumbers.h"
#include "LoanSchedule.h"

#include <optional>
#include <vector>

namespace quend::compare {

namespace {

using namespace TextNumber;

/// The payments of principal and interest that the offer requires; none where they never end.
std::optional<std::vector<ScheduleRow>> RequiredPayments(const ExplainedOffer& offer) {
    ComparisonInput required = offer.worksheet.input;
    required.choice = PaymentChoice::Required;
    required.escrowMonthly = Money();
    return ScheduleOf(required, offer.place);
}

/// All payments together; none where they are no less than the amount.
std::optional<Money> SumBelow(Money amount, const std::vector<ScheduleRow>& rows) {
    Money sum;
    for (const ScheduleRow& row : rows) {
        if (row.payment >= amount - sum) {
            return std::nullopt;
        }
        sum += row.payment;
    }
    return sum;
}

QString WhyNoApr(const ExplainedOffer& offer, Money received,
                 const std::optional<std::vector<ScheduleRow>>& rows) {
    if (!rows) {
        return offer.say(CompareAprEndless, offer.name, *offer.result.principalAndInterest);
    }
    if (received <= Money()) {
        return offer.say(CompareAprNothing, offer.name, offer.figures.upfront,
                         offer.worksheet.input.amount);
    }
    if (const std::optional<Money> sum = SumBelow(received, *rows)) {
        return offer.say(CompareAprLess, offer.name, received, *sum);
    }
    constexpr Rate Highest = Rate::FromFraction(100.0);
    return offer.say(CompareAprTooHigh, offer.name, Highest);
}

} // namespace

QString AprSentences(const ExplainedOffer& offer) {
    const Money received = offer.worksheet.input.amount - offer.figures.upfront;
    const auto rows = RequiredPayments(offer);
    if (!offer.figures.apr || !rows) {
        return WhyNoApr(offer, received, rows);
    }
    const Rate apr = *offer.figures.apr;
    const Money each = rows->front().payment;
    const Money last = rows->back().payment;
    // A remainder of less than half a cent is no payment.
    const bool isEven = last.RoundedToCents().IsZero() || last == each;
    const std::int64_t equal = rows->back().number - (last == each ? 0 : 1);
    if (isEven && equal > 1) {
        return offer.say(CompareAprEven, offer.name, received, equal, each, apr);
    }
    if (isEven || equal == 0) {
        return offer.say(CompareAprOfOne, offer.name, received, each, apr);
    }
    return equal == 1 ? offer.say(CompareAprOfTwo, offer.name, received, each, last, apr)
                      : offer.say(CompareApr, offer.name, received, equal, each, last, apr);
}

namespace {

/// Why nothing is saved; empty where something may be.
QString WhyNothingSaved(const ExplainedOffer& offer) {
    if (!offer.PaysMoreThanRequired()) {
        return offer.say(CompareNothingSaved, offer.name, *offer.result.payment);
    }
    return offer.figures.interestSaved
               ? QString()
               : offer.say(CompareSavedNone, offer.name, *offer.result.payment);
}

} // namespace

QString InterestSavedSentences(const ExplainedOffer& offer) {
    QString nothing = WhyNothingSaved(offer);
    if (!nothing.isEmpty()) {
        return nothing;
    }
    const Money interest = offer.figures.totalCost - offer.PointsAndCosts();
    return offer.say(CompareInterestSaved, offer.name, offer.figures.paymentCompared,
                     *offer.result.payment, interest, interest + *offer.figures.interestSaved);
}

QString PaymentsSavedSentences(const ExplainedOffer& offer) {
    QString nothing = WhyNothingSaved(offer);
    if (!nothing.isEmpty()) {
        return nothing;
    }
    const auto rows = ScheduleOf(offer.worksheet.input, offer.place);
    const std::int64_t payments = rows->back().number;
    return offer.say(ComparePaymentsSaved, offer.name, offer.figures.paymentCompared,
                     *offer.result.payment, payments, payments + *offer.figures.paymentsSaved);
}

} // namespace quend::compare
