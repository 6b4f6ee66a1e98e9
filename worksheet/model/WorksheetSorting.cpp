// Sorts the rows and shows them after a sort.

#include "Failure.h"
#include "ModelNames.h"
#include "SortKeys.h"
#include "Worksheet.h"

#include <vector>

namespace quend::model {

template <class Key, class KeyOf>
void Worksheet::SortBy(SortOrder order, KeyOf keyOf) {
    std::vector<Key> keys;
    keys.reserve(m_offers.size());
    for (CLoan& offer : m_offers) {
        keys.push_back(keyOf(offer));
    }
    m_order.SortBy(order, keys);
    m_display->ShowSortOrder(order);
}

void Worksheet::SortByPayoffDate() { SortBy<Date>(SortOrder::PayoffDate, PayoffDateKey); }

void Worksheet::SortByInterest() { SortBy<Money>(SortOrder::Interest, InterestKey); }

void Worksheet::ShowOffers() {
    for (Row row{0}; row <= HighestOfferRow(); ++row.value) {
        ShowRow(row);
        const bool raised = m_raised.contains(OfferIndexOfRow(row));
        m_display->ShowMark({FieldId::ActualPayment, row}, raised ? Mark::Raised : Mark::None);
    }
}

/// Shows the row in column order. If a result cannot be computed, the later ones are empty, too, as
/// they have been since it was entered.
void Worksheet::ShowRow(Row row) {
    CLoan& offer = OfferIn(row);
    Money pAndI;
    bool failed = false;
    for (const FieldRule& rule : OfferFields()) {
        const Field field{rule.id, row};
        if (rule.access == Access::Input) {
            Show(field);
            continue;
        }
        try {
            if (!failed) {
                ShowResult(offer, field, pAndI);
            }
        } catch (const Failure&) {
            failed = true;
        }
        if (failed) {
            m_display->ShowText(field, {});
        }
        if (failed && field.id == FieldId::PayoffDate) {
            m_display->ShowToolTip(field, false); // the other tooltips would not return
        }
    }
}

/// `pAndI` is computed with its own field, and used by the next.
void Worksheet::ShowResult(CLoan& offer, Field field, Money& pAndI) {
    if (field.id == FieldId::PandI) {
        pAndI = offer.PandI();
        ShowText(field, pAndI);
    } else if (field.id == FieldId::Payment) {
        ShowText(field, offer.LeastPayment(pAndI));
    } else if (field.id == FieldId::PayoffDate) {
        ShowPayoff(offer, field.row); // and the interest with it
    }
}

void Worksheet::ClearRaisedMarks() {
    m_raised.clear();
    for (Row row{0}; row <= HighestOfferRow(); ++row.value) {
        m_display->ShowMark({FieldId::ActualPayment, row}, Mark::None);
    }
}

} // namespace quend::model
