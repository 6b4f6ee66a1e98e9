// What a chart shows of a worksheet.

#include "ChartData.h"
#include "ChartSamples.h"
#include "ChartWords.h"
#include "Comparison.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

FrequencyCode Monthly() { return FrequencyCode(QStringLiteral("M")); }

/// Two offers that take part, one that does not, and the loan held today.
ComparedWorksheet Worksheet() {
    ComparedWorksheet worksheet;
    ComparisonInput& input = worksheet.input;
    input.today = Date::FromCalendar(2026, 11, 22);
    input.amount = Units(100'000);
    input.offers = {{.rate = Rate::FromFraction(0.06), .term = {120}, .frequency = Monthly()},
                    {.rate = Rate::FromFraction(0), .term = {120}, .frequency = Monthly()},
                    {.costs = Units(-500),
                     .rate = Rate::FromFraction(0.05),
                     .term = {60},
                     .frequency = Monthly()}};
    input.current = {.rate = Rate::FromFraction(0.07),
                     .balance = Units(90'000),
                     .actualPayment = Units(1'500),
                     .actualFrequency = Monthly()};
    worksheet.result = Compare(input);
    worksheet.lenders = {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")};
    worksheet.rows = {3, 2, 1};
    return worksheet;
}

TEST(ChartData, LinesAreInTheOrderOfTheRows) {
    const ComparedWorksheet worksheet = Worksheet();
    const auto loans = OverTime(worksheet.input, worksheet.result.months);
    const ChartData cost = MakeChartData(worksheet, loans, ChartShows::Cost);
    const ChartData balance = MakeChartData(worksheet, loans, ChartShows::Balance);
    ASSERT_EQ(3U, cost.lines.size());
    EXPECT_EQ((std::vector{3, 1, CurrentLoanPlace}),
              (std::vector{cost.lines[0].place, cost.lines[1].place, cost.lines[2].place}));
    EXPECT_EQ(QStringLiteral("C"), cost.lines[0].name);
    EXPECT_TRUE(cost.lines[2].IsCurrent());
    EXPECT_EQ(worksheet.result.months, cost.months);
    EXPECT_EQ(Units(-500), cost.lines[0].By(0));
    EXPECT_EQ(Units(100'000), balance.lines[1].By(0));
    EXPECT_EQ(Money(), balance.lines[1].By(10'000)) << "after the last month";
    EXPECT_EQ(worksheet.result.offers[0].figures->totalCost, cost.lines[1].By(10'000));
}

TEST(ChartData, SpanReachesTheLaterOfPayoffAndHorizon) {
    struct Row {
        int months;
        int years;
        int span;
    };
    for (const Row& row :
         {Row{360, 5, 360}, Row{1, 1, 12}, Row{60, 50, 600}, Row{1200, 50, 1200}}) {
        EXPECT_EQ(row.span,
                  (ChartData{.lines = {}, .months = row.months, .years = row.years}).Span());
    }
}

TEST(ChartData, RangeHasZero) {
    const Money cent = Money::FromTenThousandths(100);
    struct Row {
        std::vector<Money> values;
        Money least;
        Money greatest;
    };
    for (const Row& row : {Row{{cent, cent}, {}, cent}, Row{{-cent}, -cent, {}},
                           Row{{-cent, cent + cent, {}}, -cent, cent + cent}}) {
        const ChartData data{.lines = {{1, {}, row.values}}};
        EXPECT_EQ(std::pair(row.least, row.greatest), RangeOf(data));
    }
}

TEST(ChartData, ASentenceNamesMonthLoanAndAmount) {
    const QString name = QStringLiteral("Cedar & Sons %1 %2");
    struct Row {
        ChartShows shows;
        int place;
        int month;
        const char* sentence;
    };
    for (const Row& row : {
             Row{ChartShows::Cost, 1, 30, "Month 30: Cedar & Sons %1 %2 has cost $12,345.67."},
             Row{ChartShows::Cost, 1, 0, "Today: Cedar & Sons %1 %2 has cost $12,345.67."},
             Row{ChartShows::Cost, 0, 30, "Month 30: the loan held today has cost $12,345.67."},
             Row{ChartShows::Cost, 0, 0, "Today: the loan held today has cost $12,345.67."},
             Row{ChartShows::Balance, 1, 1,
                 "Month 1: with Cedar & Sons %1 %2, $12,345.67 is still owed."},
             Row{ChartShows::Balance, 1, 0, "Today: with Cedar & Sons %1 %2, $12,345.67 is owed."},
             Row{ChartShows::Balance, 0, 1,
                 "Month 1: $12,345.67 is still owed on the loan held today."},
             Row{ChartShows::Balance, 0, 0, "Today: $12,345.67 is owed on the loan held today."},
         }) {
        const ChartLine line{row.place, name, {Money::FromTenThousandths(123'456'700)}};
        const ChartData data{.shows = row.shows, .lines = {line}};
        EXPECT_EQ(row.sentence, SentenceOf(data, Dollars(), line, row.month).toStdString());
    }
}

} // namespace
