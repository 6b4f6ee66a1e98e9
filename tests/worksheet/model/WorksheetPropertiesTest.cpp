#include "QuendNames.h"
#include "WorksheetTest.h"

#include <functional>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

/// A property of the worksheet with a value to set.
struct Access {
    std::function<void(Worksheet&)> write;
    std::function<void(Worksheet&)> clear; ///< sets the empty value
    std::function<bool(const Worksheet&)> holds;
    std::function<bool(const Worksheet&)> isEmpty;
};

template <class Written, class Value>
Access Property(void (Worksheet::*set)(Written), Value (Worksheet::*get)() const,
                const std::type_identity_t<Value>& value) {
    return {[=](Worksheet& sheet) { (sheet.*set)(value); },
            [=](Worksheet& sheet) { (sheet.*set)(Value()); },
            [=](const Worksheet& sheet) { return (sheet.*get)() == value; },
            [=](const Worksheet& sheet) { return (sheet.*get)() == Value(); }};
}

struct Case {
    Access property;
    bool dirties;
    FieldId field;
    QString text;
    std::vector<Field> results; ///< other fields shown, on an otherwise empty worksheet
};

const std::vector<Field> Schedule{
    {FieldId::CurAmountLeft}, {FieldId::CurInterestLeft}, {FieldId::CurPayoffDate}};
const std::vector<Field> EscrowAndSchedule{{FieldId::MonthlyEscrow},
                                           {FieldId::CurAmountLeft},
                                           {FieldId::CurInterestLeft},
                                           {FieldId::CurPayoffDate}};

