#include "PagePainter.h"

#include <QFont>
#include <QFontInfo>
#include <QGlyphRun>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <QPicture>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace quend::printing {

namespace {

/// Sized in whole pixels, because a size in points would be scaled along with the painter.
QFont FontOf(const PrintFont& print, double pixelsPerPoint = TwipsPerPoint) {
    QFont font(print.family);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(print.points * pixelsPerPoint))));
    font.setBold(print.bold);
    font.setItalic(print.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Qt 6.4 forms no ligatures in spaced letters, and a search in the document finds "Payoff".
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

/// Emoji lie beyond the letters of common scripts, so this quick check avoids the layout.
bool MayHoldPictures(const QString& text) {
    constexpr char16_t firstSymbol = 0x2000;
    return std::ranges::any_of(text, [](QChar letter) { return letter >= firstSymbol; });
}

/// The font at another size. Embedding a font in a document leaves Qt's font engine at a size
/// without bitmaps. Setting a different size first makes Qt set the wanted one again.
QRawFont Sized(QRawFont font, double pixels) {
    font.setPixelSize(pixels + 1);
    font.boundingRect(0);
    font.setPixelSize(pixels);
    font.boundingRect(0);
    return font;
}

/// One glyph of a bitmap font.
QImage PictureOf(const QRawFont& font, quint32 glyph) {
    const QRectF bounds = font.boundingRect(glyph);
    QImage picture(bounds.size().toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes({glyph});
    run.setPositions({QPointF(0, 0)});
    QPainter(&picture).drawGlyphRun(-bounds.topLeft(), run);
    return picture;
}

void PaintPicture(QPainter& painter, QPointF place, const QRawFont& font, quint32 glyph) {
    constexpr double dotsPerTwip = 0.5; // 720 per inch
    const QRawFont dots = Sized(font, font.pixelSize() * dotsPerTwip);
    const QRectF bounds = dots.boundingRect(glyph);
    if (!bounds.isEmpty()) {
        painter.drawImage(
            QRectF(place + bounds.topLeft() / dotsPerTwip, bounds.size() / dotsPerTwip),
            PictureOf(dots, glyph));
    }
}

/// Emoji have no outlines, and a document shows only outlines.
void PaintPictures(QPainter& painter, QPointF baseline, const QFont& font, const QString& text) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    for (const QGlyphRun& run : layout.glyphRuns()) {
        const QRawFont raw = run.rawFont();
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> places = run.positions();
        for (qsizetype at = 0; at < glyphs.size(); ++at) {
            if (raw.pathForGlyph(glyphs.at(at)).isEmpty()) {
                PaintPicture(painter, baseline + places.at(at) - QPointF(0, line.ascent()), raw,
                             glyphs.at(at));
            }
        }
    }
}

void Paint(QPainter& painter, const PrintedText& text) {
    const QFont font = FontOf(text.font);
    const QPointF baseline = text.place + QPointF(0, QFontMetricsF(font).ascent());
    painter.setPen(Qt::black);
    painter.setFont(font);
    painter.drawText(baseline, text.text);
    if (MayHoldPictures(text.text)) {
        PaintPictures(painter, baseline, font, text.text);
    }
}

/// A recorded picture scales itself by the resolution of the device, which is undone here: the
/// page's unit does not depend on it.
void Paint(QPainter& painter, const PrintedPicture& drawn) {
    const QPaintDevice& device = *painter.device();
    const QRectF from = drawn.picture.boundingRect();
    if (from.isEmpty()) {
        return;
    }
    painter.save();
    painter.setClipRect(drawn.place, Qt::IntersectClip);
    painter.translate(drawn.place.topLeft());
    painter.scale(drawn.place.width() / from.width(), drawn.place.height() / from.height());
    painter.translate(-from.topLeft());
    painter.scale(double{1} * drawn.picture.logicalDpiX() / device.logicalDpiX(),
                  double{1} * drawn.picture.logicalDpiY() / device.logicalDpiY());
    painter.drawPicture(0, 0, drawn.picture);
    painter.restore();
}

/// Otherwise the next report would be laid out with the font sizes that this one left behind.
void SetSizesAnew(const PrintedPages& pages) {
    for (const PrintedPage& page : pages.pages) {
        for (const PrintedItem& item : page.items) {
            const auto* text = std::get_if<PrintedText>(&item);
            if (text != nullptr && MayHoldPictures(text->text)) {
                QTextLayout layout(text->text, FontOf(text->font));
                layout.beginLayout();
                layout.createLine();
                layout.endLayout();
                for (const QGlyphRun& run : layout.glyphRuns()) {
                    Sized(run.rawFont(), run.rawFont().pixelSize());
                }
            }
        }
    }
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

QPicture RecordPicture(QSize size, const PrintFont& font,
                       const std::function<void(QPainter&, const QRectF&)>& paint) {
    constexpr double unitsPerPoint = PictureUnitsPerInch / TwipsPerInch * TwipsPerPoint;
    QFont type = FontOf(font, unitsPerPoint);
    if (type.families().isEmpty()) { // Qt 6.4 fails to record such a font
        type.setFamily(QFontInfo(type).family());
    }
    QPicture picture;
    QPainter painter(&picture);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    painter.setFont(type);
    paint(painter, QRectF(QPointF(0, 0), size));
    painter.end();
    picture.setBoundingRect(QRect(QPoint(0, 0), size));
    return picture;
}

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
    const bool ended = painter.end();
    SetSizesAnew(pages);
    return ended;
}

} // namespace quend::printing
