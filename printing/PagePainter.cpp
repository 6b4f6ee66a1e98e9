#include "PagePainter.h"

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// Sized in whole twips, because a size in points would be scaled along with the painter.
QFont FontOf(const PrintFont& print) {
    QFont font(print.family);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(print.points * TwipsPerPoint))));
    font.setBold(print.bold);
    font.setItalic(print.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Spaced by nothing that can be seen, letters are not joined: "Payoff" is found when looked
    // for.
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.02);
    return font;
}

QPen PenOf(int width) {
    return {Qt::black, width * TwipsPerDot, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

void Paint(QPainter& painter, const PrintedBox& box) {
    painter.setPen(PenOf(box.penWidth));
    painter.drawRect(box.place);
}

void Paint(QPainter& painter, const PrintedLine& line) {
    painter.setPen(PenOf(line.penWidth));
    painter.drawLine(line.line);
}

void Paint(QPainter& painter, const PrintedText& text) {
    const QFont font = FontOf(text.font);
    painter.setPen(Qt::black);
    painter.setFont(font);
    painter.drawText(text.place + QPointF(0, QFontMetricsF(font).ascent()), text.text);
}

} // namespace

const QFontMetricsF& FontMetrics::Of(const PrintFont& font) const {
    const auto known = std::ranges::find(m_known, font, &decltype(m_known)::value_type::first);
    if (known != m_known.end()) {
        return known->second;
    }
    return m_known.emplace_back(font, QFontMetricsF(FontOf(font))).second;
}

double FontMetrics::Width(const PrintFont& font, const QString& text) const {
    return Of(font).horizontalAdvance(text);
}

double FontMetrics::Height(const PrintFont& font) const { return Of(font).height(); }

void PaintPage(QPainter& painter, const PrintedPage& page) {
    painter.setBrush(Qt::NoBrush);
    for (const PrintedItem& item : page.items) {
        std::visit([&](const auto& drawn) { Paint(painter, drawn); }, item);
    }
}

bool PaintPages(QPagedPaintDevice& device, const PrintedPages& pages) {
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    painter.scale(device.logicalDpiX() / TwipsPerInch, device.logicalDpiY() / TwipsPerInch);
    bool first = true;
    for (const PrintedPage& page : pages.pages) {
        if (!std::exchange(first, false)) {
            device.newPage();
        }
        PaintPage(painter, page);
    }
    return painter.end();
}
