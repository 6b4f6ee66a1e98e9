#pragma once

#include "Field.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace quend::model {

/// What the rows are ordered by.
enum class SortOrder : std::int32_t {
    Entry = 1,      ///< row n shows offer n
    Interest = 2,   ///< the least interest first
    PayoffDate = 3, ///< the soonest payoff date first
};

/// Which offer each row shows. The offers themselves never move. Knows only the number of offers;
/// the caller supplies the sort keys.
class OfferOrder {
public:
    SortOrder Order() const { return m_order; }

    /// Throws std::out_of_range for a row that does not exist.
    OfferIndex OfferIndexOfRow(Row row) const {
        return m_offers.at(static_cast<std::size_t>(row.value));
    }

    /// Throws std::out_of_range for an offer that does not exist.
    Row RowOfOffer(OfferIndex offer) const {
        const auto row = std::ranges::find(m_offers, offer) - m_offers.begin();
        static_cast<void>(m_offers.at(static_cast<std::size_t>(row)));
        return Row{static_cast<int>(row)};
    }

    /// Adds one row at the end for one more offer, in any order.
    void Append() { m_offers.push_back({m_offers.size()}); }

    /// Sorts by ascending key; offers with the same key keep their order of entry. `keys` has one
    /// key for each offer, in the order of entry.
    template <class Key>
    void SortBy(SortOrder order, const std::vector<Key>& keys) {
        std::ranges::sort(m_offers); // back to the order of entry
        std::ranges::stable_sort(m_offers, {},
                                 [&](OfferIndex offer) { return keys.at(offer.value); });
        m_order = order;
    }

private:
    SortOrder m_order = SortOrder::Entry;
    std::vector<OfferIndex> m_offers; // one for each row
};

} // namespace quend::model
