#pragma once

#include "Comparison.h"
#include "CostByMonth.h"
#include "Frequency.h"

#include <cstddef>
#include <optional>

namespace quend::comparison {

/// One offer of a comparison: first alone, then, once the costs of all loans are known, against
/// the others. The input must outlive it.
class ComparedOffer {
public:
    ComparedOffer(const ComparisonInput& input, const OfferInput& offer);

    /// Null where the offer is left out.
    const CostByMonth* Costs() const { return m_costs ? &*m_costs : nullptr; }
    /// `current` is null where the loan held today takes no part. `cheapest` is the least cost by
    /// the horizon. For an offer that is left out, the result has no figures.
    OfferComparison Finish(const CostByMonth* current, int months, Money cheapest);

    /// With the compared payment; none where the offer is left out.
    std::optional<DatedLoan> Compared() const;
    /// Points and costs, paid in cash or not.
    Money Closing() const { return m_closing; }
    /// As LeastPaymentBy does (Solving.h).
    std::optional<Money> LeastPaymentBy(Date day) const;

private:
    int Horizon() const { return m_input->years * MonthsPerYear; }
    LeftOut FindLeftOut() const;
    void RunCompared();
    void ComputeAmounts();
    Money PaymentCompared(Money required, Money intended) const;
    DatedLoan Loan(Rate rate, Money payment) const;
    /// Of the payment of principal and interest alone; none where it never ends.
    std::optional<Payoff> RunRequired() const;
    void AddRates(const Payoff& required);
    std::optional<Rate> FindRateToMatch(Money cheapest) const;
    bool CostsNoMoreAt(Rate rate, Money most) const;

    const ComparisonInput* m_input;
    const OfferInput* m_offer;
    OfferComparison m_result;
    OfferFigures m_figures;
    const Frequency* m_frequency; ///< null: none or unknown
    Months m_term;
    Money m_escrowShare;
    Money m_closing; ///< points and costs, paid in cash or not
    Money m_received;
    bool m_hasAmounts = false; ///< all of the above are within the range of money
    std::optional<CostByMonth> m_costs;
};

struct RequiredAmounts {
    Money principalAndInterest; ///< zero where less than half a cent
    Money payment;              ///< with its escrow share
};

/// What the offer requires. None where its rate, term or frequency is missing, or an amount is
/// outside the range of money.
std::optional<RequiredAmounts> RequiredPayment(const ComparisonInput& input,
                                               const OfferInput& offer);

/// Null where there is no such place.
inline const OfferInput* OfferAt(const ComparisonInput& input, int place) {
    const bool exists = place >= 1 && static_cast<std::size_t>(place) <= input.offers.size();
    return exists ? &input.offers[static_cast<std::size_t>(place) - 1] : nullptr;
}

} // namespace quend::comparison
