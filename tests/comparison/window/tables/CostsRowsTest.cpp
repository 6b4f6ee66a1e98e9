#include "CostsRows.h"
#include "FigureColumns.h"
#include "FigureTexts.h"
#include "SampleTables.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <set>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

std::string BestIn(const std::vector<CostsRow>& rows, Figure figure) {
    std::string marks;
    for (const CostsRow& row : rows) {
        marks += row.cells[static_cast<std::size_t>(figure)].isBest ? '*' : '-';
    }
    return marks;
}

TEST(CostsRows, MarkTheBestOfAColumn) {
    const QString today = QStringLiteral("today");
    const struct {
        std::vector<SampleLoan> loans;
        const char* totalCost;
        const char* apr;
    } cases[] = {
        // clang-format off
        {{},                                                                             "",    ""},
        {{{u"A"_s, 9, 0, 0.05}},                                                        "-",   "-"},   // nothing to compare with
        {{{u"A"_s, 9, 0, 0.05},    {u"B"_s, 8, 0, 0.06}},                              "-*",  "*-"},
        {{{u"A"_s, 9, 0, 0.05},    {u"B"_s, None}, {u"C"_s, 9.5, 0, 0.04}},           "*-",  "-*"},  // B is no row
        {{{u"A"_s, 9, 0, 0.05},    {u"B"_s, 9, 0, 0.05}},                              "--",  "--"},  // all alike
        {{{u"A"_s, 9, 0, 0.05},    {u"B"_s, 9, 0, 0.05}, {u"C"_s, 9.01, 0, 0.06}},    "**-", "**-"},
        {{{u"A"_s, 9.001, 0, 0.050001}, {u"B"_s, 9, 0, 0.05}, {u"C"_s, 10, 0, 0.06}}, "**-", "**-"}, // read alike
        {{{u"A"_s, 9, 0, 0.05},    {today, 8}},                                         "-*",  "--"},
        {{{u"A"_s, 9, 0, None},    {u"B"_s, 8, 0, 0.06}, {u"C"_s, 8, 0, 0.061}},      "-**", "-*-"}, // no rate
        {{{u"A"_s, -9, 0, 0.05},   {u"B"_s, 0, 0, 0.06}},                              "*-",  "*-"},
        // clang-format on
    };
    for (const auto& tested : cases) {
        const auto rows = CostsRows(SheetOf(tested.loans), Dollars);
        EXPECT_EQ(tested.totalCost, BestIn(rows, Figure::TotalCost));
        EXPECT_EQ(tested.apr, BestIn(rows, Figure::Apr));
        EXPECT_EQ(std::string(rows.size(), '-'), BestIn(rows, Figure::MonthlyEquivalent));
    }
}

TEST(CostsRows, AreInTheOrderOfTheMainWindow) {
    ComparedWorksheet sheet = SheetOf({{u"A"_s, 1}, {u"B"_s, None}, {u"C"_s, 1}, {u"today"_s, 1}});
    sheet.rows = {3, 2, 1};
    std::vector<int> places;
    for (const CostsRow& row : CostsRows(sheet, Dollars)) {
        places.push_back(row.place);
    }
    EXPECT_EQ((std::vector{3, 1, CurrentLoanPlace}), places);
}

TEST(CostsRows, EditCostsAsTheyAreTyped) {
    const struct {
        double costs;
        const char* text;
        const char* entry;
        const char* entryInGermany;
    } cases[] = {
        {0, "$0.00", "", ""},
        {950, "$950.00", "950", "950"},
        {-1234.5, "($1,234.50)", "-1234.5", "-1234,5"},
    };
    for (const auto& tested : cases) {
        const ComparedWorksheet sheet = SheetOf({{u"A"_s, 1, tested.costs}});
        const CostsRow row = CostsRows(sheet, Dollars).front();
        EXPECT_EQ(tested.text,
                  row.cells[static_cast<std::size_t>(Figure::Costs)].text.toStdString());
        EXPECT_EQ(tested.entry, row.costsEntry.toStdString());
        EXPECT_EQ(tested.entryInGermany,
                  CostsRows(sheet, DisplayFormats(Germany)).front().costsEntry.toStdString());
    }
}

