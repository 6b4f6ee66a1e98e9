#include "Chart.h"

#include <QBrush>
#include <QLineF>
#include <QPen>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace quend::compare {

namespace {

constexpr int LeftText = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;
constexpr int RightText = Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine;
constexpr int CentredText = Qt::AlignCenter | Qt::TextSingleLine;
constexpr double StrongLine = 1.5; // units

/// Restores the painter, and keeps to the chart.
class ChartPainter {
public:
    ChartPainter(QPainter& painter, const ChartLayout& layout, const ChartLook& look)
        : m_painter(painter), m_layout(layout), m_look(look) {
        m_painter.save();
        m_painter.setClipRect(layout.place, Qt::IntersectClip);
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setLayoutDirection(Qt::LeftToRight); // or texts would change sides
        m_painter.setPen(look.text);
        m_painter.setBrush(Qt::NoBrush);
    }
    Q_DISABLE_COPY_MOVE(ChartPainter)
    ~ChartPainter() { m_painter.restore(); }

    void PaintBase();
    void PaintGrid();
    void PaintAxes();
    void PaintHorizon();
    void PaintCurves();
    void PaintMark(const ChartReading& reading);
    void PaintBox(const ChartReading& reading);

private:
    double Units(double count) const { return count * m_layout.unit; }
    void Text(const QRectF& place, int flags, const QString& text, const QFont& font);
    void Horizontal(double y, double width, const QColor& colour);
    void Vertical(double x, double top, double width, const QColor& colour);
    void Fill(const QRectF& place, const QColor& colour);

