#pragma once

#include "ComparisonNames.h"
#include "Date.h"
#include "Money.h"
#include "Quantities.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quend::comparison {

/// Which payment of each loan is compared.
enum class PaymentChoice {
    Intended, ///< the intended one, raised to the required one where it is lower
    Required,
    Monthly ///< the same amount a month for all, or the required one where that is greater
};

struct OfferInput {
    Percent points{};
    bool pointsFinanced = false;
    Money costs{}; ///< charges besides points, paid in cash; negative for a credit
    Rate rate{};
    Months term{}; ///< zero: that of the worksheet
    FrequencyCode frequency{};
    Money actualPayment{}; ///< the intended payment, escrow share included; zero: none

    friend bool operator==(const OfferInput&, const OfferInput&) = default;
};

/// The loan held today. All values zero or empty: there is none.
struct CurrentLoanInput {
    Money amount{};
    Months term{};
    Rate rate{};
    FrequencyCode frequency{};
    Money balance{};
    Money actualPayment{};
    FrequencyCode actualFrequency{};
    Date nextPayment{}; ///< none: today

    friend bool operator==(const CurrentLoanInput&, const CurrentLoanInput&) = default;
};

/// The longest time for which a loan is kept.
inline constexpr int MostYears = 50;

/// Rates and terms are zero or more.
struct ComparisonInput {
    Date today{};
    int years = 5; ///< how long the loan is kept, from 1 to MostYears
    PaymentChoice choice = PaymentChoice::Intended;
    Money monthlyPayment{}; ///< principal and interest a month, for PaymentChoice::Monthly
    Money amount{};
    Months term{};
    Money escrowMonthly{};
    CurrentLoanInput current{};
    std::vector<OfferInput> offers{}; ///< blank ones included: they count as places

    friend bool operator==(const ComparisonInput&, const ComparisonInput&) = default;
};

/// Why an offer takes no part; the first that holds.
enum class LeftOut { No, NoAmount, NoRate, NoFrequency, NoTerm, NoPayment, NeverEnds };

/// Months after today in which an offer has cost no more than the loan held today.
struct CheaperStretch {
    int fromMonth;
    std::optional<int> untilMonth; ///< the first month outside; none: it never ends

    friend bool operator==(const CheaperStretch&, const CheaperStretch&) = default;
};

struct CheapestOffer {
    int fromMonth;
    int offer; ///< place, from 1

    friend bool operator==(const CheapestOffer&, const CheapestOffer&) = default;
};

/// The figures of an offer that takes part.
struct OfferFigures {
    Money paymentCompared; ///< escrow share included
    Money upfront;         ///< points and costs paid at closing
    Money totalCost;       ///< points, costs and all interest
    Money costByHorizon;
    Money balanceAtHorizon;
    Money monthlyEquivalent;           ///< of the compared payment without escrow, to the cent
    Date payoff;                       ///< with the compared payment
    std::optional<Rate> apr;           ///< good to 1e-10; none: not between 0 and 10,000 %
    std::optional<Rate> effectiveRate; ///< none as apr
    // Against the schedule with the required payment; none where that never ends.
    std::optional<Money> interestSaved;
    std::optional<std::int64_t> paymentsSaved;
    std::optional<std::vector<CheaperStretch>> cheaper; ///< none without a loan to compare with
    /// The rate, in thousandths of a percent, with which the offer costs no more by the horizon
    /// than the cheapest. None where it does already, and where less than half its rate would do.
    std::optional<Rate> rateToMatch;
    /// The least payment in whole cents with which nothing is owed at the horizon.
    std::optional<Money> paymentForHorizon;

    friend bool operator==(const OfferFigures&, const OfferFigures&) = default;
};

/// An offer as the main window shows it, and its figures. A value is none where it could not be
/// computed within its range.
struct OfferComparison {
    std::optional<Money> principal;
    std::optional<Money> principalAndInterest;
    std::optional<Money> payment;
    Money actualPayment;
    bool raised = false; ///< the intended payment is, to the required one; also from zero
    // None also where the schedule of the intended payment is not run or never ends.
    std::optional<Date> payoffDate;
    std::optional<Money> interest;
    bool overflow = false; ///< a value is outside its range, or the schedule never ends
    LeftOut leftOut{};
    std::optional<OfferFigures> figures; ///< none where it is left out

    friend bool operator==(const OfferComparison&, const OfferComparison&) = default;
};

/// Further figures of the loan held today, as those of an offer.
struct CurrentLoanFigures {
    Money paymentCompared;
    Money monthlyEquivalent;
    Money totalCost; ///< the interest from today on
    Date payoff;

    friend bool operator==(const CurrentLoanFigures&, const CurrentLoanFigures&) = default;
};

struct CurrentLoanComparison {
    // Of the actual payment, counted from the next one; none where it never repays the loan.
    std::optional<Money> amountLeft;
    std::optional<Money> interestLeft;
    std::optional<Date> payoffDate; ///< none also without balance or payment
    bool overflow = false;
    // None where the loan takes no part.
    std::optional<Money> costByHorizon;
    std::optional<Money> balanceAtHorizon;
    std::optional<Money> paymentForHorizon;
    std::optional<CurrentLoanFigures> figures;

    friend bool operator==(const CurrentLoanComparison&, const CurrentLoanComparison&) = default;
};

struct ComparisonResult {
    std::vector<OfferComparison> offers; ///< in the order of the input
    int months = 1; ///< until every loan that takes part is repaid; from 1 to 1200
    std::vector<CheapestOffer> cheapest;
    std::optional<int> cheapestByHorizon;         ///< place, from 1; none where no offer takes part
    std::optional<CurrentLoanComparison> current; ///< none where there is no such loan

    friend bool operator==(const ComparisonResult&, const ComparisonResult&) = default;
};

/// The day up to which a loan is kept: so many years after today, cut to the month's last day; at
/// most the last date.
Date HorizonDay(Date today, int years);

/// Computes all figures; nothing is kept between calls. A failure of one loan is its result, and
/// does not raise.
///
/// The cost is linear in the number of offers, and bounded: at most three schedules of an offer (as
/// intended, as compared, as required) and two of the loan held today run to their end, which the
/// calendar limits to 261,000 payments each; searches run up to the horizon, 1,300 payments at
/// most, and beyond it only where rounding decides whether a schedule ends before the last date. So
/// no worksheet of sixteen offers takes longer than docs/performance.md says: about 0.2 s.
ComparisonResult Compare(const ComparisonInput& input);

} // namespace quend::comparison
