// Axes have round steps, as many as there is space for.

#include "ChartAxes.h"
#include "ChartSamples.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

constexpr std::int64_t MostMoney = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t LeastMoney = std::numeric_limits<std::int64_t>::min();

std::string TicksOf(const AmountAxis& axis) {
    QStringList ticks;
    for (const Money tick : axis.ticks) {
        ticks.append(TickText(Dollars(), axis, tick));
    }
    return ticks.join(u' ').toStdString();
}

TEST(ChartAxes, AmountsHaveRoundSteps) {
    constexpr std::int64_t unit = 10'000;
    struct Row {
        std::int64_t least; ///< in ten-thousandths, as the greatest
        std::int64_t greatest;
        int mostTicks;
        std::string ticks;
    };
    const std::vector<Row> rows{
        {0, 100 * unit, 6, "$0 $20 $40 $60 $80 $100"},
        {0, 100 * unit, 5, "$0 $50 $100"},
        {0, 101 * unit, 6, "$0 $50 $100 $150"},
        {0, 64'310 * unit, 5, "$0 $20,000 $40,000 $60,000 $80,000"},
        {0, 64'310 * unit, 0, "$0 $50,000 $100,000"}, // never fewer than three
        {-950 * unit, 64'310 * unit, 6, "($20,000) $0 $20,000 $40,000 $60,000 $80,000"},
        {-950 * unit, 0, 6, "($1,000) ($800) ($600) ($400) ($200) $0"},
        {-2 * unit, -1 * unit, 6, "($2.00) ($1.80) ($1.60) ($1.40) ($1.20) ($1.00)"},
        {0, 0, 6, "$0.00 $0.01"},
        {0, 1, 6, "$0.00 $0.01"},                       // less than a cent
        {500 * unit, 500 * unit, 6, "$500.00 $500.01"}, // all equal
        {0, 2 * unit, 6, "$0.00 $0.50 $1.00 $1.50 $2.00"},
        {0, 8 * unit, 6, "$0 $2 $4 $6 $8"},
        {0, MostMoney, 6,
         "$0 $200,000,000,000,000 $400,000,000,000,000 $600,000,000,000,000 "
         "$800,000,000,000,000"}, // the last tick is no amount
        {LeastMoney, MostMoney, 3, "($500,000,000,000,000) $0 $500,000,000,000,000"},
        {MostMoney, MostMoney, 3,
         "$922,337,203,685,477.40"}, // the least steps that a double distinguishes,
    };
    for (const Row& row : rows) {
        const AmountAxis axis =
            AxisOfAmounts(Money::FromTenThousandths(row.least),
                          Money::FromTenThousandths(row.greatest), row.mostTicks);
        const std::string where = std::to_string(row.least) + " " + std::to_string(row.greatest);
        EXPECT_EQ(row.ticks, TicksOf(axis)) << where;
        EXPECT_LE(0, axis.ShareOf(Money::FromTenThousandths(row.least))) << where;
        EXPECT_GE(1, axis.ShareOf(Money::FromTenThousandths(row.greatest))) << where;
        EXPECT_LT(axis.low, axis.high) << where;
    }
}

TEST(ChartAxes, TicksAreWrittenAsTheLocaleWritesMoney) {
    struct Row {
        const char* locale;
        std::int64_t greatest; ///< units
        QString last;
    };
    const std::vector<Row> rows{
        {"en_US", 5'000'000, QStringLiteral("$5,000,000")},
        {"en_US", 1, QStringLiteral("$1.00")},
        {"es_MX", 50'000, QStringLiteral("$50,000")},
        {"es_ES", 50'000, QStringLiteral("50.000 €")},
        {"es_ES", 1, QStringLiteral("1,00 €")},
        {"C", 5'000, QStringLiteral("5000")},
    };
    for (const Row& row : rows) {
        const DisplayFormats formats(QLocale(QString::fromLatin1(row.locale)));
        const AmountAxis axis = AxisOfAmounts(Money(), Units(row.greatest), 6);
        QString text = TickText(formats, axis, axis.ticks.back());
        text.replace(QChar(QChar::Nbsp), u' ');
        EXPECT_EQ(row.last.toStdString(), text.toStdString()) << row.locale;
    }
}

TEST(ChartAxes, MonthsHaveRoundSteps) {
    struct Row {
        int months;
        int mostTicks;
        int step;
        std::size_t ticks;
        int lastCount;
    };
    const std::vector<Row> rows{
        {1, 10, 1, 2, 1},        {1, 1, 2, 1, 0},        {9, 10, 1, 10, 9},
        {10, 10, 2, 6, 10},      {24, 10, 3, 9, 24},     {35, 10, 6, 6, 30},
        {60, 10, 12, 6, 5},      {60, 13, 6, 11, 60},    {180, 10, 24, 8, 14},
        {360, 10, 60, 7, 30},    {600, 10, 120, 6, 50},  {1200, 12, 120, 11, 100},
        {1200, 10, 240, 6, 100}, {1200, 3, 600, 3, 100}, {1200, 0, 1200, 2, 100},
    };
    for (const Row& row : rows) {
        const MonthAxis axis = AxisOfMonths(row.months, row.mostTicks);
        const std::string where = std::to_string(row.months) + " " + std::to_string(row.mostTicks);
        EXPECT_EQ(row.step, axis.step) << where;
        EXPECT_EQ(row.ticks, axis.ticks.size()) << where;
        EXPECT_EQ(row.lastCount, axis.CountAt(axis.ticks.back())) << where;
    }
}

} // namespace