TEST(FigureValues, HaveSortKeysAndPlainNumbers) {
    using Stretches = std::vector<CheaperStretch>;
    const struct {
        FigureValue value;
        QVariant key;
        const char* number; // null: no number
    } cases[] = {
        // clang-format off
        {{},                                               {},                                           nullptr},
        {QStringLiteral("-5"),                             QStringLiteral("-5"),                         nullptr},
        {Dollar(1580.17),                                  15801700LL,                                   "1580.17"},
        {Dollar(-0.0001),                                  -1LL,                                         "-0.0001"},
        {Money::FromTenThousandths(std::numeric_limits<std::int64_t>::max()), std::numeric_limits<qlonglong>::max(), "922337203685477.5807"},
        {Rate::FromFraction(0.0654),                       0.0654,                                       "6.54"},
        {Rate::FromFraction(0.065401234567),               0.065401234567,                               "6.54012346"},
        {Rate::FromFraction(0),                            0.0,                                          "0"},
        {Date::FromCalendar(2026, 12, 1),                  46357LL,                                      nullptr},
        {std::int64_t{-12},                                -12LL,                                        "-12"},
        {Stretches{},                                      std::numeric_limits<qlonglong>::max(),        nullptr},
        {Stretches{{3, 7}},                                29993LL,                                      nullptr},
        {Stretches{{3, 8}, {20, std::nullopt}},            29992LL,                                      nullptr}, // longer: first
        {Stretches{{3, std::nullopt}},                     20001LL,                                      nullptr},
        // clang-format on
    };
    for (const auto& tested : cases) {
        EXPECT_EQ(tested.key, SortKeyOf(tested.value)) << tested.key.toString().toStdString();
        const QString number = PlainNumberOf(tested.value);
        EXPECT_EQ(tested.number == nullptr, number.isNull());
        EXPECT_EQ(tested.number == nullptr ? "" : tested.number, number.toStdString());
    }
}

TEST(FigureColumns, AreInTheOrderOfTheFigures) {
    std::set<int> topics;
    int place = 0;
    for (const FigureColumn& column : FigureColumns()) {
        EXPECT_EQ(static_cast<Figure>(place++), column.figure);
        EXPECT_EQ(&column, &ColumnOf(column.figure));
        EXPECT_TRUE(topics.insert(column.helpTopic).second);
        EXPECT_LT(column.helpTopic, FirstScheduleTopic);
    }
    EXPECT_EQ(Figure::PaymentForHorizon, FigureColumns().back().figure);
}

TEST(FigureColumns, NameTheYears) {
    const struct {
        int language;
        int years;
        const char* heading;
    } cases[] = {
        {English, 1, "Cost in 1 year"},
        {English, 5, "Cost in 5 years"},
        {Spanish, 1, "Costo en 1 año"},
        {Spanish, 50, "Costo en 50 años"},
    };
    for (const auto& tested : cases) {
        Speak(tested.language);
        EXPECT_EQ(tested.heading,
                  HeadingOf(Figure::CostByHorizon, tested.years, Dollars).toStdString());
    }
    Speak(English);
    EXPECT_EQ("APR (estimated)", HeadingOf(Figure::Apr, 1, Dollars).toStdString());
}

TEST(FigureColumns, HaveHeadingsOfTwoLines) {
    const struct {
        const char* heading;
        const char* lines;
    } cases[] = {
        {"", ""},
        {"Costs", "Costs"},
        {"At closing", "At closing"},
        {"Total amount", "Total\namount"},
        {"A month, no escrow", "A month,\nno escrow"},
        {"Prestamistas", "Prestamistas"},
        {"Costo en 50 años", "Costo en\n50 años"},
        {"Liquidación a", "Liquidación\na"},
        {"A liquidación", "A\nliquidación"},
    };
    for (const auto& tested : cases) {
        EXPECT_EQ(tested.lines, InTwoLines(QString::fromUtf8(tested.heading)).toStdString());
    }
}

} // namespace
