#include "QuendNames.h"
#include "SortKeys.h"
#include "WorksheetTest.h"

#include "Language.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr Row Top{0};

std::vector<int> Offers(std::initializer_list<int> offers) { return offers; }

class SortingTest : public WorksheetTest {
protected:
    /// Which offer each row shows.
    std::vector<int> Rows() const {
        std::vector<int> offers;
        for (Row row{0}; row <= m_worksheet.HighestOfferRow(); ++row.value) {
            offers.push_back(static_cast<int>(m_worksheet.OfferIndexOfRow(row).value));
        }
        return offers;
    }
    /// Offers of 100,000.00 at these rates, in percent: the higher the rate, the more interest.
    void EnterRates(const std::vector<const char*>& rates) {
        EnterOffers(static_cast<int>(rates.size()));
        Row row{0};
        for (const char* rate : rates) {
            Store({FieldId::InterestRate, row}, QLatin1String(rate));
            ++row.value;
        }
        StartCounting();
    }
    /// Offers repaid in full within these months; the longer, the later and the more interest.
    void EnterTerms(std::initializer_list<int> months) {
        EnterOffers(static_cast<int>(months.size()));
        Row row{0};
        for (const int term : months) {
            Store({FieldId::ActualPayment, row}, {});
            Store({FieldId::Term, row}, QString::number(term));
            ++row.value;
        }
        StartCounting();
    }
    /// This many blank rows, with one entry in one of them.
    void EnterAlone(int rows, Row row, FieldId field, const QString& text) {
        m_worksheet.GrowOfferArrays(m_worksheet.HighestOfferRow(), Row{rows - 1});
        switch (field) {
        case FieldId::Who:
            return Store({FieldId::Who, row}, text);
        case FieldId::Frequency:
            return Store({field, row}, text);
        case FieldId::FinancePoints:
            return m_worksheet.Store({FieldId::FinancePoints, row}, true);
        default:
            return Store({field, row}, text);
        }
    }
};

struct KeyCase {
    const char* what;
    FieldId field;
    QString text;
    bool isEntry;
};

// clang-format off
const std::vector<KeyCase> LoneEntries{
    //what        field                    text            counts as an entry
    {"nothing",   FieldId::Points,         u""_s,         false},
    {"points",    FieldId::Points,         u"1.5"_s,      true},
    {"term",      FieldId::Term,           u"360"_s,      true},
    {"intended",  FieldId::ActualPayment,  u"500"_s,      true},
    {"below",     FieldId::ActualPayment,  u"-5"_s,       true},
    {"lender",    FieldId::Who,            u"Bank"_s,     true},
    {"blank",     FieldId::Who,            u" "_s,        true},
    {"rate",      FieldId::InterestRate,   u"6"_s,        false},
    {"frequency", FieldId::Frequency,      u"Monthly"_s,  false},
    {"tick",      FieldId::FinancePoints,  u""_s,         false},
};
// clang-format on

TEST_F(SortingTest, KeysOfOffersWithoutAResultAreFixed) {
    for (const KeyCase& tested : LoneEntries) {
        SCOPED_TRACE(tested.what);
        m_worksheet.Clear();
        EnterAlone(1, Top, tested.field, tested.text);
        CLoan offer = m_worksheet.OfferOfRow(Top);
        EXPECT_EQ(PayoffDateKey(offer), Date::FromCalendar(9999, 12, tested.isEntry ? 30 : 31));
        EXPECT_EQ(PayoffDateKey(offer).Days(), Date::Last().Days() - (tested.isEntry ? 1 : 0));
        EXPECT_EQ(InterestKey(offer), Units(tested.isEntry ? 999'999'998 : 999'999'999));
    }
}

TEST_F(SortingTest, KeysOfOffersWithAResultAreTheResults) {
    EnterOffers(1);
    CLoan offer = m_worksheet.OfferOfRow(Top);
    EXPECT_EQ(PayoffDateKey(offer), Date::FromCalendar(2056, 3, 10));
    EXPECT_EQ(InterestKey(offer), offer.Interest());
    EXPECT_EQ(TextOf({FieldId::Interest, Top}), u"$115,838.53"_s);
}

