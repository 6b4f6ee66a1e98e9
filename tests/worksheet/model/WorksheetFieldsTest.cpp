#include "Language.h"
#include "QuendNames.h"
#include "WorksheetTest.h"

#include "Failure.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr Row Row1{1};

/// Two offers and a current loan that may be changed without raising an intended payment.
class WorksheetFieldsTest : public WorksheetTest {
protected:
    WorksheetFieldsTest() {
        EnterOffers(2);
        for (const Row row : {Row{0}, Row1}) {
            Store({FieldId::ActualPayment, row}, u"5000"_s);
        }
        EnterCurrentLoan();
        StartCounting();
    }
};

const std::vector<Field> CurrentLoan{{FieldId::CurPayment},
                                     {FieldId::CurAmountLeft},
                                     {FieldId::CurInterestLeft},
                                     {FieldId::CurPayoffDate}};
const std::vector<Field> BothOffers = Sorted({OfferResults(Row{0}), OfferResults(Row1)});
const std::vector<Field> Everything = Sorted({{{FieldId::MonthlyEscrow}}, BothOffers, CurrentLoan});

struct NumberCase {
    Field field;
    QString typed;
    QString entry;
    QString shown;
    std::vector<Field> others; ///< other fields shown, each once
    int schedules;             ///< number of offer schedules
};

const std::vector<NumberCase>& NumberCases() {
    using enum FieldId;
    // clang-format off
    static const std::vector<NumberCase> cases{
        // field                typed          entry         shown              others                                        schedules
        {{FieldId::LoanAmount}, u"200000"_s,  u"200000"_s, u"$200,000.00"_s, BothOffers,                                   2},
        {{FieldId::LoanTerm},   u"+180"_s,    u"180"_s,    u"180"_s,         {},                                           0},
        {{AnnualTaxes},         u"1800.50"_s, u"1800.5"_s, u"$1,800.50"_s,   Everything,                                   2},
        {{AnnualInsurance},     u"900"_s,     u"900"_s,    u"$900.00"_s,     Everything,                                   2},
        {{CurLoanAmount},       u"130000"_s,  u"130000"_s, u"$130,000.00"_s, CurrentLoan,                                  0},
        {{CurLoanTerm},         u"180"_s,     u"180"_s,    u"180"_s,         CurrentLoan,                                  0},
        {{CurInterestRate},     u"7.337"_s,   u"7.337"_s,  u"7.337%"_s,      CurrentLoan,                                  0},
        {{CurrentBalance},      u"9000"_s,    u"9000"_s,   u"$9,000.00"_s,   CurrentLoan,                                  0},
        {{CurActualPayment},    u"2000"_s,    u"2000"_s,   u"$2,000.00"_s,   CurrentLoan,                                  0},
        {{Points, Row1},        u".5"_s,      u"0.5"_s,    u".500"_s,        OfferResults(Row1),                           1},
        {{InterestRate, Row1},  u"7"_s,       u"7"_s,      u"7.000%"_s,      Sorted({{{Term, Row1}}, OfferResults(Row1)}), 1},
        {{Term, Row1},          u"180"_s,     u"180"_s,    u"180"_s,         OfferResults(Row1),                           1},
        {{ActualPayment, Row1}, u"6000"_s,    u"6000"_s,   u"$6,000.00"_s,   {{PayoffDate, Row1}, {Interest, Row1}},       1},
        {{Costs, Row1},         u"-950.5"_s,  u"-950.5"_s, u"($950.50)"_s,   {},                                           0},
    };
    // clang-format on
    return cases;
}

TEST_F(WorksheetFieldsTest, ANumberIsStoredShownAndComputedOnce) {
    for (const NumberCase& c : NumberCases()) {
        SCOPED_TRACE(testing::PrintToString(c.field));
        const std::vector<Field> shown = Sorted({{c.field}, c.others});
        StartCounting();
        Store(c.field, c.typed);
        EXPECT_TRUE(m_worksheet.Dirty());
        EXPECT_EQ(m_worksheet.EntryText(c.field), c.entry);
        EXPECT_EQ(TextOf(c.field), c.shown);
        EXPECT_EQ(Sorted({m_display.TextsInOrder()}), shown);
        EXPECT_EQ(m_offerSchedules, c.schedules);
        EXPECT_EQ(m_display.PaymentsRaised(), 0);

        StartCounting();
        Store(c.field, c.typed);
        EXPECT_FALSE(m_worksheet.Dirty()) << "the same number again";
        EXPECT_EQ(Sorted({m_display.TextsInOrder()}), shown);
        EXPECT_EQ(m_offerSchedules, c.schedules);
    }
    EXPECT_EQ(TextOf({FieldId::Points, Row{0}}), QString()) << "of another row";
}

