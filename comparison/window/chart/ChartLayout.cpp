#include "ChartLayout.h"

#include "ChartCurves.h"
#include "ChartFont.h"
#include "ChartLabels.h"
#include "ChartWords.h"
#include "CompareTextNumbers.h"
#include "Language.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quend::compare {

namespace {

// Shares of the place that amounts and labels may take of its width.
constexpr double MostAmounts = 0.3;
constexpr double MostLabels = 0.34;
// Lengths in units.
constexpr double Gap = 5;
constexpr double FanWidth = 22;    ///< of a leader, to the height of its label
constexpr double SampleWidth = 26; ///< of a leader, beside its label

/// Lays out one chart, from the outside to the inside.
class ChartLayouter {
public:
    ChartLayouter(const ChartData& data, const DisplayFormats& formats, const ChartPlace& at)
        : m_data(data), m_formats(formats), m_device(at.device) {
        m_layout.place = at.place;
        m_layout.scale.span = std::max(data.Span(), at.span);
    }

    ChartLayout LayOut(const QFont& font);

private:
    QFontMetricsF Metrics(const QFont& font) const { return QFontMetricsF(font, m_device); }
    double Units(double count) const { return count * m_layout.unit; }

    void ChooseFont(const QFont& font);
    void PlaceRows();
    void PlaceAmounts();
    void ReserveLabels();
    void PlaceMonths();
    void PlaceHorizon();
    void PlaceCurves();
    void PlaceLabels();

    const ChartData& m_data;
    const DisplayFormats& m_formats;
    const QPaintDevice* m_device;
    ChartLayout m_layout;
    double m_line = 0; ///< the height of a line of the font
};

ChartLayout ChartLayouter::LayOut(const QFont& font) {
    ChooseFont(font);
    if (m_data.lines.empty()) {
        m_layout.title = GetResourceText(TextNumber::ChartWithoutLines);
        m_layout.titlePlace = m_layout.place;
        return m_layout;
    }
    PlaceRows();
    PlaceAmounts();
    ReserveLabels();
    PlaceMonths();
    PlaceHorizon();
    PlaceCurves();
    PlaceLabels();
    return m_layout;
}

void ChartLayouter::ChooseFont(const QFont& font) {
    constexpr double leastLines = 10;
    constexpr double leastLetters = 28;
    m_layout.font = ShrunkFont(font, m_device, [&](const QFontMetricsF& metrics) {
        return metrics.height() * leastLines <= m_layout.place.height() &&
               metrics.averageCharWidth() * leastLetters <= m_layout.place.width();
    });
    m_line = Metrics(m_layout.font).height();
    constexpr double unitsPerLine = 16;
    m_layout.unit = m_line / unitsPerLine;
    m_layout.labelFont = m_layout.font;
}

/// Title, horizon, plot, months and their title below one another.
void ChartLayouter::PlaceRows() {
    const QRectF& place = m_layout.place;
    m_layout.title = NameOfShown(m_data.shows);
    m_layout.titlePlace = {place.left() + Units(Gap), place.top(), place.width() - Units(Gap),
                           m_line};
    m_layout.plot = place.adjusted(0, 2 * m_line + Units(Gap), 0, -2 * m_line - Units(Gap));
}

void ChartLayouter::PlaceAmounts() {
    constexpr double linesPerTick = 2;
    const auto [least, greatest] = RangeOf(m_data);
    const double ticks = m_layout.plot.height() / (m_line * linesPerTick);
    m_layout.amounts = AxisOfAmounts(least, greatest, 1 + static_cast<int>(ticks));
    QStringList texts;
    for (const Money tick : m_layout.amounts.ticks) {
        texts.append(TickText(m_formats, m_layout.amounts, tick));
    }
    const auto widest = [&](const QFontMetricsF& metrics) {
        double width = 0;
        for (const QString& text : texts) {
            width = std::max(width, metrics.horizontalAdvance(text));
        }
        return width;
    };
    const double most = m_layout.place.width() * MostAmounts - Units(2 * Gap);
    m_layout.axisFont = ShrunkFont(m_layout.font, m_device, [&](const QFontMetricsF& metrics) {
        return widest(metrics) <= most;
    });
    const QFontMetricsF metrics = Metrics(m_layout.axisFont);
    const double left = m_layout.place.left() + Units(Gap);
    const double width = std::min(widest(metrics), most);
    m_layout.plot.setLeft(left + width + Units(Gap));
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const double y = m_layout.YOf(m_layout.amounts.ticks[static_cast<std::size_t>(i)]);
        m_layout.amountTicks.push_back(
            {y, texts[i], {left, y - metrics.height() / 2, width, metrics.height()}});
    }
}

