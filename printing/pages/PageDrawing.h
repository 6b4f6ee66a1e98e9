#pragma once

#include "FitText.h"
#include "PrintedPage.h"
#include "TextMetrics.h"

#include <utility>

namespace quend::printing {

/// Draws boxes, lines and texts on pages in memory. Positions and sizes are given in window units
/// and multiplied by ScaleFactor() just before drawing. Sends nothing to a printer.
class PageDrawing {
public:
    /// `space` is the printable part of a page in twips. The metrics must outlive this object.
    PageDrawing(QSizeF space, const TextMetrics& metrics);

    double ScaleWidth() const { return m_pages.space.width(); }
    double ScaleHeight() const { return m_pages.space.height(); }
    /// Twips per window unit.
    double ScaleFactor() const { return m_scaleFactor; }
    void SetScaleFactor(double twipsPerUnit) { m_scaleFactor = twipsPerUnit; }
    /// Added to the left edge of boxes and of the texts in them; window units.
    void SetOffsetX(double units) { m_offsetX = units; }

    const PrintFont& Font() const { return m_font; }
    void SetFont(const PrintFont& font) { m_font = font; }
    void SetFamily(const QString& family) { m_font.family = family; }
    void SetType(double points, bool bold);
    void SetItalic(bool italic) { m_font.italic = italic; }
    /// In twips, in the current font.
    double TextWidth(const QString& text) const { return m_metrics->Width(m_font, text); }
    MeasureText Measure() const {
        return [this](const QString& text) { return TextWidth(text); };
    }
    double TextHeight() const { return HeightOf(m_font); }
    double HeightOf(const PrintFont& font) const { return m_metrics->Height(font); }

    void PrintBox(double left, double top, double width, double height);
    void PrintLine(double x1, double y1, double x2, double y2, int penWidth);
    /// Centred vertically; line breaks are "\r\n". A line that is too wide for the box gets less
    /// padding or else a smaller font; if that would not be legible, it ends in "…".
    void PrintTextInBox(double left, double top, double width, double height, const QString& text,
                        bool rightAligned);
    /// A caption at (x, y), centred vertically if there is a height, and horizontally if there is a
    /// width and `centred` is set. A negative height or width means none.
    void PrintLabel(double x, double y, const QString& text, double height = -1,
                    bool centred = false, double width = -1);
    /// The same at a position in twips, for texts that belong to the page and not to the window.
    void PrintAt(QPointF place, const QString& text);

    /// A recorded picture, scaled into a place in twips.
    void PrintPicture(const QRectF& place, const QPicture& picture);

    /// Fits the text into a width in twips: unchanged, or else in a smaller font, which becomes the
    /// current font, or else shortened.
    QString FitInto(const QString& text, double width);
    /// The width available for text in a box, in twips.
    double RoomInBox(double width) const;

    void NewPage();
    /// The title of the document as its file or print job has it; not drawn.
    void SetTitle(const QString& title) { m_pages.title = title; }
    int PageNumber() const { return static_cast<int>(m_pages.pages.size()); }
    const PrintedPages& Pages() const { return m_pages; }

private:
    void Draw(PrintedItem item) { m_pages.pages.back().items.push_back(std::move(item)); }
    void PrintLineInBox(double left, double right, double y, const QString& text,
                        bool rightAligned);

    const TextMetrics* m_metrics;
    PrintedPages m_pages;
    PrintFont m_font;
    double m_scaleFactor = 1;
    double m_offsetX = 0;
};

} // namespace quend::printing