TEST_F(WorksheetFieldsTest, AnEmptyTextStoresZero) {
    for (const NumberCase& c : NumberCases()) {
        SCOPED_TRACE(testing::PrintToString(c.field));
        Store(c.field, c.typed);
        StartCounting();
        Store(c.field, u""_s);
        EXPECT_TRUE(m_worksheet.Dirty());
        EXPECT_EQ(m_worksheet.EntryText(c.field), QString());
        EXPECT_EQ(TextOf(c.field), QString());
    }
    EXPECT_EQ(m_worksheet.LoanAmount(), Money());
    EXPECT_TRUE(m_worksheet.LoanTerm().IsZero());
    EXPECT_TRUE(m_worksheet.CurrentInterestRate().IsZero());
    EXPECT_TRUE(m_worksheet.OfferOfRow(Row1).InterestRate().IsZero());
    EXPECT_TRUE(m_worksheet.OfferOfRow(Row1).Term().IsZero());
}

struct AcceptCase {
    FieldId field;
    QString text;
    bool accepted;
};

TEST_F(WorksheetFieldsTest, AcceptsTheFormOfEachField) {
    // clang-format off
    const std::vector<AcceptCase> cases{
        // field                   text              accepted
        {FieldId::LoanAmount,      u"1234.56"_s,    true},
        {FieldId::LoanAmount,      u"1234.567"_s,   false},
        {FieldId::LoanAmount,      u"12345678.9"_s, true},
        {FieldId::LoanAmount,      u""_s,           true},
        {FieldId::LoanAmount,      u"-5"_s,         true},
        {FieldId::LoanAmount,      u"5-"_s,         false},
        {FieldId::LoanAmount,      u"5."_s,         true},
        {FieldId::LoanAmount,      u"-"_s,          false}, // the form of a number without a value
        {FieldId::LoanAmount,      u"."_s,          false},
        {FieldId::LoanTerm,        u"30.5"_s,       false},
        {FieldId::LoanTerm,        u"-"_s,          false},
        {FieldId::CurLoanTerm,     u"30.5"_s,       false},
        {FieldId::CurInterestRate, u"6.875"_s,      true},
        {FieldId::CurInterestRate, u"6.8755"_s,     false},
        {FieldId::Points,          u"-5"_s,         true},
        {FieldId::InterestRate,    u"6,5"_s,        false},
        {FieldId::Term,            u"30.5"_s,       true},
        {FieldId::Term,            u"30.5555"_s,    false},
        {FieldId::ActualPayment,   u"599.555"_s,    false},
        {FieldId::Costs,           u"-950.5"_s,     true},
        {FieldId::Costs,           u"950.555"_s,    false},
    };
    // clang-format on
    for (const auto& [id, text, accepted] : cases) {
        EXPECT_EQ(m_worksheet.Read(id, text).has_value(), accepted)
            << RuleOf(id).control.latin1() << " \"" << text.toStdString() << '"';
    }
    EXPECT_THROW(static_cast<void>(m_worksheet.Read(FieldId::LoanTerm, u"2147483648"_s)),
                 OverflowFailure);
    EXPECT_TRUE(m_display.TextsInOrder().empty());
    EXPECT_FALSE(m_worksheet.Dirty());
}

TEST_F(WorksheetFieldsTest, TermsAreYearsWhereTheUserWantsYears) {
    RecordingDisplay display;
    Worksheet sheet(display, FieldFormats(DisplayFormats(QLocale(u"de_DE"_s)), false),
                    [] { return Date(); });
    sheet.GrowOfferArrays(sheet.HighestOfferRow(), Row{0});
    const Field offer{FieldId::Term, Row{0}};
    EnterText(sheet, {FieldId::LoanTerm}, u"15"_s);
    EnterText(sheet, offer, u"12,5"_s);
    EnterText(sheet, {FieldId::CurLoanTerm}, u"12,5"_s);
    EXPECT_EQ(sheet.LoanTerm(), Months{180});
    EXPECT_EQ(sheet.OfferOfRow(Row{0}).Term(), Months{144});
    EXPECT_EQ(sheet.CurrentTerm(), Months{150});
    EXPECT_EQ(display.TextOf({FieldId::LoanTerm}), u"15"_s);
    EXPECT_EQ(display.TextOf(offer), u"12"_s);
    EXPECT_EQ(display.TextOf({FieldId::CurLoanTerm}), u"12,5"_s);
    EXPECT_EQ(sheet.EntryText({FieldId::CurLoanTerm}), u"12,5"_s);
}