TEST_F(SortingTest, AScheduleWithoutAnEndCountsAsNoDate) {
    EnterOffers(1);
    CLoan offer = m_worksheet.OfferOfRow(Top);
    offer.SetActualPayment(Units(-5));
    EXPECT_EQ(PayoffDateKey(offer), Date::FromCalendar(9999, 12, 30));
    EXPECT_EQ(InterestKey(offer), Units(999'999'998));
}

TEST_F(SortingTest, LoneEntriesComeBeforeBlankRows) {
    for (const KeyCase& tested : LoneEntries) {
        SCOPED_TRACE(tested.what);
        m_worksheet.Clear();
        EnterAlone(3, Row{2}, tested.field, tested.text);
        const std::vector<int> expected = tested.isEntry ? Offers({2, 0, 1}) : Offers({0, 1, 2});
        m_worksheet.SortByPayoffDate();
        EXPECT_EQ(Rows(), expected);
        m_worksheet.SortByInterest();
        EXPECT_EQ(Rows(), expected);
    }
}

TEST_F(SortingTest, PayoffDatesThenPartlyFilledThenBlank) {
    EnterTerms({51, 360, 23, 360});
    for (const Row row : {Row{1}, Row{3}}) {
        for (const FieldId field : {FieldId::InterestRate, FieldId::Term, FieldId::ActualPayment}) {
            Store({field, row}, {});
        }
    }
    Store({FieldId::InterestRate, Row{1}}, u"6"_s);
    EXPECT_EQ(TextOf({FieldId::PayoffDate, Top}), u"5/10/2030"_s);
    EXPECT_EQ(TextOf({FieldId::PayoffDate, Row{2}}), u"1/10/2028"_s);
    m_worksheet.SortByPayoffDate();
    EXPECT_EQ(Rows(), Offers({2, 0, 1, 3}));
    EXPECT_EQ(m_worksheet.Order(), SortOrder::PayoffDate);
}

struct OrderCase {
    std::vector<const char*> rates;
    std::vector<int> rows;
};

TEST_F(SortingTest, LeastInterestComesFirstAndEqualOnesKeepTheirOrder) {
    // clang-format off
    const std::vector<OrderCase> cases{
        {{"6"},                     {0}},
        {{"6", "5"},                {1, 0}},
        {{"5", "6"},                {0, 1}},
        {{"7", "6", "5", "4"},      {3, 2, 1, 0}},
        {{"6", "5", "6", "5", "6"}, {1, 3, 0, 2, 4}},
        {{"6", "6", "6"},           {0, 1, 2}},
        {{"6", "", "5", ""},        {2, 0, 1, 3}},
    };
    // clang-format on
    for (const OrderCase& tested : cases) {
        SCOPED_TRACE(testing::PrintToString(tested.rows));
        m_worksheet.Clear();
        EnterRates(tested.rates);
        const int times = 2; // a second click does not reverse the order
        for (int time = 0; time < times; ++time) {
            m_worksheet.SortByInterest();
            auto rows = Rows();
            rows.resize(tested.rows.size()); // the blank rows of the previous case follow
            EXPECT_EQ(rows, tested.rows);
        }
    }
}

TEST_F(SortingTest, InterestBeyondTheFixedKeysComesLast) {
    EnterOffers(2);
    m_worksheet.GrowOfferArrays(Row{1}, Row{2});
    m_worksheet.SetLoanAmount(Units(900'000'000));
    m_worksheet.SortByInterest();
    EXPECT_EQ(Rows(), Offers({2, 0, 1}));
}

