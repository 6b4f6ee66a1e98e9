#include "TransferRules.h"
#include "QuendNames.h"

#include "EnterValues.h"
#include "Failure.h"
#include "Printing.h"
#include "Sheet.h"

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;

using enum FieldId;

namespace {

const QLocale UnitedStates(QLocale::English, QLocale::UnitedStates);
const QLocale Germany(QLocale::German, QLocale::Germany);

constexpr Row First{0};
constexpr Row Third{2};

TEST(TransferRules, TravelsFromFourFields) {
    for (const auto fields : {LoanFields(), OfferFields()}) {
        for (const FieldRule& rule : fields) {
            EXPECT_EQ(IsDraggable(rule.id), rule.id == Points || rule.id == InterestRate ||
                                                rule.id == ActualPayment || rule.id == Who)
                << rule.control.latin1();
        }
    }
}

struct Travels {
    FieldId field;
    FieldValue value;
    QStringView inTheStates;
    QStringView inGermany;
};

// clang-format off
const Travels TravelTable[]{
    // field        value                          in the States  in Germany
    {Points,        Percent::FromPercent(1.5),     u"1.5",        u"1,5"},
    {Points,        Percent::FromPercent(0),       u"0",          u"0"},        // never entered
    {Points,        Percent::FromPercent(-0.125),  u"-0.125",     u"-0,125"},
    {Points,        Percent::FromPercent(1234.5),  u"1234.5",     u"1234,5"},   // no grouping
    {InterestRate,  Rate::FromFraction(0.065),     u"0.065",      u"0,065"},    // a fraction, not a percentage
    {InterestRate,  Rate::FromFraction(0.0625),    u"0.0625",     u"0,0625"},
    {InterestRate,  Rate::FromFraction(0.07337),   u"0.07337",    u"0,07337"},
    {InterestRate,  Rate::FromFraction(0),         u"0",          u"0"},
    {ActualPayment, Money::FromDouble(1234.5),     u"1234.5",     u"1234,5"},   // of "$1,234.50" and "1.234,50 €"
    {ActualPayment, Money::FromDouble(1234567),    u"1234567",    u"1234567"},
    {ActualPayment, Money::FromDouble(341.305),    u"341.3",      u"341,3"},    // as displayed: halves to the even cent
    {ActualPayment, Money::FromDouble(341.315),    u"341.32",     u"341,32"},
    {ActualPayment, Money::FromDouble(0),          u"",           u""},         // an empty field
};
// clang-format on

TEST(TransferRules, TravelsAsThisText) {
    for (const Travels& row : TravelTable) {
        for (const auto& [locale, text] : {std::pair(UnitedStates, row.inTheStates.toString()),
                                           std::pair(Germany, row.inGermany.toString())}) {
            Sheet sheet(locale);
            sheet.worksheet.Store({row.field, Third}, row.value);
            EXPECT_EQ(DraggedText(sheet.worksheet, {row.field, Third}, u"shown"_s), text);
        }
    }
}

TEST(TransferRules, LenderTravelsAsItsFieldShowsIt) {
    const Sheet sheet;
    EXPECT_EQ(DraggedText(sheet.worksheet, {Who, First}, u" Bank, 5% "_s), u" Bank, 5% "_s);
    EXPECT_EQ(DraggedText(sheet.worksheet, {Who, First}, QString()), QString());
}

struct Arrives {
    QStringView text;
    bool points;
    bool rate;
    bool payment;
};

// clang-format off
constexpr Arrives ArriveTable[]{
    // text           points  rate   payment     the lender takes them all
    {u"1.5",          true,   true,  true},
    {u"0.065",        true,   true,  false},   // three decimals
    {u"0.0625",       false,  false, false},   // 6.25 % can only be copied by typing
    {u"1234.56",      true,   true,  true},
    {u"99999999999999999999", true, true, true}, // the form only, not the size
    {u"-5",           true,   true,  true},
    {u"+5",           true,   true,  true},
    {u"5.",           true,   true,  true},
    {u"5-",           false,  false, false},
    {u"-",            true,   true,  true},    // the form of a number without a value
    {u".",            true,   true,  true},
    {u"",             false,  false, false},
    {u" ",            false,  false, false},
    {u"1.5 ",         false,  false, false},
    {u"1.5\n",        false,  false, false},
    {u"12abc",        false,  false, false},
    {u"1.2.3",        false,  false, false},
    {u"1,5",          false,  false, false},   // wrong symbol in this locale
    {u"1,234.50",     false,  false, false},
    {u"$5.00",        false,  false, false},
    {u"6.5%",         false,  false, false},
    {u"1e3",          false,  false, false},
    {u"nan",          false,  false, false},
};
// clang-format on

TEST(TransferRules, MayArriveWhereItsFormFits) {
    const Sheet sheet;
    for (const Arrives& row : ArriveTable) {
        const QString text = row.text.toString();
        EXPECT_EQ(MayDrop(sheet.worksheet, Points, text), row.points) << text.toStdString();
        EXPECT_EQ(MayDrop(sheet.worksheet, InterestRate, text), row.rate) << text.toStdString();
        EXPECT_EQ(MayDrop(sheet.worksheet, ActualPayment, text), row.payment) << text.toStdString();
        EXPECT_TRUE(MayDrop(sheet.worksheet, Who, text)) << text.toStdString();
    }
}

TEST(TransferRules, DecimalSymbolIsTheUsers) {
    const Sheet sheet(Germany);
    EXPECT_TRUE(MayDrop(sheet.worksheet, Points, u"1,5"_s));
    EXPECT_FALSE(MayDrop(sheet.worksheet, Points, u"1.5"_s));
}

enum class Fault { None, Conversion, Overflow };

struct IsRead {
    FieldId field;
    QStringView text;
    Fault fault;
    FieldValue value;
};

Fault FaultOf(FieldId field, const QString& text, FieldValue& value) {
    const Sheet sheet;
    try {
        value = ReadDropped(sheet.worksheet, field, text);
    } catch (const ConversionFailure&) {
        return Fault::Conversion;
    } catch (const OverflowFailure&) {
        return Fault::Overflow;
    }
    return Fault::None;
}

TEST(TransferRules, IsReadAsThisValue) {
    // clang-format off
    const IsRead table[]{
        // field        text                      fault              value
        {Points,        u"1.5",                   Fault::None,       Percent::FromPercent(1.5)},
        {Points,        u"-5",                    Fault::None,       Percent::FromPercent(-5.0)},
        {Points,        u"0",                     Fault::None,       Percent()},
        {InterestRate,  u"0.065",                 Fault::None,       Rate::FromFraction(0.065)}, // not divided by 100
        {InterestRate,  u"6.5",                   Fault::None,       Rate::FromFraction(6.5)},
        {ActualPayment, u"599.55",                Fault::None,       Money::FromDouble(599.55)},
        {ActualPayment, u"90071992547409.93",     Fault::None,       Money::FromTenThousandths(900719925474099300)},
        {ActualPayment, u"99999999999999999999",  Fault::Overflow,   {}},
        {Points,        u"-",                     Fault::Conversion, {}},
        {InterestRate,  u".",                     Fault::Conversion, {}},
        {ActualPayment, u"+",                     Fault::Conversion, {}},
        {ActualPayment, u"",                      Fault::Conversion, {}},
        {Who,           u"-",                     Fault::None,       u"-"_s},
        {Who,           u"",                      Fault::None,       u""_s},
        {Who,           u" Old  Mill ",           Fault::None,       u" Old  Mill "_s},
        {Who,           u"Old Mill\r\nRoom 5\n\rEast",  Fault::None,  u"Old Mill\r\nRoom 5\r\n\r\nEast"_s},
    };
    // clang-format on
    for (const IsRead& row : table) {
        FieldValue value;
        EXPECT_EQ(FaultOf(row.field, row.text.toString(), value), row.fault)
            << row.text.toString().toStdString();
        EXPECT_TRUE(value == row.value) << row.text.toString().toStdString();
    }
}

/// A worksheet whose rows can all be calculated.
struct Filled : Sheet {
    Filled() {
        worksheet.SetLoanAmount(Money::FromDouble(100'000));
        for (const Row row : {First, Third}) {
            EnterOffer(worksheet, row,
                       {{Term, Months{360}},
                        {Frequency, FrequencyCode(u"M"_s)},
                        {InterestRate, Rate::FromFraction(0.06)}});
        }
        worksheet.ClearDirty();
        display.ForgetCalls();
    }
};

using Shown = std::vector<Field>;

TEST(TransferRules, PointsAreStoredAndTheRowCalculated) {
    Filled sheet;
    sheet.worksheet.Store({Points, Third}, Percent::FromPercent(1.5));
    EXPECT_EQ(sheet.worksheet.OfferOfRow(Third).Points(), Percent::FromPercent(1.5));
    EXPECT_TRUE(sheet.worksheet.OfferOfRow(First).Points().IsZero());
    EXPECT_TRUE(sheet.worksheet.Dirty());
    EXPECT_EQ(sheet.display.TextOf({Points, Third}), u"1.500"_s);
    EXPECT_EQ(sheet.display.TextsInOrder(), (Shown{{Points, Third},
                                                   {PandI, Third},
                                                   {Payment, Third},
                                                   {PayoffDate, Third},
                                                   {Interest, Third}}));
}

TEST(TransferRules, RateIsStoredAsTheFractionItIs) {
    Filled sheet;
    sheet.worksheet.Store({InterestRate, Third}, Rate::FromFraction(0.065));
    EXPECT_EQ(sheet.worksheet.OfferOfRow(Third).InterestRate(), Rate::FromFraction(0.065));
    EXPECT_TRUE(sheet.worksheet.Dirty());
    EXPECT_EQ(sheet.display.TextOf({InterestRate, Third}), u"6.500%"_s);
    EXPECT_EQ(sheet.display.TextOf({PandI, Third}), u"$632.07"_s);
}

TEST(TransferRules, RateBringsTheDefaultTerm) {
    Sheet sheet;
    sheet.worksheet.SetLoanTerm(Months{180});
    sheet.worksheet.Store({InterestRate, First}, Rate::FromFraction(0.065));
    EXPECT_EQ(sheet.display.TextOf({Term, First}), u"15"_s);
}

TEST(TransferRules, PaymentIsStoredWithoutAFullCalculation) {
    Filled sheet;
    sheet.worksheet.Store({ActualPayment, Third}, Money::FromDouble(700));
    EXPECT_EQ(sheet.worksheet.OfferOfRow(Third).ActualPayment(), Money::FromDouble(700));
    EXPECT_TRUE(sheet.worksheet.Dirty());
    EXPECT_EQ(sheet.display.TextOf({ActualPayment, Third}), u"$700.00"_s);
    EXPECT_EQ(sheet.display.TextsInOrder(),
              (Shown{{ActualPayment, Third}, {PayoffDate, Third}, {Interest, Third}}));
}

TEST(TransferRules, PaymentThatIsTooLowIsRefusedAsWhenTyped) {
    Filled sheet;
    sheet.worksheet.Store({ActualPayment, Third}, Money::FromDouble(100));
    EXPECT_EQ(sheet.display.TextOf({ActualPayment, Third}), u"$599.55"_s);
    EXPECT_EQ(sheet.display.PaymentsRefused(), 1);
}

TEST(TransferRules, LenderIsStoredAlone) {
    Filled sheet;
    sheet.worksheet.Store({Who, Third}, u"Old Mill"_s);
    EXPECT_EQ(sheet.worksheet.OfferOfRow(Third).Who(), u"Old Mill"_s);
    EXPECT_TRUE(sheet.worksheet.Dirty());
    EXPECT_EQ(sheet.display.TextsInOrder(), (Shown{{Who, Third}}));
}

TEST(TransferRules, TheSameValueChangesNothing) {
    Filled sheet;
    sheet.worksheet.Store({InterestRate, Third}, Rate::FromFraction(0.06));
    sheet.worksheet.Store({Points, Third}, Percent());
    sheet.worksheet.Store({Who, Third}, QString());
    EXPECT_FALSE(sheet.worksheet.Dirty());
}

} // namespace