struct ChoiceCase {
    Field field;
    QString picked;
    std::function<QString(const Worksheet&)> stored;
    QString code;
    std::vector<Field> others;
};

const std::vector<ChoiceCase>& ChoiceCases() {
    constexpr auto OfferCode = [](const Worksheet& sheet) {
        return sheet.OfferOfRow(Row1).FrequencyCode().Text();
    };
    constexpr auto TypeCode = [](const Worksheet& sheet) { return sheet.LoanType().Text(); };
    // clang-format off
    static const std::vector<ChoiceCase> cases{
        // field                         picked                  stored as                   is                     others
        {{FieldId::LoanType},            u"Home equity"_s,      TypeCode,                           u"H"_s,               {}},
        {{FieldId::CurPaymentFrequency}, u"Twice a month"_s,    &Worksheet::CurrentFrequency,       u"Twice a month"_s,   CurrentLoan},
        {{FieldId::ActPaymentFrequency}, u"Every two weeks"_s,  &Worksheet::CurrentActualFrequency, u"Every two weeks"_s, CurrentLoan},
        {{FieldId::Frequency, Row1},     u"Every four weeks"_s, OfferCode,                          u"Q"_s,               OfferResults(Row1)},
    };
    // clang-format on
    return cases;
}

TEST_F(WorksheetFieldsTest, AChoiceIsStoredShownAndComputedOnce) {
    for (const ChoiceCase& c : ChoiceCases()) {
        SCOPED_TRACE(testing::PrintToString(c.field));
        StartCounting();
        Store(c.field, c.picked);
        EXPECT_TRUE(m_worksheet.Dirty());
        EXPECT_EQ(c.stored(m_worksheet), c.code);
        EXPECT_EQ(TextOf(c.field), c.picked);
        EXPECT_EQ(Sorted({m_display.TextsInOrder()}), Sorted({{c.field}, c.others}));
        m_worksheet.ClearDirty();
        Store(c.field, c.picked);
        EXPECT_FALSE(m_worksheet.Dirty()) << "the same choice again";
    }
}

TEST_F(WorksheetFieldsTest, AChoiceThatIsNoneIsEmpty) {
    for (const ChoiceCase& c : ChoiceCases()) {
        SCOPED_TRACE(testing::PrintToString(c.field));
        Store(c.field, c.picked);
        Store(c.field, u"Nothing of the kind"_s);
        // The current loan is monthly by default.
        const bool monthly = c.field.id == FieldId::CurPaymentFrequency;
        EXPECT_EQ(c.stored(m_worksheet), monthly ? u"Monthly"_s : QString());
        EXPECT_EQ(TextOf(c.field), monthly ? u"Monthly"_s : QString());
    }
}

TEST_F(WorksheetFieldsTest, ATickIsStoredShownAndComputedOnce) {
    const Field box{FieldId::FinancePoints, Row1};
    for (const bool ticked : {true, false}) {
        for (const bool changed : {true, false}) {
            StartCounting();
            m_worksheet.Store({FieldId::FinancePoints, Row1}, ticked);
            EXPECT_EQ(m_worksheet.OfferOfRow(Row1).FinancePoints(), ticked);
            EXPECT_EQ(m_display.Of(box).ticked, ticked);
            EXPECT_EQ(m_display.Of(box).ticks, 1);
            EXPECT_EQ(m_worksheet.Dirty(), changed);
            EXPECT_EQ(m_display.TextsInOrder(), OfferResults(Row1));
        }
    }
}

TEST_F(WorksheetFieldsTest, ALenderIsKeptAsTyped) {
    const Field who{FieldId::Who, Row1};
    for (const QString& name : {u"  Peña & Söhne "_s, u"0"_s, u""_s}) {
        StartCounting();
        Store({FieldId::Who, Row1}, name);
        EXPECT_EQ(m_worksheet.OfferOfRow(Row1).Who(), name);
        EXPECT_EQ(TextOf(who), name);
        EXPECT_EQ(m_display.TextsInOrder(), std::vector{who});
        EXPECT_TRUE(m_worksheet.Dirty());
        m_worksheet.ClearDirty();
        Store({FieldId::Who, Row1}, name);
        EXPECT_FALSE(m_worksheet.Dirty());
    }
}