TEST_F(SortingTest, ByInterestTakesTheLastScheduleAsItIs) {
    EnterRates({"6", "5", "7"});
    Store({FieldId::ActualPayment, Row{1}}, {}); // clears its results until it is recalculated
    StartCounting();
    m_worksheet.SortByInterest();
    EXPECT_EQ(m_offerSchedules, 0);
    EXPECT_EQ(Rows(), Offers({0, 2, 1}));
}

TEST_F(SortingTest, NothingIsChangedOrReportedBySorting) {
    EnterRates({"7", "6", "5"});
    Store({FieldId::ActualPayment, Row{1}}, {});
    StartCounting();
    for (const auto sort : {&Worksheet::SortByPayoffDate, &Worksheet::SortByInterest}) {
        (m_worksheet.*sort)();
        m_worksheet.ShowOffers();
        EXPECT_FALSE(m_worksheet.Dirty());
        EXPECT_EQ(m_display.PaymentsRaised(), 0);
        EXPECT_EQ(m_display.PaymentsRefused(), 0);
        EXPECT_EQ(Rows(), Offers({2, 0, 1}));
        EXPECT_TRUE(m_worksheet.OfferOfRow(Row{2}).ActualPayment().IsZero());
        EXPECT_EQ(ResultTexts(Row{2}), (std::vector{u"$599.55"_s, u"$599.55"_s, u""_s, u""_s}));
    }
}

TEST_F(SortingTest, EveryRowIsShownInTheOrderOfItsColumns) {
    EnterRates({"7", "6"});
    m_worksheet.SortByInterest();
    m_worksheet.ShowOffers();
    std::vector<Field> expected;
    for (Row row{0}; row <= Row{1}; ++row.value) {
        for (const FieldId field :
             {FieldId::Points, FieldId::InterestRate, FieldId::Term, FieldId::Frequency,
              FieldId::PandI, FieldId::Payment, FieldId::ActualPayment, FieldId::PayoffDate,
              FieldId::Interest, FieldId::Who}) {
            expected.push_back({field, row});
        }
    }
    EXPECT_EQ(m_display.TextsInOrder(), expected);
    EXPECT_EQ(m_display.Of({FieldId::FinancePoints, Top}).ticks, 1);
}

TEST_F(SortingTest, ResultsThatCannotBeComputedStayEmpty) {
    EnterRates({"7", "6"});
    EXPECT_THROW(Store({FieldId::ActualPayment, Top}, u"-5"_s), std::exception);
    StartCounting();
    const std::vector before = ResultTexts(Top);
    m_worksheet.SortByPayoffDate();
    EXPECT_NO_THROW(m_worksheet.ShowOffers());
    EXPECT_EQ(Rows(), Offers({1, 0}));
    EXPECT_EQ(ResultTexts(Row{1}), before);
    EXPECT_EQ(before.back(), u""_s);
    EXPECT_FALSE(m_display.Of({FieldId::PayoffDate, Row{1}}).toolTip);
}

TEST_F(SortingTest, WhatIsEnteredGoesToTheOfferInTheRow) {
    EnterRates({"7", "6", "5"});
    m_worksheet.SortByInterest();
    Store({FieldId::Points, Top}, u"1.5"_s);
    Store({FieldId::Who, Row{1}}, u"Middle"_s);
    m_worksheet.Store({FieldId::FinancePoints, Row{2}}, true);
    Store({FieldId::Frequency, Top}, u"Every two weeks"_s);
    EXPECT_EQ(m_worksheet.Offer({2}).Points(), Percent::FromPercent(1.5));
    EXPECT_EQ(m_worksheet.Offer({2}).FrequencyCode(), FrequencyCode(u"W"_s));
    EXPECT_EQ(m_worksheet.Offer({1}).Who(), u"Middle"_s);
    EXPECT_TRUE(m_worksheet.Offer({0}).FinancePoints());
    Store({FieldId::InterestRate, Top}, u"9"_s);
    EXPECT_EQ(Rows(), Offers({2, 1, 0})) << "an edit does not sort again";
}