/// Space for the names right of the plot, and a font of which all of them fit below one another.
void ChartLayouter::ReserveLabels() {
    const auto count = static_cast<double>(m_data.lines.size());
    m_layout.labelFont = ShrunkFont(m_layout.font, m_device, [&](const QFontMetricsF& metrics) {
        return metrics.height() * count <= m_layout.place.height();
    });
    const QFontMetricsF metrics = Metrics(m_layout.labelFont);
    const double leader = Units(FanWidth + SampleWidth + 2 * Gap);
    const double most = std::max(0.0, m_layout.place.width() * MostLabels - leader);
    double width = 0;
    for (const ChartLine& line : m_data.lines) {
        const QString label = metrics.elidedText(line.name, Qt::ElideMiddle, most);
        width = std::max(width, std::min(metrics.horizontalAdvance(label), most));
        m_layout.curves.push_back({line.place, {}, {}, label, {}});
    }
    m_layout.plot.setRight(m_layout.place.right() - leader - width);
    m_layout.titlePlace.setRight(m_layout.plot.right());
    m_layout.scale.left = m_layout.plot.left();
    m_layout.scale.width = m_layout.plot.width();
}

void ChartLayouter::PlaceMonths() {
    const QRectF& plot = m_layout.plot;
    const double widest = Metrics(m_layout.font).horizontalAdvance(QStringLiteral("00000"));
    const int most = 1 + static_cast<int>(plot.width() / widest);
    const MonthAxis axis = AxisOfMonths(m_layout.scale.span, most);
    const double top = plot.bottom() + Units(Gap);
    for (const int tick : axis.ticks) {
        const double x = m_layout.scale.XOf(tick);
        m_layout.monthTicks.push_back({x,
                                       m_formats.InOwnDigits(QString::number(axis.CountAt(tick))),
                                       {x - widest / 2, top, widest, m_line}});
    }
    m_layout.monthsTitle = GetResourceText(axis.IsInYears() ? TextNumber::ChartYearsAxis
                                                            : TextNumber::ChartMonthsAxis);
    m_layout.monthsTitlePlace = {plot.left(), top + m_line, plot.width(), m_line};
}

/// Its label is above the plot and never leaves it to the sides.
void ChartLayouter::PlaceHorizon() {
    const QRectF& plot = m_layout.plot;
    ChartTick& horizon = m_layout.horizon;
    horizon.position = m_layout.scale.XOf(m_data.Horizon());
    horizon.text = NameOfHorizon(m_formats, m_data.years);
    const double width =
        std::min(plot.width(), Metrics(m_layout.font).horizontalAdvance(horizon.text) + Units(Gap));
    const double left = std::clamp(horizon.position - width / 2, plot.left(), plot.right() - width);
    horizon.place = {left, plot.top() - m_line - Units(Gap), width, m_line};
}

void ChartLayouter::PlaceCurves() {
    constexpr double tolerance = 0.2; // units: not to be seen
    for (std::size_t i = 0; i < m_data.lines.size(); ++i) {
        const ChartLine& line = m_data.lines[i];
        QPolygonF points;
        const int months = std::min(static_cast<int>(line.values.size()) - 1, m_layout.scale.span);
        points.reserve(months + 2);
        for (int month = 0; month <= months; ++month) {
            points.push_back({m_layout.scale.XOf(month), m_layout.YOf(line.By(month))});
        }
        if (months < m_layout.scale.span) {
            points.push_back({m_layout.plot.right(), points.back().y()});
        }
        m_layout.curves[i].points = Simplified(points, Units(tolerance));
    }
}

void ChartLayouter::PlaceLabels() {
    constexpr double spacing = 1.15; // of the labels where there is space
    const double lines = Metrics(m_layout.labelFont).height();
    const double height = std::min(lines * spacing, m_layout.place.height() /
                                                        static_cast<double>(m_data.lines.size()));
    std::vector<double> ends;
    for (const ChartCurve& curve : m_layout.curves) {
        ends.push_back(curve.points.back().y());
    }
    const std::vector<double> middles =
        SpreadLabels(ends, height, m_layout.place.top(), m_layout.place.bottom());
    for (std::size_t i = 0; i < middles.size(); ++i) {
        ChartCurve& curve = m_layout.curves[i];
        const double fan = m_layout.plot.right() + Units(FanWidth);
        const double left = fan + Units(SampleWidth + Gap);
        curve.leader = {curve.points.back(), QPointF(fan, middles[i]),
                        QPointF(fan + Units(SampleWidth), middles[i])};
        curve.labelPlace = {left, middles[i] - std::min(lines, height) / 2,
                            m_layout.place.right() - Units(Gap) - left, std::min(lines, height)};
    }
}

} // namespace

int ChartLayout::MonthAt(double x) const {
    return static_cast<int>(std::lround(std::clamp(scale.MonthAt(x), 0.0, 1.0 * scale.span)));
}

ChartLayout LayOutChart(const ChartData& data, const DisplayFormats& formats, const ChartLook& look,
                        const ChartPlace& at) {
    return ChartLayouter(data, formats, at).LayOut(look.font);
}

} // namespace quend::compare