/// The fields show what Show puts there.
class WorksheetShowTest : public WorksheetFieldsTest {
protected:
    WorksheetShowTest() {
        m_worksheet.SetLoanName(u"Home"_s);
        for (const NumberCase& c : NumberCases()) {
            Store(c.field, c.typed);
        }
        for (const ChoiceCase& c : ChoiceCases()) {
            Store(c.field, c.picked);
        }
        m_worksheet.Store({FieldId::FinancePoints, Row1}, true);
        Store({FieldId::Who, Row1}, u"First Bank"_s);
    }

    void ExpectShown(Field field) {
        SCOPED_TRACE(testing::PrintToString(field));
        const RecordingDisplay::Record before = m_display.Of(field);
        m_display.ForgetCalls();
        m_worksheet.Show(field);
        const RecordingDisplay::Record after = m_display.Of(field);
        EXPECT_EQ(after.text, before.text);
        EXPECT_EQ(after.ticked, before.ticked);
        EXPECT_EQ(after.date, before.date);
        EXPECT_EQ(after.texts + after.ticks + after.dates, 1);
    }
};

TEST_F(WorksheetShowTest, ShowsEveryFieldAsItStood) {
    for (const FieldRule& rule : LoanFields()) {
        ExpectShown({rule.id});
    }
    for (const FieldRule& rule : OfferFields()) {
        if (rule.access == Access::Input) { // the results of an offer are not stored
            ExpectShown({rule.id, Row1});
        }
    }
}

TEST_F(WorksheetFieldsTest, ValuesStoredTogetherAreComputedOnceAtTheEnd) {
    std::vector<Field> computed;
    const auto store = [&] {
        EnterOffer(m_worksheet, Row1,
                   {{FieldId::ActualPayment, Units(6000)}, {FieldId::Term, Months{180}}});
        m_worksheet.SetCurrentBalance(Units(9000));
        m_worksheet.SetCurrentNextPayment(Date::FromCalendar(2026, 4, 1));
        EXPECT_EQ(m_offerSchedules, 0);
        m_display.ForgetCalls();
    };
    m_worksheet.StoreTogether(store, [&](Field result, const auto& step) {
        computed.push_back(result);
        step();
    });
    EXPECT_EQ(computed,
              (std::vector<Field>{
                  {FieldId::PandI, Row1}, {FieldId::CurPayment}, {FieldId::CurPayoffDate}}));
    EXPECT_EQ(Sorted({m_display.TextsInOrder()}), Sorted({OfferResults(Row1), CurrentLoan}));
    EXPECT_EQ(m_offerSchedules, 1);
    StartCounting();
    m_worksheet.SetLoanTerm(Months{120});
    EXPECT_EQ(m_display.TextsInOrder(), std::vector<Field>{{FieldId::LoanTerm}})
        << "nothing is left";
}

TEST_F(WorksheetFieldsTest, ChoicesStayTheSameInAnotherLanguage) {
    for (const ChoiceCase& c : ChoiceCases()) {
        Store(c.field, c.picked);
    }
    const std::vector<Field> choices = Sorted({{{FieldId::LoanType},
                                                {FieldId::CurPaymentFrequency},
                                                {FieldId::ActPaymentFrequency},
                                                {FieldId::Frequency, Row{0}},
                                                {FieldId::Frequency, Row1}}});
    const std::vector<std::vector<QString>> expected{
        {u"Home equity"_s, u"Twice a month"_s, u"Every two weeks"_s, u"Monthly"_s,
         u"Every four weeks"_s},
        {u"Valor neto de la vivienda"_s, u"Dos veces al mes"_s, u"Cada dos semanas"_s, u"Mensual"_s,
         u"Cada cuatro semanas"_s},
    };
    for (const int language : {2, 1, 2}) {
        Language::Instance().LoadLanguage(language);
        StartCounting();
        m_worksheet.ShowChoices();
        EXPECT_EQ(Sorted({m_display.TextsInOrder()}), choices);
        EXPECT_EQ(TextsOf(choices), expected.at(static_cast<std::size_t>(language - 1)));
        EXPECT_EQ(m_worksheet.LoanType(), LoanTypeCode(u"H"_s));
        EXPECT_EQ(m_worksheet.OfferOfRow(Row1).FrequencyCode(), FrequencyCode(u"Q"_s));
        EXPECT_FALSE(m_worksheet.Dirty());
    }
    // A choice is now made in Spanish.
    Store({FieldId::Frequency, Row1}, u"Mensual"_s);
    EXPECT_EQ(m_worksheet.OfferOfRow(Row1).FrequencyCode(), FrequencyCode(u"M"_s));
}

} // namespace
