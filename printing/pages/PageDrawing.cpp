#include "PageDrawing.h"

#include "FitText.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace quend::printing {

namespace {

constexpr int BoxPen = 2;
/// Between the edge of a box and its text.
constexpr double TextPadding = 72;
/// The least distance of a text from the opposite edge of its box.
constexpr double LeastGap = 20;

/// The font shrinks at most to this size, or to this fraction of its size if that is less.
constexpr double LeastPoints = 5;
constexpr double LeastPart = 0.6;

} // namespace

PageDrawing::PageDrawing(QSizeF space, const TextMetrics& metrics)
    : m_metrics(&metrics), m_pages{.space = space, .pages = {PrintedPage{}}} {}

void PageDrawing::SetType(double points, bool bold) {
    m_font.points = points;
    m_font.bold = bold;
}

void PageDrawing::PrintBox(double left, double top, double width, double height) {
    const double scale = ScaleFactor();
    Draw(PrintedBox{QRectF((left + m_offsetX) * scale, top * scale, width * scale, height * scale),
                    BoxPen});
}

void PageDrawing::PrintLine(double x1, double y1, double x2, double y2, int penWidth) {
    const double scale = ScaleFactor();
    Draw(PrintedLine{QLineF(x1 * scale, y1 * scale, x2 * scale, y2 * scale), penWidth});
}

double PageDrawing::RoomInBox(double width) const {
    return width * ScaleFactor() - TextPadding - LeastGap;
}

QString PageDrawing::FitInto(const QString& text, double width) {
    const double wanted = TextWidth(text);
    if (wanted <= width) {
        return text;
    }
    const double least = std::min(LeastPoints, m_font.points * LeastPart);
    m_font.points = std::clamp(m_font.points * width / wanted, least, m_font.points);
    const double step = 1 / TwipsPerPoint;
    while (m_font.points > least && TextWidth(text) > width) {
        m_font.points = std::max(least, m_font.points - step);
    }
    return TextWidth(text) <= width ? text : CutToWidth(text, width, Measure());
}

void PageDrawing::PrintTextInBox(double left, double top, double width, double height,
                                 const QString& text, bool rightAligned) {
    if (text.isEmpty()) {
        return;
    }
    const QStringList lines = text.split(LineBreak);
    const double scale = ScaleFactor();
    const double lineHeight = TextHeight();
    const double textHeight = lineHeight * static_cast<double>(lines.size());
    const double leftEdge = (left + m_offsetX) * scale;
    double y = top * scale + (height * scale - textHeight) / 2;
    for (const QString& line : lines) {
        PrintLineInBox(leftEdge, leftEdge + width * scale, y, line, rightAligned);
        y += lineHeight;
    }
}

/// All values in twips. The padding shrinks before the font does. A single character keeps its size
/// in any box, because a tick must not vanish.
void PageDrawing::PrintLineInBox(double left, double right, double y, const QString& text,
                                 bool rightAligned) {
    const double spare = right - left - LeastGap - TextWidth(text);
    if (text.size() == 1 && spare < LeastGap) {
        PrintAt({(left + right - TextWidth(text)) / 2, y}, text);
        return;
    }
    const PrintFont font = m_font;
    const double lineHeight = TextHeight();
    const double padding = std::clamp(spare, LeastGap, TextPadding);
    const QString fitting = FitInto(text, right - left - padding - LeastGap);
    const double x = rightAligned ? right - TextWidth(fitting) - padding : left + padding;
    PrintAt({x, y + (lineHeight - TextHeight()) / 2}, fitting);
    m_font = font;
}

void PageDrawing::PrintLabel(double x, double y, const QString& text, double height, bool centred,
                             double width) {
    const double scale = ScaleFactor();
    QPointF place(x * scale, y * scale);
    if (height >= 0) {
        place.ry() += (height * scale - TextHeight()) / 2;
    }
    if (centred && width >= 0) {
        place.rx() += (width * scale - TextWidth(text)) / 2;
    }
    PrintAt(place, text);
}

void PageDrawing::PrintAt(QPointF place, const QString& text) {
    if (!text.isEmpty()) {
        Draw(PrintedText{place, text, m_font});
    }
}

void PageDrawing::PrintPicture(const QRectF& place, const QPicture& picture) {
    Draw(PrintedPicture{place, picture});
}

void PageDrawing::NewPage() { m_pages.pages.emplace_back(); }

} // namespace quend::printing