    QPainter& m_painter;
    const ChartLayout& m_layout;
    const ChartLook& m_look;
};

/// On whole dots of the device, and at least one of them wide, so that thin lines are sharp.
QRectF OnDots(const QRectF& place, const QTransform& toDevice) {
    if (toDevice.type() > QTransform::TxScale) {
        return place;
    }
    const QRectF dots = toDevice.mapRect(place);
    const QRectF whole(std::round(dots.left()), std::round(dots.top()),
                       std::max(1.0, std::round(dots.width())),
                       std::max(1.0, std::round(dots.height())));
    return toDevice.inverted().mapRect(whole);
}

void ChartPainter::Fill(const QRectF& place, const QColor& colour) {
    m_painter.fillRect(OnDots(place, m_painter.deviceTransform()), colour);
}

void ChartPainter::Horizontal(double y, double width, const QColor& colour) {
    const QRectF& plot = m_layout.plot;
    Fill({plot.left(), y - Units(width) / 2, plot.width(), Units(width)}, colour);
}

void ChartPainter::Vertical(double x, double top, double width, const QColor& colour) {
    Fill({x - Units(width) / 2, top, Units(width), m_layout.plot.bottom() - top}, colour);
}

void ChartPainter::Text(const QRectF& place, int flags, const QString& text, const QFont& font) {
    m_painter.setFont(font);
    m_painter.setPen(m_look.text);
    m_painter.drawText(place, flags | Qt::TextDontClip, text);
}

void ChartPainter::PaintBase() {
    m_painter.fillRect(m_layout.place, m_look.background);
    if (m_layout.curves.empty()) {
        const int words = Qt::AlignCenter | Qt::TextWordWrap;
        m_painter.setFont(m_layout.font);
        m_painter.drawText(m_layout.titlePlace, words, m_layout.title);
    }
}

void ChartPainter::PaintGrid() {
    for (const ChartTick& tick : m_layout.amountTicks) {
        Horizontal(tick.position, 1, m_look.grid);
    }
    for (const ChartTick& tick : m_layout.monthTicks) {
        Vertical(tick.position, m_layout.plot.top(), 1, m_look.grid);
    }
    Horizontal(m_layout.YOf(Money()), 1, m_look.text);
}

void ChartPainter::PaintAxes() {
    Text(m_layout.titlePlace, LeftText, m_layout.title, m_layout.font);
    Text(m_layout.monthsTitlePlace, CentredText, m_layout.monthsTitle, m_layout.font);
    for (const ChartTick& tick : m_layout.amountTicks) {
        Text(tick.place, RightText, tick.text, m_layout.axisFont);
    }
    for (const ChartTick& tick : m_layout.monthTicks) {
        Text(tick.place, CentredText, tick.text, m_layout.font);
    }
}

/// A line with a handle, which shows that it can be dragged.
void ChartPainter::PaintHorizon() {
    constexpr double handle = 5;
    const ChartTick& horizon = m_layout.horizon;
    const double top = m_layout.plot.top();
    Vertical(horizon.position, top, StrongLine, m_look.accent);
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(m_look.accent);
    m_painter.drawPolygon(QPolygonF{QPointF(horizon.position - Units(handle), top - Units(handle)),
                                    QPointF(horizon.position + Units(handle), top - Units(handle)),
                                    QPointF(horizon.position, top + Units(handle))});
    m_painter.setBrush(Qt::NoBrush);
    Text(horizon.place, CentredText, horizon.text, m_layout.font);
}

void ChartPainter::PaintCurves() {
    for (const ChartCurve& curve : m_layout.curves) {
        m_painter.setPen(PenOfLine(m_look, curve.loan, m_layout.unit));
        m_painter.drawPolyline(curve.points + curve.leader);
    }
    for (const ChartCurve& curve : m_layout.curves) {
        Text(curve.labelPlace, LeftText, curve.label, m_layout.labelFont);
    }
}

void ChartPainter::PaintMark(const ChartReading& reading) {
    constexpr double radius = 3;
    constexpr double halo = 6;
    Vertical(reading.x, m_layout.plot.top(), 1, m_look.text);
    for (const ReadingRow& row : reading.rows) {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(PenOfLine(m_look, row.loan, m_layout.unit).color());
        m_painter.drawEllipse(row.point, Units(radius), Units(radius));
        if (row.line == reading.chosen) {
            m_painter.setBrush(Qt::NoBrush);
            m_painter.setPen(QPen(m_look.accent, Units(StrongLine)));
            m_painter.drawEllipse(row.point, Units(halo), Units(halo));
        }
    }
    m_painter.setBrush(Qt::NoBrush);
}

void ChartPainter::PaintBox(const ChartReading& reading) {
    constexpr double padding = 5;
    Fill(reading.box, m_look.text);
    const double edge = m_layout.unit;
    Fill(reading.box.adjusted(edge, edge, -edge, -edge), m_look.background);
    Text(reading.headingPlace, LeftText, reading.heading, reading.font);
    for (const ReadingRow& row : reading.rows) {
        const double y = row.place.center().y();
        m_painter.setPen(PenOfLine(m_look, row.loan, m_layout.unit));
        m_painter.drawLine(QLineF(row.place.left(), y, row.place.left() + reading.sample, y));
        if (row.line == reading.chosen) {
            m_painter.setPen(QPen(m_look.accent, Units(StrongLine)));
            m_painter.drawRect(row.place.adjusted(-Units(padding) / 2, 0, Units(padding) / 2, 0));
        }
        const QRectF words = row.place.adjusted(reading.sample + Units(padding), 0, 0, 0);
        Text(words, LeftText, row.name, reading.font);
        Text(words, RightText, row.amount, reading.font);
    }
}

} // namespace

void PaintChart(QPainter& painter, const ChartLayout& layout, const ChartLook& look) {
    ChartPainter chart(painter, layout, look);
    chart.PaintBase();
    if (layout.curves.empty()) {
        return;
    }
    chart.PaintGrid();
    chart.PaintHorizon();
    chart.PaintCurves();
    chart.PaintAxes();
}

void PaintReading(QPainter& painter, const ChartLayout& layout, const ChartReading& reading,
                  const ChartLook& look) {
    ChartPainter chart(painter, layout, look);
    chart.PaintMark(reading);
    chart.PaintBox(reading);
}

void PaintChart(QPainter& painter, const QRectF& place, const ChartData& data,
                const DisplayFormats& formats, const ChartLook& look) {
    const ChartPlace at{.place = place, .device = painter.device(), .span = 0};
    PaintChart(painter, LayOutChart(data, formats, look, at), look);
}

} // namespace quend::compare
