#include "ChartReading.h"

#include "ChartFont.h"
#include "ChartWords.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <numeric>

namespace quend::compare {

namespace {

constexpr double BoxPadding = 5;  // units, as all lengths here
constexpr double BoxDistance = 8; ///< from what is read
constexpr double BoxSample = 30;

/// The size of a box, and of its columns.
struct BoxMeasures {
    double line = 0; ///< the height of a row
    double names = 0;
    double amounts = 0;
    QSizeF size;
};

/// Measures and fills the box of one reading.
class ReadingLayouter {
public:
    ReadingLayouter(const ChartLayout& layout, const QPaintDevice* device, ChartReading& reading)
        : m_layout(layout), m_device(device), m_reading(reading) {}

    void LayOut();

private:
    double Units(double count) const { return count * m_layout.unit; }
    BoxMeasures Measured(const QFontMetricsF& metrics) const;
    QRectF PlaceOf(const QSizeF& size) const;
    int HiddenBy(const QRectF& box) const;
    void Fill(const BoxMeasures& measures);

    const ChartLayout& m_layout;
    const QPaintDevice* m_device;
    ChartReading& m_reading;
};

BoxMeasures ReadingLayouter::Measured(const QFontMetricsF& metrics) const {
    constexpr double mostNames = 0.3; // of the chart's width
    constexpr int columns = 4;        // paddings around sample, name and amount
    BoxMeasures box{.line = metrics.height(), .names = 0, .amounts = 0, .size = {}};
    for (const ReadingRow& row : m_reading.rows) {
        box.names = std::max(box.names, metrics.horizontalAdvance(row.name));
        box.amounts = std::max(box.amounts, metrics.horizontalAdvance(row.amount));
    }
    box.names = std::min(box.names, m_layout.place.width() * mostNames);
    const double rows = m_reading.sample + box.names + box.amounts + columns * Units(BoxPadding);
    const double heading = metrics.horizontalAdvance(m_reading.heading) + Units(2 * BoxPadding);
    const auto lines = static_cast<double>(m_reading.rows.size() + 1);
    box.size = {std::max(rows, heading), lines * box.line + Units(BoxPadding)};
    return box;
}

void ReadingLayouter::LayOut() {
    m_reading.sample = Units(BoxSample);
    m_reading.font = ShrunkFont(m_layout.font, m_device, [&](const QFontMetricsF& metrics) {
        const QSizeF size = Measured(metrics).size;
        return size.width() <= m_layout.place.width() && size.height() <= m_layout.place.height();
    });
    const BoxMeasures measures = Measured(QFontMetricsF(m_reading.font, m_device));
    m_reading.box = PlaceOf(measures.size.boundedTo(m_layout.place.size()));
    Fill(measures);
}

/// How much of the curves and labels a box would hide.
int ReadingLayouter::HiddenBy(const QRectF& box) const {
    constexpr int samples = 60; // across a curve
    constexpr int label = 12;   // a name weighs as much as a fifth of a curve
    int hidden = 0;
    for (const ChartCurve& curve : m_layout.curves) {
        hidden += box.intersects(curve.labelPlace) ? label : 0;
        qsizetype next = 1;
        for (int i = 0; i <= samples; ++i) {
            const double x = m_layout.plot.left() + m_layout.plot.width() * i / samples;
            while (next + 1 < curve.points.size() && curve.points[next].x() < x) {
                ++next;
            }
            const QLineF piece(curve.points[next - 1], curve.points[next]);
            hidden += box.contains(piece.pointAt((x - piece.x1()) / piece.dx())) ? 1 : 0;
        }
    }
    return hidden;
}

/// Beside the month that is read if there is space, at the top, the middle or the bottom.
QRectF ReadingLayouter::PlaceOf(const QSizeF& size) const {
    const QRectF& place = m_layout.place;
    const QRectF& plot = m_layout.plot;
    const double distance = Units(BoxDistance);
    QRectF best;
    int leastHidden = std::numeric_limits<int>::max();
    constexpr int readMonth = 100; // it weighs more than a whole curve
    for (const double left : {m_reading.x + distance, m_reading.x - distance - size.width()}) {
        for (const double top :
             {plot.top(), plot.center().y() - size.height() / 2, plot.bottom() - size.height()}) {
            const double x = std::clamp(left, place.left(), place.right() - size.width());
            const QRectF box({x, std::clamp(top, place.top(), place.bottom() - size.height())},
                             size);
            const bool hidesMonth = box.left() < m_reading.x && box.right() > m_reading.x;
            const int hidden = HiddenBy(box) + (hidesMonth ? readMonth : 0);
            if (hidden < leastHidden) {
                leastHidden = hidden;
                best = box;
            }
        }
    }
    return best;
}

void ReadingLayouter::Fill(const BoxMeasures& measures) {
    const QFontMetricsF metrics(m_reading.font, m_device);
    const double padding = Units(BoxPadding);
    QRectF row(m_reading.box.left() + padding, m_reading.box.top() + padding / 2,
               m_reading.box.width() - 2 * padding, measures.line);
    m_reading.headingPlace = row;
    for (ReadingRow& filled : m_reading.rows) {
        row.translate(0, measures.line);
        filled.place = row;
        filled.name = metrics.elidedText(filled.name, Qt::ElideMiddle, measures.names + 1);
    }
}

} // namespace

std::vector<int> LinesByValue(const ChartData& data, int month) {
    std::vector<int> lines(data.lines.size());
    std::iota(lines.begin(), lines.end(), 0);
    std::ranges::stable_sort(lines, std::ranges::greater(), [&](int line) {
        return data.lines[static_cast<std::size_t>(line)].By(month);
    });
    return lines;
}

ChartReading LayOutReading(const ChartData& data, const DisplayFormats& formats,
                           const ChartLayout& layout, const ChartMark& mark,
                           const QPaintDevice* device) {
    ChartReading reading;
    reading.x = layout.scale.XOf(mark.month);
    reading.heading = NameOfMonth(formats, mark.month);
    reading.chosen = mark.chosen;
    for (const int index : LinesByValue(data, mark.month)) {
        const ChartLine& line = data.lines[static_cast<std::size_t>(index)];
        const Money value = line.By(mark.month);
        reading.rows.push_back({index, line.place, line.name, formats.Currency(value),
                                QPointF(reading.x, layout.YOf(value)), QRectF()});
    }
    ReadingLayouter(layout, device, reading).LayOut();
    return reading;
}

} // namespace quend::compare
