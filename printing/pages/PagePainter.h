#pragma once

#include "TextMetrics.h"

#include <QFontMetricsF>
#include <QPicture>
#include <QSize>

#include <functional>
#include <utility>
#include <vector>

class QPagedPaintDevice;
class QPainter;

namespace quend::printing {

/// Measures with the fonts that PaintPage draws with.
class FontMetrics : public TextMetrics {
public:
    double Width(const PrintFont& font, const QString& text) const override;
    double Height(const PrintFont& font) const override;

private:
    const QFontMetricsF& Of(const PrintFont& font) const;

    mutable std::vector<std::pair<PrintFont, QFontMetricsF>> m_known;
};

/// The unit of a recorded picture: as on a screen of ordinary resolution.
inline constexpr double PictureUnitsPerInch = 96;

/// Records a picture from (0, 0), with the font in pixels and a black pen to begin with.
QPicture RecordPicture(QSize size, const PrintFont& font,
                       const std::function<void(QPainter&, const QRectF&)>& paint);

/// Draws a page in black, as lines and text, and its pictures in their own colours; emoji are drawn
/// as the bitmaps of their font. The painter's unit is the twip, its origin the top left of the
/// printable part. Draws no background: the paper is white.
void PaintPage(QPainter& painter, const PrintedPage& page);

/// Draws all pages on a printer or into a document. False if drawing cannot begin.
bool PaintPages(QPagedPaintDevice& device, const PrintedPages& pages);

} // namespace quend::printing
