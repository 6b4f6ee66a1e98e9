// Cells as spreadsheets copy them.

#include "CellBlock.h"
#include "Language.h"
#include "QuendNames.h"
#include "RecordingDisplay.h"
#include "Worksheet.h"

#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

TEST(CellBlocks, HaveRowsAndCells) {
    using Rows = std::vector<QStringList>;
    const struct {
        QString text;
        Rows rows;
        bool isBlock;
        bool isBlockForLender;
    } cases[] = {
        {u""_s, {}, false, false},
        {u"6.5"_s, {{u"6.5"_s}}, false, false},
        {u"6.5\n"_s, {{u"6.5"_s}}, false, false},
        {u"6.5\r\n"_s, {{u"6.5"_s}}, false, false},
        {u"6.5\t"_s, {{u"6.5"_s, u""_s}}, false, false},
        {u"a\tb"_s, {{u"a"_s, u"b"_s}}, true, true},
        {u"a\t\n\tb\n"_s, {{u"a"_s, u""_s}, {u""_s, u"b"_s}}, true, true},
        {u"1\n2"_s, {{u"1"_s}, {u"2"_s}}, true, false},
        {u"1\r2\r\n3"_s, {{u"1"_s}, {u"2"_s}, {u"3"_s}}, true, false},
        {u"\"two\nlines\"\t7\n"_s, {{u"two\nlines"_s, u"7"_s}}, true, true},
        {u"\"two\nlines\""_s, {{u"two\nlines"_s}}, false, false},
        {u"\"say \"\"no\"\"\"\tx"_s, {{u"say \"no\""_s, u"x"_s}}, true, true},
        {u"\"open\t7"_s, {{u"\"open"_s, u"7"_s}}, true, true},
        {u"in\"side\t7"_s, {{u"in\"side"_s, u"7"_s}}, true, true},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CellsOf(c.text), c.rows) << c.text.toStdString();
        EXPECT_EQ(IsBlock(c.text, FieldId::Points), c.isBlock) << c.text.toStdString();
        EXPECT_EQ(IsBlock(c.text, FieldId::Who), c.isBlockForLender) << c.text.toStdString();
    }
}

struct CellCase {
    FieldId field;
    QString cell;
    std::optional<FieldValue> value;
};

void Check(const QLocale& locale, std::initializer_list<CellCase> cases) {
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), u"Loan"_s);
    RecordingDisplay display;
    const Worksheet sheet(display, {DisplayFormats(locale), false},
                          [] { return Date::FromCalendar(2026, 11, 21); });
    for (const CellCase& c : cases) {
        EXPECT_EQ(ReadCell(sheet, c.field, c.cell), c.value)
            << RuleOf(c.field).control.latin1() << ": " << c.cell.toStdString();
    }
}

FieldValue Amount(double units) { return Money::FromDouble(units); }
FieldValue InPercent(double percent) { return Percent::FromPercent(percent).ToRate(); }
FieldValue Code(const QString& code) { return FrequencyCode(code); }

TEST(CellBlocks, AreReadAsSpreadsheetsShowThem) {
    using enum FieldId;
    // clang-format off
    Check(QLocale(QLocale::English, QLocale::UnitedStates), {
        {ActualPayment, u"$1,580.17"_s,     Amount(1580.17)},
        {ActualPayment, u" 1580.17 "_s,     Amount(1580.17)},
        {ActualPayment, u"($1,580.17)"_s,   Amount(-1580.17)},
        {ActualPayment, u"-$1,580.17"_s,    Amount(-1580.17)},
        {ActualPayment, u"USD 1,580"_s,     Amount(1580)},
        {ActualPayment, u"1,234,567.80"_s,  Amount(1234567.8)},
        {ActualPayment, u""_s,              Amount(0)},
        {ActualPayment, u"15,80.17"_s,      std::nullopt},
        {ActualPayment, u"1580,17"_s,       std::nullopt},
        {ActualPayment, u"1.580,17"_s,      std::nullopt},
        {ActualPayment, u"€1580"_s,         std::nullopt},
        {ActualPayment, u"1580.175"_s,      std::nullopt},
        {ActualPayment, u"10 %"_s,          std::nullopt},
        {ActualPayment, u"#REF!"_s,         std::nullopt},
        {InterestRate,  u"6.50%"_s,         InPercent(6.5)},
        {InterestRate,  u"6.5 %"_s,         InPercent(6.5)},
        {InterestRate,  u"6.5"_s,           InPercent(6.5)},
        {InterestRate,  u"$6.5"_s,          std::nullopt},
        {Points,        u"1.5"_s,           Percent::FromPercent(1.5)},
        {Points,        u"1.500%"_s,        Percent::FromPercent(1.5)},
        {Points,        u"\u22120.5"_s,     Percent::FromPercent(-0.5)},
        {Points,        u"'-0.5"_s,         Percent::FromPercent(-0.5)}, // as Copy Table writes it
        {Term,          u"30"_s,            Months{360}},
        {Term,          u"thirty"_s,        std::nullopt},
        {Frequency,     u"Monthly"_s,       Code(u"M"_s)},
        {Frequency,     u""_s,              Code(u""_s)},
        {Frequency,     u"Daily"_s,         std::nullopt},
        {FinancePoints, u"Yes"_s,           true},
        {FinancePoints, u"TRUE"_s,          true},
        {FinancePoints, u"no"_s,            false},
        {FinancePoints, u""_s,              false},
        {FinancePoints, u"perhaps"_s,       std::nullopt},
        {Who,           u"Cedar & Sons\nAnn"_s, u"Cedar & Sons\r\nAnn"_s},
        {Who,           u"'=5"_s,           u"=5"_s},
        {Who,           u"'s Bank"_s,       u"'s Bank"_s},
        {Who,           u"$5"_s,            u"$5"_s},
    });
    // clang-format on
}

TEST(CellBlocks, AreReadInTheUsersLocale) {
    using enum FieldId;
    // clang-format off
    Check(QLocale(QLocale::German, QLocale::Germany), {
        {ActualPayment, u"1.580,17 €"_s,      Amount(1580.17)},
        {ActualPayment, u"1.580,17\u00a0€"_s, Amount(1580.17)},
        {ActualPayment, u"1.5"_s,             std::nullopt}, // not fifteen
        {InterestRate,  u"6,50 %"_s,          InPercent(6.5)},
        {InterestRate,  u"6.5"_s,             std::nullopt},
    });
    Check(QLocale(QLocale::French, QLocale::France), {
        {ActualPayment, u"1\u202f580,17\u00a0€"_s, Amount(1580.17)},
        {ActualPayment, u"1 580,17 €"_s,           Amount(1580.17)},
    });
    Check(QLocale(QLocale::German, QLocale::Switzerland), {
        {ActualPayment, u"CHF 1’580.15"_s, Amount(1580.15)},
        {ActualPayment, u"1'580.15"_s,     Amount(1580.15)},
    });
    Check(QLocale(QLocale::English, QLocale::India), {
        {ActualPayment, u"₹12,34,567.00"_s, Amount(1234567)},
    });
    // clang-format on
}

} // namespace
