#pragma once

#include "Field.h"
#include "ModelNames.h"

#include <set>

namespace quend::model {

/// What is to be computed anew once values have been stored, each step at most once.
class Pending {
public:
    enum Step : unsigned {
        Nothing = 0,
        Escrow = 1,
        Offer = 2,  ///< all results of the row
        Payoff = 4, ///< payoff date and interest of the row
        Offers = 8, ///< all results of every row
        Payment = 16,
        Schedule = 32,
    };

    /// Only the steps of one row need the row.
    void Add(unsigned steps, Row row) {
        m_steps |= steps;
        if ((steps & Offer) != 0) {
            m_offers.insert(row);
        }
        if ((steps & Payoff) != 0) {
            m_payoffs.insert(row);
        }
    }

    // Whether the step was pending; it no longer is.
    bool Take(Step step) {
        const bool pending = (m_steps & step) != 0;
        m_steps &= ~static_cast<unsigned>(step);
        return pending;
    }
    bool TakeOffer(Row row) { return m_offers.erase(row) != 0; }
    bool TakePayoff(Row row) { return m_payoffs.erase(row) != 0; }

private:
    unsigned m_steps = Nothing;
    std::set<Row> m_offers;
    std::set<Row> m_payoffs;
};

} // namespace quend::model
