// Sorts random keys and random offers: nothing is lost, the order is right, and equal keys keep the
// order of entry.

#include "OfferOrder.h"
#include "QuendNames.h"
#include "RandomCases.h"
#include "SortKeys.h"
#include "WorksheetTest.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

std::vector<std::size_t> RowsOf(const OfferOrder& order, std::size_t count) {
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < count; ++row) {
        rows.push_back(order.OfferIndexOfRow({static_cast<int>(row)}).value);
    }
    return rows;
}

/// A reference model of a stable sort: swaps neighbours while the first is greater.
template <class Key>
std::vector<std::size_t> Exchanged(const std::vector<Key>& keys) {
    std::vector<std::size_t> offers;
    for (std::size_t offer = 0; offer < keys.size(); ++offer) {
        offers.push_back(offer);
    }
    for (std::size_t passes = 0; passes < offers.size(); ++passes) {
        for (std::size_t row = 1; row < offers.size(); ++row) {
            if (keys[offers[row - 1]] > keys[offers[row]]) {
                std::swap(offers[row - 1], offers[row]);
            }
        }
    }
    return offers;
}

/// Keys with few different values, so that many are equal.
std::vector<Money> RandomKeys(Random& random, std::size_t count) {
    const int values = random.Int(1, 12);
    std::vector<Money> keys;
    for (std::size_t offer = 0; offer < count; ++offer) {
        keys.push_back(Money::FromTenThousandths(random.Whole(-values, values)));
    }
    return keys;
}

TEST(SortingProperties, IsTheStableOrderOfTheKeysWhateverCameBefore) {
    ForRandomCases(1'000, [](Random& random) {
        OfferOrder order;
        std::size_t count = 0;
        for (int sorts = random.Int(1, 4); sorts > 0; --sorts) {
            for (int more = random.Int(0, 40); more > 0; --more) {
                order.Append();
                ++count;
            }
            const std::vector<Money> keys = RandomKeys(random, count);
            const SortOrder by = random.OneIn(2) ? SortOrder::Interest : SortOrder::PayoffDate;
            order.SortBy(by, keys);
            EXPECT_EQ(RowsOf(order, count), Exchanged(keys));
            EXPECT_EQ(order.Order(), by);
            order.SortBy(by, keys); // a second sort changes nothing
            EXPECT_EQ(RowsOf(order, count), Exchanged(keys));
        }
    });
}

TEST(SortingProperties, ShowsEveryOfferInOneRow) {
    ForRandomCases(1'000, [](Random& random) {
        OfferOrder order;
        const auto count = static_cast<std::size_t>(random.Int(1, 100));
        for (std::size_t offer = 0; offer < count; ++offer) {
            order.Append();
        }
        order.SortBy(SortOrder::Interest, RandomKeys(random, count));
        std::vector<std::size_t> rows = RowsOf(order, count);
        std::ranges::sort(rows);
        for (std::size_t offer = 0; offer < count; ++offer) {
            ASSERT_EQ(rows[offer], offer);
        }
    });
}

/// Offers with equal and different rates, with only a lender, and blank ones.
class OffersSortingProperties : public WorksheetTest {
protected:
    static constexpr int OfferCount = 12;

    void EnterAny(Row row, Random& random) {
        switch (random.Int(0, 3)) {
        case 0:
            return;
        case 1:
            return Store({FieldId::Who, row}, u"Bank"_s);
        default:
            EnterOffer(m_worksheet, row,
                       {{FieldId::Term, Months{12 * random.Int(1, 3)}},
                        {FieldId::InterestRate, Rate::FromFraction(random.Int(4, 6) / 100.0)},
                        {FieldId::Frequency, FrequencyCode(random.OneIn(2) ? u"M"_s : u"B"_s)}});
        }
    }
    std::vector<std::size_t> Rows() const {
        std::vector<std::size_t> rows;
        for (Row row{0}; row < Row{OfferCount}; ++row.value) {
            rows.push_back(m_worksheet.OfferIndexOfRow(row).value);
        }
        return rows;
    }
    template <class KeyOf>
    auto Keys(KeyOf keyOf) {
        std::vector<std::invoke_result_t<KeyOf, CLoan&>> keys;
        for (std::size_t offer = 0; offer < OfferCount; ++offer) {
            CLoan copy = m_worksheet.Offer({offer});
            keys.push_back(keyOf(copy));
        }
        return keys;
    }
};

TEST_F(OffersSortingProperties, SortByTheirResultsAndElseAsEntered) {
    m_worksheet.GrowOfferArrays(m_worksheet.HighestOfferRow(), Row{OfferCount - 1});
    ForRandomCases(250, [this](Random& random) {
        m_worksheet.Clear();
        m_worksheet.SetLoanAmount(Units(10'000));
        for (Row row{0}; row < Row{OfferCount}; ++row.value) {
            EnterAny(row, random);
        }
        m_worksheet.SortByInterest();
        EXPECT_EQ(Rows(), Exchanged(Keys(InterestKey)));
        m_worksheet.SortByPayoffDate();
        EXPECT_EQ(Rows(), Exchanged(Keys(PayoffDateKey)));
        m_worksheet.SortByInterest();
        EXPECT_EQ(Rows(), Exchanged(Keys(InterestKey)));
    });
}

} // namespace
