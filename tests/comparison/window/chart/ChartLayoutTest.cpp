// Nothing of a chart overlaps or leaves its place, whatever its size is.

#include "ChartLayout.h"
#include "ChartCurves.h"
#include "ChartLabels.h"
#include "ChartSamples.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QPolygonF>

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

ChartLayout LayOut(const ChartData& data, const QSizeF& size, double points = 9) {
    return LayOutChart(data, Dollars(), LookOfScreen(LightPalette(), SampleFont(points)),
                       {.place = QRectF(QPointF(10, 20), size)});
}

TEST(ChartLayout, LabelsSpreadAsLittleAsTheyCan) {
    struct Row {
        std::vector<double> middles;
        double height;
        std::vector<double> spread; ///< within 0 to 100
    };
    const std::vector<Row> rows{
        {{}, 10, {}},
        {{50}, 10, {50}},
        {{20, 50, 80}, 10, {20, 50, 80}},
        {{50, 50}, 10, {45, 55}},
        {{80, 20}, 10, {80, 20}}, // the order of the labels stays
        {{50, 52, 54}, 10, {42, 52, 62}},
        {{0, 100}, 10, {5, 95}},
        {{100, 100, 100}, 10, {75, 85, 95}},
        {{40, 42, 90}, 10, {36, 46, 90}},
        {{0, 0, 0, 0}, 25, {12.5, 37.5, 62.5, 87.5}}, // no space to spare
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.spread, SpreadLabels(row.middles, row.height, 0, 100));
    }
}

TEST(ChartLayout, CurvesKeepOnlyThePointsTheyNeed) {
    QPolygonF straight;
    QPolygonF bent;
    QPolygonF zigzag;
    QPolygonF round;
    for (int x = 0; x <= 1200; ++x) {
        straight.push_back({1.0 * x, 2.0 * x});
        bent.push_back({1.0 * x, std::abs(600.0 - x)});
        zigzag.push_back({1.0 * x, x % 2 == 0 ? 0.0 : 50.0});
        round.push_back({x / 2.0, 300 * std::sqrt(1 - std::pow(1 - x / 1200.0, 2))});
    }
    EXPECT_EQ(2, Simplified(straight, 0.2).size());
    EXPECT_EQ(3, Simplified(bent, 0.2).size());
    EXPECT_EQ(1201, Simplified(zigzag, 0.2).size());
    const QPolygonF kept = Simplified(round, 0.2);
    EXPECT_GT(60, kept.size());
    EXPECT_EQ(QPolygonF{QPointF(1, 2)}, Simplified({QPointF(1, 2)}, 0.2));
    qsizetype next = 1;
    for (const QPointF& point : round) {
        next += next + 1 < kept.size() && kept[next].x() < point.x() ? 1 : 0;
        const QLineF piece(kept[next - 1], kept[next]);
        const double y = piece.pointAt((point.x() - piece.x1()) / piece.dx()).y();
        EXPECT_NEAR(point.y(), y, 0.2 + 1e-9);
    }
}

/// Every text of a chart with the part that it takes.
std::vector<QRectF> TextsOf(const ChartLayout& layout) {
    std::vector<QRectF> texts{layout.titlePlace, layout.monthsTitlePlace, layout.horizon.place};
    for (const ChartTick& tick : layout.amountTicks) {
        texts.push_back(tick.place);
    }
    for (const ChartTick& tick : layout.monthTicks) {
        const QFontMetricsF metrics(layout.font);
        const double width = metrics.horizontalAdvance(tick.text);
        texts.push_back({tick.position - width / 2, tick.place.top(), width, tick.place.height()});
    }
    for (const ChartCurve& curve : layout.curves) {
        texts.push_back(curve.labelPlace);
    }
    return texts;
}

struct LayoutCase {
    int lines;
    int months;
    double spread;
    const char* name;
    double credit;
    ChartShows shows;
};

constexpr auto LongName =
    "The First Savings and Loan Association of Lake Wabasha and Surroundings %1";

