#include "QuendNames.h"
#include "WorksheetTest.h"

#include "Failure.h"

using namespace Qt::StringLiterals;

namespace {

constexpr Row Row1{1};
const std::vector<QString> NoTexts(4);

/// Three offers and a current loan, all computed, before the failure.
class WorksheetFailureTest : public WorksheetTest {
protected:
    WorksheetFailureTest() {
        EnterOffers(3);
        EnterCurrentLoan();
        StartCounting();
    }

    void ExpectCurrentSchedule(bool shown) const {
        for (const FieldId id :
             {FieldId::CurPayoffDate, FieldId::CurAmountLeft, FieldId::CurInterestLeft}) {
            EXPECT_EQ(TextOf({id}).isEmpty(), !shown) << RuleOf(id).control.latin1();
        }
        EXPECT_EQ(m_worksheet.CurrentPayoffDate().IsNone(), !shown);
        EXPECT_EQ(m_worksheet.CurrentAmountLeft().IsZero(), !shown);
        EXPECT_EQ(m_worksheet.CurrentInterestLeft().IsZero(), !shown);
    }
};

struct UnreadableCase {
    Field field;
    QString text;
    bool tooLarge; ///< else it is no number
};

TEST_F(WorksheetFailureTest, WhatCannotBeReadChangesNothing) {
    // clang-format off
    const std::vector<UnreadableCase> cases{
        {{FieldId::LoanAmount},          u"-"_s,                  false},
        {{FieldId::LoanAmount},          u"922337203685477.59"_s, true},
        {{FieldId::LoanTerm},            u"2147483648"_s,         true},
        {{FieldId::AnnualTaxes},         u"."_s,                  false},
        {{FieldId::CurLoanTerm},         u"2147483648"_s,         true},
        {{FieldId::CurInterestRate},     u"6%"_s,                 false},
        {{FieldId::Points, Row1},        u"9"_s.repeated(400),    true},
        {{FieldId::InterestRate, Row1},  u"+"_s,                  false},
        {{FieldId::Term, Row1},          u"2147483648"_s,         true},
        {{FieldId::ActualPayment, Row1}, u"1,000"_s,              false},
    };
    // clang-format on
    for (const auto& [field, text, tooLarge] : cases) {
        const QString before = m_worksheet.EntryText(field);
        if (tooLarge) {
            EXPECT_THROW(Store(field, text), OverflowFailure) << text.toStdString();
        } else {
            EXPECT_THROW(Store(field, text), ConversionFailure) << text.toStdString();
        }
        EXPECT_EQ(m_worksheet.EntryText(field), before);
    }
    EXPECT_FALSE(m_worksheet.Dirty());
    EXPECT_TRUE(m_display.TextsInOrder().empty());
}

TEST_F(WorksheetFailureTest, AnEscrowTooLargeCountsAsNone) {
    m_worksheet.SetEscrowInsurance(Units(2700));
    m_worksheet.SetCurrentBalance(Units(9'000));
    EXPECT_EQ(TextOf({FieldId::Payment, Row1}), u"$824.55"_s);
    StartCounting();
    EXPECT_THROW(m_worksheet.SetEscrowTaxes(LargestAmount()), OverflowFailure);
    EXPECT_EQ(m_worksheet.EscrowTaxes(), LargestAmount());
    EXPECT_EQ(m_worksheet.EscrowInsurance(), Units(2700));
    EXPECT_TRUE(m_worksheet.Dirty());
    EXPECT_EQ(m_worksheet.EscrowMonthly(), Money());
    EXPECT_EQ(TextOf({FieldId::MonthlyEscrow}), QString());
    EXPECT_EQ(m_display.Of({FieldId::MonthlyEscrow}).texts, 1);
    for (Row row{0}; row.value < 3; ++row.value) {
        EXPECT_EQ(TextOf({FieldId::Payment, row}), u"$599.55"_s);
    }
    EXPECT_EQ(TextOf({FieldId::CurPayment}), u"$758.48"_s);
    ExpectCurrentSchedule(true);

    m_worksheet.SetEscrowTaxes(Money()); // and everything is computed again
    EXPECT_EQ(TextOf({FieldId::MonthlyEscrow}), u"$225.00"_s);
    EXPECT_EQ(TextOf({FieldId::Payment, Row1}), u"$824.55"_s);
}

TEST_F(WorksheetFailureTest, OneOfferThatFailsLeavesTheOthersShown) {
    m_worksheet.Store({FieldId::FinancePoints, Row1}, true);
    Store({FieldId::Points, Row1}, u"5000"_s); // the points are fifty times the loan, added to it
    ASSERT_FALSE(TextOf({FieldId::Interest, Row1}).isEmpty());
    StartCounting();
    EXPECT_THROW(m_worksheet.SetLoanAmount(Units(20e12)), OverflowFailure);
    EXPECT_EQ(m_worksheet.LoanAmount(), Units(20e12));
    EXPECT_TRUE(m_worksheet.Dirty());
    EXPECT_EQ(ResultTexts(Row1), NoTexts);
    EXPECT_EQ(m_worksheet.EntryText({FieldId::Points, Row1}), u"5000"_s);
    EXPECT_TRUE(m_worksheet.OfferOfRow(Row1).FinancePoints());
    for (const Row row : {Row{0}, Row{2}}) {
        EXPECT_EQ(TextOf({FieldId::PandI, row}), u"$119,910,105,030.55"_s);
        EXPECT_EQ(TextOf({FieldId::PayoffDate, row}), u"3/10/2056"_s);
    }
    for (const Field field : OfferResults(Row1)) {
        EXPECT_EQ(m_display.Of(field).texts, 1) << testing::PrintToString(field);
    }

    m_worksheet.SetLoanAmount(Units(100'000));
    EXPECT_NE(ResultTexts(Row1), NoTexts);
    EXPECT_EQ(TextOf({FieldId::PandI, Row{0}}), u"$599.55"_s);
}

TEST_F(WorksheetFailureTest, AnOfferWhosePaymentsAreTooManyKeepsItsFrequency) {
    EXPECT_NO_THROW(Store({FieldId::Term, Row1}, u"1073741824"_s));
    EXPECT_THROW(Store({FieldId::Frequency, Row1}, u"Twice a month"_s), OverflowFailure);
    EXPECT_EQ(m_worksheet.OfferOfRow(Row1).FrequencyCode(), FrequencyCode(u"B"_s));
    EXPECT_EQ(TextOf({FieldId::Frequency, Row1}), u"Twice a month"_s);
    EXPECT_EQ(ResultTexts(Row1), NoTexts);
    EXPECT_TRUE(m_worksheet.Dirty());
}

/// Without a term there is no payment to compare with, so a payment that never repays is accepted.
TEST_F(WorksheetFailureTest, AnIntendedPaymentThatNeverRepaysIsKept) {
    const Field intended{FieldId::ActualPayment, Row1};
    Store({FieldId::Term, Row1}, u""_s);
    StartCounting();
    EXPECT_THROW(Store(intended, u"1"_s), OverflowFailure);
    EXPECT_EQ(TextOf(intended), u"$1.00"_s);
    EXPECT_EQ(m_worksheet.OfferOfRow(Row1).ActualPayment(), Units(1));
    EXPECT_TRUE(m_worksheet.Dirty());
    EXPECT_EQ(ResultTexts(Row1), NoTexts);
    EXPECT_THROW(m_worksheet.RecalculateOffer(Row1), OverflowFailure);
    EXPECT_EQ(ResultTexts(Row1), NoTexts);
    EXPECT_NO_THROW(Store({FieldId::Term, Row1}, u"360"_s));
    EXPECT_EQ(TextOf(intended), u"$599.55"_s);

    EXPECT_THROW(Store(intended, u"-5"_s), OverflowFailure); // negative: fails, not refused
    EXPECT_EQ(TextOf(intended), u"($5.00)"_s);
    EXPECT_EQ(TextOf({FieldId::PayoffDate, Row1}), QString());
    EXPECT_EQ(TextOf({FieldId::Interest, Row1}), QString());
    EXPECT_EQ(m_display.PaymentsRefused(), 0);
}

TEST_F(WorksheetFailureTest, AnIntendedPaymentThatCannotBeCheckedStaysAsItWas) {
    const Field intended{FieldId::ActualPayment, Row1};
    m_worksheet.Store({FieldId::FinancePoints, Row1}, true);
    EXPECT_THROW(Store({FieldId::Points, Row1}, u"1000000000000"_s), OverflowFailure);
    EXPECT_EQ(m_worksheet.EntryText({FieldId::Points, Row1}), u"1000000000000"_s);
    EXPECT_EQ(TextOf({FieldId::Points, Row1}), u"1000000000000.000"_s);
    StartCounting();
    EXPECT_THROW(Store(intended, u"900"_s), OverflowFailure);
    EXPECT_EQ(m_worksheet.OfferOfRow(Row1).ActualPayment(), Units(599.55));
    EXPECT_EQ(TextOf(intended), u"$599.55"_s);
    EXPECT_EQ(m_display.Of(intended).texts, 1);
    EXPECT_FALSE(m_worksheet.Dirty());
    EXPECT_EQ(ResultTexts(Row1), NoTexts);
}

/// The field is empty, so there is nothing for a tooltip to explain.
TEST_F(WorksheetFailureTest, AnOfferThatFailsHasNoToolTipAtItsPayoffDate) {
    ASSERT_TRUE(m_display.Of({FieldId::PayoffDate, Row1}).toolTip);
    Store({FieldId::Term, Row1}, u"1073741824"_s);
    EXPECT_THROW(Store({FieldId::Frequency, Row1}, u"Twice a month"_s), OverflowFailure);
    EXPECT_FALSE(m_display.Of({FieldId::PayoffDate, Row1}).toolTip);

    const Row last{2};
    Store({FieldId::Term, last}, u""_s);
    ASSERT_TRUE(m_display.Of({FieldId::PayoffDate, last}).toolTip);
    EXPECT_THROW(Store({FieldId::ActualPayment, last}, u"1"_s), OverflowFailure);
    EXPECT_FALSE(m_display.Of({FieldId::PayoffDate, last}).toolTip);
}

/// These tooltips would never return if they were removed.
TEST_F(WorksheetFailureTest, AnOfferThatFailsKeepsItsOtherToolTipsWhenSorted) {
    Store({FieldId::Term, Row1}, u"1073741824"_s);
    EXPECT_THROW(Store({FieldId::Frequency, Row1}, u"Twice a month"_s), OverflowFailure);
    m_worksheet.SortByPayoffDate();
    m_worksheet.ShowOffers();
    for (Row row{0}; row <= m_worksheet.HighestOfferRow(); ++row.value) {
        EXPECT_EQ(m_display.Of({FieldId::PandI, row}).toolTips, 0) << row.value;
        EXPECT_EQ(m_display.Of({FieldId::Payment, row}).toolTips, 0) << row.value;
    }
}

struct EndlessCase {
    FieldId field;
    QString typed;
};

/// The current loan is not checked against its payment, which may never repay it.
TEST_F(WorksheetFailureTest, ACurrentLoanThatIsNeverRepaidShowsNoSchedule) {
    // clang-format off
    const std::vector<EndlessCase> cases{
        {FieldId::CurActualPayment, u"1"_s},
        {FieldId::CurActualPayment, u"-1000"_s},
        {FieldId::CurrentBalance,   u"900000000000"_s},
        {FieldId::CurInterestRate,  u"1000"_s},
        {FieldId::AnnualTaxes,      u"12000"_s},
    };
    // clang-format on
    for (const auto& [id, typed] : cases) {
        SCOPED_TRACE(RuleOf(id).control.latin1());
        const QString before = m_worksheet.EntryText({id});
        ExpectCurrentSchedule(true);
        StartCounting();
        EXPECT_THROW(Store({id}, typed), OverflowFailure);
        EXPECT_EQ(m_worksheet.EntryText({id}), typed);
        EXPECT_TRUE(m_worksheet.Dirty());
        ExpectCurrentSchedule(false);
        EXPECT_FALSE(TextOf({FieldId::CurPayment}).isEmpty());
        EXPECT_NE(ResultTexts(Row{2}), NoTexts);
        Store({id}, before);
    }
}

TEST_F(WorksheetFailureTest, ACurrentPaymentTooLargeLeavesTheScheduleShown) {
    Store({FieldId::CurLoanTerm}, u"1"_s);
    StartCounting();
    EXPECT_THROW(Store({FieldId::CurLoanAmount}, u"922337203685477"_s), OverflowFailure);
    EXPECT_EQ(m_worksheet.EntryText({FieldId::CurLoanAmount}), u"922337203685477"_s);
    EXPECT_TRUE(m_worksheet.Dirty());
    EXPECT_EQ(m_worksheet.CurrentPandI(), Money());
    EXPECT_EQ(m_worksheet.CurrentPayment(), Money());
    EXPECT_EQ(TextOf({FieldId::CurPayment}), QString());
    EXPECT_EQ(m_display.Of({FieldId::CurPayment}).texts, 1);
    EXPECT_EQ(m_display.Of({FieldId::CurPayoffDate}).texts, 1);
    ExpectCurrentSchedule(true);
    Store({FieldId::CurLoanAmount}, u"120000"_s);
    EXPECT_EQ(TextOf({FieldId::CurPayment}), u"$120,650.00"_s);
}

} // namespace
