#include "QuendNames.h"
#include "WorksheetTest.h"

using namespace Qt::StringLiterals;

namespace {

using WorksheetCurrentLoanTest = WorksheetTest;

struct MarkCase {
    double amount;
    int term;
    double rate;
    Mark amountMark;
    Mark termMark;
    Mark rateMark;
    QString frequency; ///< after the recalculation
};

TEST_F(WorksheetCurrentLoanTest, MarksWhatIsMissingAndIsMonthlyByDefault) {
    using enum Mark;
    // clang-format off
    const std::vector<MarkCase> cases{
        // amount  term  rate  amount    term     rate     frequency (entered, marked, chosen)
        {0,        0,    0,    None,     None,    None,    u""_s}, // no loan at all
        {0,        0,    0.06, Missing,  Missing, None,    u"Monthly"_s},
        {0,        360,  0,    Missing,  None,    Missing, u"Monthly"_s},
        {0,        360,  0.06, Missing,  None,    None,    u"Monthly"_s},
        {120'000,  0,    0,    None,     Missing, Missing, u"Monthly"_s},
        {120'000,  0,    0.06, None,     Missing, None,    u"Monthly"_s},
        {120'000,  360,  0,    None,     None,    Missing, u"Monthly"_s},
        {120'000,  360,  0.06, None,     None,    None,    u"Monthly"_s},
        {0,        0,    0,    None,     None,    None,    u""_s}, // the marks go again
    };
    // clang-format on
    for (const MarkCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.amount << ", " << c.term << ", " << c.rate);
        m_worksheet.SetCurrentLoanAmount(Units(c.amount));
        m_worksheet.SetCurrentTerm(Months{c.term});
        m_worksheet.SetCurrentInterestRate(Rate::FromFraction(c.rate));
        m_worksheet.SetCurrentFrequency(u""_s);
        m_worksheet.RecalculateCurrentPayment();
        EXPECT_EQ(m_display.Of({FieldId::CurLoanAmount}).mark, c.amountMark);
        EXPECT_EQ(m_display.Of({FieldId::CurLoanTerm}).mark, c.termMark);
        EXPECT_EQ(m_display.Of({FieldId::CurInterestRate}).mark, c.rateMark);
        EXPECT_EQ(m_worksheet.CurrentFrequency(), c.frequency);
        EXPECT_EQ(TextOf({FieldId::CurPaymentFrequency}), c.frequency);

        m_worksheet.SetCurrentFrequency(u"Every two weeks"_s);
        m_worksheet.RecalculateCurrentPayment();
        EXPECT_EQ(m_worksheet.CurrentFrequency(), u"Every two weeks"_s);
    }
}

TEST_F(WorksheetCurrentLoanTest, ARateAloneMarksTheOthersAndAllThreeShowThePayment) {
    Store({FieldId::CurInterestRate}, u"6.5"_s);
    EXPECT_EQ(m_display.Of({FieldId::CurLoanAmount}).mark, Mark::Missing);
    EXPECT_EQ(m_display.Of({FieldId::CurLoanTerm}).mark, Mark::Missing);
    EXPECT_EQ(TextOf({FieldId::CurPaymentFrequency}), u"Monthly"_s);
    EXPECT_EQ(TextOf({FieldId::CurPayment}), QString());
    Store({FieldId::CurLoanAmount}, u"120000"_s);
    Store({FieldId::CurLoanTerm}, u"360"_s);
    EXPECT_EQ(m_display.Of({FieldId::CurLoanAmount}).mark, Mark::None);
    EXPECT_EQ(m_display.Of({FieldId::CurLoanTerm}).mark, Mark::None);
    EXPECT_EQ(TextOf({FieldId::CurPayment}), u"$758.48"_s);
    Store({FieldId::CurInterestRate}, u""_s);
    EXPECT_EQ(m_display.Of({FieldId::CurInterestRate}).mark, Mark::Missing);
}

/// Escrow without a loan is not a payment.
TEST_F(WorksheetCurrentLoanTest, AnIncompleteLoanHasNoPayment) {
    for (const FieldId missing :
         {FieldId::CurLoanAmount, FieldId::CurLoanTerm, FieldId::CurInterestRate}) {
        RecordingDisplay display;
        Worksheet sheet(display, m_worksheet.Texts(), [] { return Date(); });
        sheet.SetEscrowTaxes(Units(2700));
        for (const FieldId entered :
             {FieldId::CurLoanAmount, FieldId::CurLoanTerm, FieldId::CurInterestRate}) {
            if (entered != missing) {
                EnterText(sheet, {entered}, u"6"_s);
            }
        }
        EXPECT_EQ(display.TextOf({FieldId::CurPayment}), QString());
        EXPECT_EQ(sheet.CurrentPayment(), Money());
        EnterText(sheet, {missing}, u"6"_s);
        EXPECT_NE(display.TextOf({FieldId::CurPayment}), QString());
        EnterText(sheet, {missing}, QString());
        EXPECT_EQ(display.TextOf({FieldId::CurPayment}), QString()) << "no longer complete";
        EXPECT_EQ(sheet.CurrentPayment(), Money());
    }
}

struct PaymentCase {
    QString frequency;
    double taxes;
    double pAndI;
    QString payment;
};

TEST_F(WorksheetCurrentLoanTest, ThePaymentCarriesTheWholeEscrowWhateverTheFrequency) {
    // clang-format off
    const std::vector<PaymentCase> cases{
        // frequency          taxes  p and i  payment
        {u"Monthly"_s,       0,     758.48,  u"$758.48"_s},
        {u"Twice a month"_s, 0,     379.07,  u"$379.07"_s},
        {u"Monthly"_s,       2700,  758.48,  u"$983.48"_s},
        {u"Twice a month"_s, 2700,  379.07,  u"$604.07"_s}, // 225.00, not half of it
    };
    // clang-format on
    EnterCurrentLoan();
    for (const auto& [frequency, taxes, pAndI, payment] : cases) {
        m_worksheet.SetEscrowTaxes(Units(taxes));
        m_worksheet.SetCurrentFrequency(frequency);
        StartCounting();
        m_worksheet.RecalculateCurrentPayment();
        EXPECT_EQ(m_worksheet.CurrentPandI(), Units(pAndI));
        EXPECT_EQ(m_worksheet.CurrentPayment(), Units(pAndI + taxes / 12));
        EXPECT_EQ(TextOf({FieldId::CurPayment}), payment);
        EXPECT_EQ(m_display.TextsInOrder(), (std::vector<Field>{{FieldId::CurPayment}}));
    }
}

TEST_F(WorksheetCurrentLoanTest, AComputedPaymentThatChangesIsSaved) {
    EnterCurrentLoan();
    m_worksheet.SetCurrentPayment(Units(1)); // as a saved one that was computed otherwise
    StartCounting();
    m_worksheet.RecalculateCurrentPayment();
    EXPECT_TRUE(m_worksheet.Dirty());
    m_worksheet.ClearDirty();
    m_worksheet.RecalculateCurrentPayment();
    EXPECT_FALSE(m_worksheet.Dirty());
}

struct ScheduleCase {
    double balance;
    double payment;
    QString frequency;
    double taxes;
    QString payoff;
    double amountLeft;
    double interestLeft;
};

/// 10,000 at 6 %, 1,000 per period from 1 March 2026 on.
TEST_F(WorksheetCurrentLoanTest, TheScheduleStartsAtTheNextPayment) {
    // clang-format off
    const std::vector<ScheduleCase> cases{
        // balance  payment  frequency               taxes  payoff           left         interest
        {10'000,    1'000,   u"Monthly"_s,          0,     u"1/1/2027"_s,  10'284.7917, 284.7917},
        {10'000,    1'000,   u"Monthly"_s,          2700,  u"4/1/2027"_s,  13'513.4358, 363.4358},
        {10'000,    1'000,   u"Twice a month"_s,    2700,  u"8/15/2026"_s, 11'506.495,  156.495},
        {10'000,    1'000,   u"Every two weeks"_s,  2700,  u"8/2/2026"_s,  11'493.8448, 143.8448},
        {10'000,    1'000,   u"Every four weeks"_s, 2700,  u"2/28/2027"_s, 13'483.3607, 333.3607},
        {10'000,    1'000,   u""_s,                 2700,  u"3/1/2026"_s,  11'350,      0},
        {0,         1'000,   u"Monthly"_s,          2700,  u""_s,          0,           0},
        {10'000,    0,       u"Monthly"_s,          2700,  u""_s,          0,           0},
    };
    // clang-format on
    EnterCurrentLoan();
    m_worksheet.SetCurrentInterestRate(Rate::FromFraction(0.06));
    for (const ScheduleCase& c : cases) {
        SCOPED_TRACE(c.frequency.toStdString());
        m_worksheet.SetEscrowTaxes(Units(c.taxes));
        m_worksheet.SetCurrentBalance(Units(c.balance));
        m_worksheet.SetCurrentActualFrequency(c.frequency);
        m_worksheet.SetCurrentActualPayment(Units(c.payment));
        EXPECT_EQ(TextOf({FieldId::CurPayoffDate}), c.payoff);
        EXPECT_EQ(m_worksheet.CurrentPayoffDate().IsNone(), c.payoff.isEmpty());
        EXPECT_FALSE(m_display.Of({FieldId::CurPayoffDate}).toolTip);
        EXPECT_EQ(m_worksheet.CurrentAmountLeft(), Units(c.amountLeft));
        EXPECT_EQ(m_worksheet.CurrentInterestLeft(), Units(c.interestLeft));
        const auto currency = [&](double units) {
            return m_worksheet.Texts().DisplayText(Units(units));
        };
        EXPECT_EQ(TextOf({FieldId::CurAmountLeft}), currency(c.amountLeft));
        EXPECT_EQ(TextOf({FieldId::CurInterestLeft}), currency(c.interestLeft));
    }
}

TEST_F(WorksheetCurrentLoanTest, TheScheduleFollowsWhatItDependsOn) {
    EnterCurrentLoan();
    m_worksheet.SetCurrentInterestRate(Rate::FromFraction(0.06));
    EXPECT_EQ(m_worksheet.CurrentPayoffDate(), Date::FromCalendar(2027, 1, 1));
    EXPECT_EQ(TextOf({FieldId::CurAmountLeft}), u"$10,284.79"_s);
    EXPECT_EQ(TextOf({FieldId::CurInterestLeft}), u"$284.79"_s);
    m_worksheet.SetCurrentNextPayment(Date::FromCalendar(2026, 4, 15));
    EXPECT_EQ(TextOf({FieldId::CurPayoffDate}), u"2/15/2027"_s);
    m_worksheet.SetCurrentInterestRate(Rate::FromFraction(0));
    EXPECT_EQ(TextOf({FieldId::CurInterestLeft}), QString());
    EXPECT_EQ(TextOf({FieldId::CurAmountLeft}), u"$10,000.00"_s);
    m_worksheet.SetCurrentBalance(Units(2'000));
    EXPECT_EQ(TextOf({FieldId::CurPayoffDate}), u"6/15/2026"_s); // two payments repay it exactly
}

} // namespace