TEST_F(SortingTest, ARowAddedAfterASortShowsItsOwnOffer) {
    EnterRates({"7", "6", "5"});
    m_worksheet.SortByInterest();
    m_worksheet.GrowOfferArrays(Row{2}, Row{4});
    EXPECT_EQ(Rows(), Offers({2, 1, 0, 3, 4}));
    Store({FieldId::Who, Row{3}}, u"New"_s);
    EXPECT_EQ(m_worksheet.Offer({3}).Who(), u"New"_s);
    m_worksheet.SortByPayoffDate();
    EXPECT_EQ(Rows(), Offers({2, 0, 1, 3, 4})) << "a month apart, by the cents of their payments";
}

TEST_F(SortingTest, ClearingBringsTheOrderOfEntryBack) {
    EnterRates({"7", "6", "5"});
    m_worksheet.SortByInterest();
    EXPECT_EQ(m_display.SortOrders(), std::vector{SortOrder::Interest});
    m_worksheet.Clear();
    EXPECT_EQ(Rows(), Offers({0, 1, 2}));
    EXPECT_EQ(m_worksheet.Order(), SortOrder::Entry);
    EXPECT_EQ(m_display.SortOrders(), (std::vector{SortOrder::Interest, SortOrder::Entry}));
}

TEST_F(SortingTest, MarksOfRaisedPaymentsGoWithTheirOffers) {
    EnterRates({"7", "6"});
    m_worksheet.ClearRaisedMarks();
    Store({FieldId::ActualPayment, Top}, u"1"_s);
    const auto markOf = [&](int row) {
        return m_display.Of({FieldId::ActualPayment, Row{row}}).mark;
    };
    EXPECT_EQ(markOf(0), Mark::Raised);
    m_worksheet.SortByInterest();
    m_worksheet.ShowOffers();
    EXPECT_EQ(markOf(0), Mark::None);
    EXPECT_EQ(markOf(1), Mark::Raised);
    m_worksheet.ClearRaisedMarks();
    m_worksheet.ShowOffers();
    EXPECT_EQ(markOf(1), Mark::None);
}

TEST_F(SortingTest, MarksAreTakenFromEveryRow) {
    EnterRates({"7", "6", "5"});
    for (Row row{0}; row <= Row{2}; ++row.value) {
        Store({FieldId::ActualPayment, row}, u"1"_s);
        EXPECT_EQ(m_display.Of({FieldId::ActualPayment, row}).mark, Mark::Raised);
    }
    m_worksheet.ClearRaisedMarks();
    for (Row row{0}; row <= Row{2}; ++row.value) {
        EXPECT_EQ(m_display.Of({FieldId::ActualPayment, row}).mark, Mark::None) << row.value;
    }
}

TEST_F(SortingTest, SixteenRowsAreSorted) {
    EnterRates(
        {"8", "7", "6", "5", "4", "3", "2", "1", "9", "10", "11", "12", "13", "14", "15", "16"});
    m_worksheet.SortByInterest();
    EXPECT_EQ(Rows(), Offers({7, 6, 5, 4, 3, 2, 1, 0, 8, 9, 10, 11, 12, 13, 14, 15}));
}

TEST_F(SortingTest, ARowThatIsNotThereIsAnInternalError) {
    EnterRates({"7", "6"});
    for (const Row row : {Row{-1}, Row{2}, Row{16}}) {
        EXPECT_THROW(m_worksheet.OfferIndexOfRow(row), std::out_of_range) << row.value;
    }
    EXPECT_THROW(m_worksheet.Offer({2}), std::out_of_range);
}

TEST_F(SortingTest, OrdersHaveTheirNumbers) {
    EXPECT_EQ(static_cast<int>(SortOrder::Entry), 1);
    EXPECT_EQ(static_cast<int>(SortOrder::Interest), 2);
    EXPECT_EQ(static_cast<int>(SortOrder::PayoffDate), 3);
    EXPECT_EQ(m_worksheet.Order(), SortOrder::Entry);
}

} // namespace