TEST(ChartLayout, TextsNeverOverlapOrLeave) {
    const std::vector<LayoutCase> cases{
        {1, 360, 0, "A%1", 0, ChartShows::Cost},
        {6, 360, 0.04, "Lender %1", 0, ChartShows::Cost},
        {17, 360, 0, "Lender %1", 0, ChartShows::Cost}, // equal ends
        {17, 360, 0.04, LongName, 0, ChartShows::Balance},
        {17, 1200, 0, LongName, 0, ChartShows::Balance},
        {17, 1, 0.001, LongName, 900, ChartShows::Cost}, // starts below zero
        {3, 24, 0, "%1", 1e14, ChartShows::Cost},        // very long amounts
    };
    for (const LayoutCase& tried : cases) {
        const ChartData data = MakeSample({.lines = tried.lines,
                                           .months = tried.months,
                                           .name = QString::fromLatin1(tried.name),
                                           .spread = tried.spread,
                                           .credit = tried.credit,
                                           .shows = tried.shows});
        for (const QSizeF& size : {QSizeF(90, 60), QSizeF(260, 160), QSizeF(360, 200),
                                   QSizeF(700, 360), QSizeF(2400, 1500)}) {
            for (const double points : {7.0, 9.0, 20.0}) {
                const ChartLayout layout = LayOut(data, size, points);
                const std::string where = tried.name + std::to_string(tried.lines) + " in " +
                                          std::to_string(size.width()) + " " +
                                          std::to_string(points);
                const QRectF around = layout.place.adjusted(-0.01, -0.01, 0.01, 0.01);
                const std::vector<QRectF> texts = TextsOf(layout);
                for (std::size_t i = 0; i < texts.size(); ++i) {
                    EXPECT_TRUE(around.contains(texts[i])) << where << ": " << i;
                    for (std::size_t j = 0; j < i; ++j) {
                        const QRectF both = texts[i].intersected(texts[j]);
                        EXPECT_FALSE(both.width() > 0.01 && both.height() > 0.01)
                            << where << ": " << i << " " << j;
                    }
                }
                EXPECT_LT(0.2 * size.width(), layout.plot.width()) << where;
                EXPECT_LT(0.4 * size.height(), layout.plot.height()) << where;
            }
        }
    }
}

TEST(ChartLayout, EachLineReachesItsLabel) {
    const ChartData data = MakeSample({.lines = 17, .spread = 0});
    const ChartLayout layout = LayOut(data, {700, 360});
    const QFontMetricsF metrics(layout.labelFont);
    ASSERT_EQ(17U, layout.curves.size());
    for (const ChartCurve& curve : layout.curves) {
        EXPECT_EQ(curve.points.back(), curve.leader.front());
        EXPECT_NEAR(layout.plot.right(), curve.points.back().x(), 1e-9);
        EXPECT_NEAR(curve.labelPlace.center().y(), curve.leader.back().y(), 1e-9);
        EXPECT_LT(0, curve.labelPlace.left() - curve.leader.back().x());
        EXPECT_GE(curve.labelPlace.width() + 0.01, metrics.horizontalAdvance(curve.label));
        EXPECT_GE(curve.labelPlace.height() + 0.01, metrics.height());
        EXPECT_TRUE(
            layout.plot.adjusted(-0.01, -0.01, 0.01, 0.01).contains(curve.points.boundingRect()));
    }
    EXPECT_EQ(data.lines.back().name, layout.curves.back().label) << "short names are whole";
}

TEST(ChartLayout, LinesGoOnUntilTheHorizon) {
    ChartData data = MakeSample({.months = 24});
    data.years = 10;
    const ChartLayout layout = LayOut(data, {700, 360});
    EXPECT_EQ(120, layout.scale.span);
    EXPECT_NEAR(layout.plot.right(), layout.horizon.position, 1e-9);
    EXPECT_NEAR(layout.plot.right(), layout.curves.front().points.back().x(), 1e-9);
    EXPECT_EQ("After 10 years", layout.horizon.text.toStdString());
}

TEST(ChartLayout, MonthsAndPlacesMatch) {
    const ChartLayout layout = LayOut(MakeSample({}), {700, 360});
    for (const int month : {0, 1, 59, 359, 360}) {
        EXPECT_EQ(month, layout.MonthAt(layout.scale.XOf(month)));
    }
    EXPECT_EQ(0, layout.MonthAt(-1e6));
    EXPECT_EQ(360, layout.MonthAt(1e6));
}

TEST(ChartLayout, WithoutLinesAChartSaysSo) {
    const ChartLayout layout = LayOut({}, {700, 360});
    EXPECT_TRUE(layout.curves.empty());
    EXPECT_EQ("No loan is complete enough to be shown here.", layout.title.toStdString());
}

} // namespace