const std::vector<Case>& Properties() {
    using Sheet = Worksheet;
    using enum FieldId;
    // clang-format off
    static const std::vector<Case> cases{
        // setter and getter, value                                                                        dirty  field                text                   results
        {Property(&Sheet::SetLoanName, &Sheet::LoanName, u"Home"_s),                                       false, FieldId::LoanName,   u"Home"_s,            {}},
        {Property(&Sheet::SetLoanType, &Sheet::LoanType, LoanTypeCode(u"M"_s)),                            true,  FieldId::LoanType,   u"Mortgage"_s,        {}},
        {Property(&Sheet::SetLoanType, &Sheet::LoanType, LoanTypeCode(u"Z"_s)),                            true,  FieldId::LoanType,   u""_s,                {}},
        {Property(&Sheet::SetLoanAmount, &Sheet::LoanAmount, Units(1234.5)),                               true,  FieldId::LoanAmount, u"$1,234.50"_s,       {}},
        {Property(&Sheet::SetLoanTerm, &Sheet::LoanTerm, Months{360}),                                     true,  FieldId::LoanTerm,   u"360"_s,             {}},
        {Property(&Sheet::SetEscrowTaxes, &Sheet::EscrowTaxes, Units(1800)),                               true,  AnnualTaxes,         u"$1,800.00"_s,       EscrowAndSchedule},
        {Property(&Sheet::SetEscrowInsurance, &Sheet::EscrowInsurance, Units(900)),                        true,  AnnualInsurance,     u"$900.00"_s,         EscrowAndSchedule},
        {Property(&Sheet::SetCurrentLoanAmount, &Sheet::CurrentLoanAmount, Units(120'000)),                true,  CurLoanAmount,       u"$120,000.00"_s,     Schedule},
        {Property(&Sheet::SetCurrentTerm, &Sheet::CurrentTerm, Months{186}),                               true,  CurLoanTerm,         u"186"_s,             Schedule},
        {Property(&Sheet::SetCurrentInterestRate, &Sheet::CurrentInterestRate, Rate::FromFraction(0.065)), true,  CurInterestRate,     u"6.500%"_s,          Schedule},
        {Property(&Sheet::SetCurrentFrequency, &Sheet::CurrentFrequency, u"Every two weeks"_s),            true,  CurPaymentFrequency, u"Every two weeks"_s, Schedule},
        {Property(&Sheet::SetCurrentPayment, &Sheet::CurrentPayment, Units(758.48)),                       true,  CurPayment,          u"$758.48"_s,         Schedule},
        {Property(&Sheet::SetCurrentBalance, &Sheet::CurrentBalance, Units(-10)),                          true,  CurrentBalance,      u"($10.00)"_s,        Schedule},
        {Property(&Sheet::SetCurrentActualPayment, &Sheet::CurrentActualPayment, Units(0.5)),              true,  CurActualPayment,    u"$0.50"_s,           Schedule},
        {Property(&Sheet::SetCurrentActualFrequency, &Sheet::CurrentActualFrequency, u"Monthly"_s),        true,  ActPaymentFrequency, u"Monthly"_s,         Schedule},
    };
    // clang-format on
    return cases;
}

using WorksheetPropertiesTest = WorksheetTest;

TEST_F(WorksheetPropertiesTest, StartEmpty) {
    for (const Case& c : Properties()) {
        EXPECT_TRUE(c.property.isEmpty(m_worksheet)) << testing::PrintToString(Field{c.field});
    }
    EXPECT_TRUE(m_worksheet.CurrentNextPayment().IsNone());
    EXPECT_TRUE(m_worksheet.CurrentPayoffDate().IsNone());
    EXPECT_EQ(m_worksheet.EscrowMonthly(), Money());
    EXPECT_EQ(m_worksheet.CurrentPandI(), Money());
    EXPECT_EQ(m_worksheet.CurrentAmountLeft(), Money());
    EXPECT_EQ(m_worksheet.CurrentInterestLeft(), Money());
    EXPECT_EQ(m_worksheet.HighestOfferRow(), Row{-1});
    EXPECT_FALSE(m_worksheet.Dirty());
    EXPECT_FALSE(m_worksheet.PaymentNoticeShown());
    EXPECT_TRUE(m_display.TextsInOrder().empty());
}

/// Each on a separate worksheet.
TEST_F(WorksheetPropertiesTest, StoreShowAndDirtyWhenTheyChange) {
    for (const Case& c : Properties()) {
        SCOPED_TRACE(testing::PrintToString(Field{c.field}));
        RecordingDisplay display;
        Worksheet sheet(display, m_worksheet.Texts(), [] { return Date(); });
        const std::vector<Field> shown = Sorted({{{c.field}}, c.results});
        if (c.field != FieldId::CurPaymentFrequency) { // else the first value makes it monthly
            sheet.SetCurrentFrequency(u"Monthly"_s);
            sheet.ClearDirty();
        }

        c.property.clear(sheet); // the property is already empty
        EXPECT_FALSE(sheet.Dirty());
        EXPECT_EQ(display.TextOf({c.field}), QString());

        display.ForgetCalls();
        c.property.write(sheet);
        EXPECT_TRUE(c.property.holds(sheet));
        EXPECT_EQ(sheet.Dirty(), c.dirties);
        EXPECT_EQ(display.TextOf({c.field}), c.text);
        EXPECT_EQ(Sorted({display.TextsInOrder()}), shown);

        sheet.ClearDirty();
        EXPECT_FALSE(sheet.Dirty());
        display.ForgetCalls();
        c.property.write(sheet);
        EXPECT_FALSE(sheet.Dirty()) << "the same value again";
        EXPECT_EQ(Sorted({display.TextsInOrder()}), shown);

        c.property.clear(sheet);
        EXPECT_TRUE(c.property.isEmpty(sheet));
        EXPECT_EQ(sheet.Dirty(), c.dirties);
        EXPECT_EQ(display.TextOf({c.field}), QString());
    }
}

TEST_F(WorksheetPropertiesTest, TheNextPaymentIsShownAsADate) {
    const Date first = Date::FromCalendar(2026, 3, 1);
    for (const Date date : {first, Date()}) {
        StartCounting();
        m_worksheet.SetCurrentNextPayment(date);
        EXPECT_EQ(m_worksheet.CurrentNextPayment(), date);
        EXPECT_TRUE(m_worksheet.Dirty());
        EXPECT_EQ(m_display.Of({FieldId::NextPayment}).date, date);
        EXPECT_EQ(m_display.Of({FieldId::NextPayment}).dates, 1);
        EXPECT_EQ(Sorted({m_display.TextsInOrder()}), Sorted({Schedule}));

        m_worksheet.ClearDirty();
        m_worksheet.SetCurrentNextPayment(date);
        EXPECT_FALSE(m_worksheet.Dirty());
    }
}

TEST_F(WorksheetPropertiesTest, FrequenciesOfNoKnownTextAreNone) {
    for (const QString& text : {u"monthly"_s, u"M"_s, u"Yearly"_s, u""_s}) {
        m_worksheet.SetCurrentFrequency(u"Monthly"_s);
        m_worksheet.SetCurrentActualFrequency(u"Monthly"_s);
        m_worksheet.SetCurrentFrequency(text);
        m_worksheet.SetCurrentActualFrequency(text);
        EXPECT_EQ(m_worksheet.CurrentFrequency(), QString());
        EXPECT_EQ(m_worksheet.CurrentActualFrequency(), QString());
        EXPECT_EQ(TextOf({FieldId::ActPaymentFrequency}), QString());
    }
}

TEST_F(WorksheetPropertiesTest, RecalculatingAloneIsNoChange) {
    EnterOffers(1);
    EnterCurrentLoan();
    StartCounting();
    m_worksheet.RecalculateEscrow();
    m_worksheet.RecalculateOffer(Row{0});
    m_worksheet.RecalculateCurrentPayment();
    m_worksheet.RecalculateCurrentSchedule();
    EXPECT_FALSE(m_worksheet.Dirty());
}

struct EscrowCase {
    double taxes;
    double insurance;
    double monthly;
    QString text;
};

TEST_F(WorksheetPropertiesTest, TheMonthlyEscrowIsATwelfthInWholeCents) {
    // clang-format off
    const std::vector<EscrowCase> cases{
        // taxes  insurance  monthly  text
        {1800,    900,       225.00,  u"$225.00"_s},
        {1000,    0,         83.33,   u"$83.33"_s},
        {0,       1000,      83.33,   u"$83.33"_s},
        {0.18,    0,         0.02,    u"$0.02"_s}, // one and a half cents: halves to even
        {0.30,    0,         0.02,    u"$0.02"_s}, // two and a half
        {0.06,    0,         0,       u""_s}, // half a cent
        {100,     -100,      0,       u""_s},
        {-1200,   0,         -100,    u"($100.00)"_s},
        {0,       0,         0,       u""_s},
    };
    // clang-format on
    for (const auto& [taxes, insurance, monthly, text] : cases) {
        m_worksheet.SetEscrowTaxes(Units(taxes));
        m_worksheet.SetEscrowInsurance(Units(insurance));
        EXPECT_EQ(m_worksheet.EscrowMonthly(), Units(monthly)) << taxes << " and " << insurance;
        EXPECT_EQ(TextOf({FieldId::MonthlyEscrow}), text);
    }
}

TEST_F(WorksheetPropertiesTest, TheNoticeIsRememberedAsShown) {
    m_worksheet.SetPaymentNoticeShown(true);
    EXPECT_TRUE(m_worksheet.PaymentNoticeShown());
    m_worksheet.SetPaymentNoticeShown(false);
    EXPECT_FALSE(m_worksheet.PaymentNoticeShown());
}

} // namespace
