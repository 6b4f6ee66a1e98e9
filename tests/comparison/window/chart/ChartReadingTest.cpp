// The box of values stays in the chart and hides as little as it can.

#include "ChartReading.h"
#include "ChartSamples.h"

#include <QFontMetricsF>

#include <gtest/gtest.h>

#include <string>

namespace {

struct ReadChart {
    ChartData data;
    ChartLayout layout;

    ReadChart(const SampleChart& sample, const QSizeF& size, double points = 9)
        : data(MakeSample(sample)),
          layout(LayOutChart(data, Dollars(), LookOfScreen(LightPalette(), SampleFont(points)),
                             {.place = QRectF(QPointF(10, 20), size)})) {}

    ChartReading Read(int month) const {
        return LayOutReading(data, Dollars(), layout, {.month = month, .chosen = 1}, nullptr);
    }
};

TEST(ChartReading, BoxNeverLeavesTheChart) {
    const QString longName =
        QStringLiteral("The Savings Association of Lake Wabasha and Elsewhere %1");
    for (const int lines : {1, 6, 17}) {
        for (const QSizeF& size : {QSizeF(90, 60), QSizeF(260, 160), QSizeF(700, 360)}) {
            for (const double points : {9.0, 20.0}) {
                const ReadChart chart({.lines = lines, .name = longName}, size, points);
                for (const int month : {0, 1, 180, 359, 360}) {
                    const ChartReading reading = chart.Read(month);
                    const std::string where = std::to_string(lines) + " in " +
                                              std::to_string(size.width()) + " at " +
                                              std::to_string(month);
                    EXPECT_TRUE(chart.layout.place.contains(reading.box)) << where;
                    EXPECT_EQ(static_cast<std::size_t>(lines), reading.rows.size());
                    const QFontMetricsF metrics(reading.font);
                    for (const ReadingRow& row : reading.rows) {
                        EXPECT_TRUE(reading.box.adjusted(0, 0, 0.01, 0.01).contains(row.place))
                            << where;
                        EXPECT_GE(row.place.width(), reading.sample +
                                                         metrics.horizontalAdvance(row.name) +
                                                         metrics.horizontalAdvance(row.amount))
                            << where;
                    }
                }
            }
        }
    }
}

TEST(ChartReading, BoxIsBesideTheMonthAndOffTheLabels) {
    const ReadChart chart({.lines = 6}, {700, 360});
    for (int month = 0; month <= 360; month += 12) {
        const ChartReading reading = chart.Read(month);
        EXPECT_TRUE(reading.box.right() < reading.x || reading.box.left() > reading.x) << month;
        for (const ChartCurve& curve : chart.layout.curves) {
            EXPECT_FALSE(reading.box.intersects(curve.labelPlace)) << month;
        }
    }
}

TEST(ChartReading, RowsDescendAndLieOnTheCurves) {
    ReadChart chart({.lines = 4}, {700, 360});
    std::ranges::reverse(chart.data.lines);
    const ChartReading reading = chart.Read(180);
    EXPECT_EQ("Month 180", reading.heading.toStdString());
    EXPECT_EQ(1, reading.chosen);
    ASSERT_EQ(4U, reading.rows.size());
    EXPECT_EQ("Lender 1", reading.rows.front().name.toStdString());
    EXPECT_EQ("$187,500.00", reading.rows.front().amount.toStdString());
    EXPECT_EQ(3, reading.rows.front().line);
    EXPECT_NEAR(chart.layout.scale.XOf(180), reading.rows.front().point.x(), 1e-9);
    EXPECT_NEAR(chart.layout.YOf(Units(187'500)), reading.rows.front().point.y(), 1e-9);
    EXPECT_EQ("Today", chart.Read(0).heading.toStdString());
}

TEST(ChartReading, EqualValuesKeepTheOrderOfTheLines) {
    EXPECT_EQ((std::vector{0, 1, 2}), LinesByValue(MakeSample({.lines = 3, .spread = 0}), 7));
    EXPECT_EQ((std::vector{2, 1, 0}), LinesByValue(MakeSample({.lines = 3, .spread = -0.1}), 7));
}

} // namespace
