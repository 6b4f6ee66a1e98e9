#pragma once

#include <QLatin1String>
#include <QLineF>
#include <QPicture>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <variant>
#include <vector>

namespace quend::printing {

/// Positions and sizes on paper are twips, 1/1440 inch, from the top left of the printable part of
/// a page; font sizes are points, pen widths are dots of 1/300 inch.
inline constexpr double TwipsPerPoint = 20;
inline constexpr double TwipsPerInch = 1440;
inline constexpr double TwipsPerDot = TwipsPerInch / 300;

/// Separates the lines of a text before it is drawn; on the page each line is a separate text.
inline constexpr QLatin1String LineBreak("\r\n");

struct PrintFont {
    QString family;
    double points = 0;
    bool bold = false;
    bool italic = false;

    friend bool operator==(const PrintFont&, const PrintFont&) = default;
};

/// A frame without a fill.
struct PrintedBox {
    QRectF place;
    int penWidth = 0;
};

struct PrintedLine {
    QLineF line;
    int penWidth = 0;
};

/// One line of text; `place` is the top left of its line.
struct PrintedText {
    QPointF place;
    QString text;
    PrintFont font;
};

/// A recorded drawing in its own colours. Its bounding rectangle is scaled to the place, and
/// nothing outside is painted.
struct PrintedPicture {
    QRectF place;
    QPicture picture;
};

using PrintedItem = std::variant<PrintedBox, PrintedLine, PrintedText, PrintedPicture>;

/// The items of a page, in drawing order. Black on white, but for pictures.
struct PrintedPage {
    std::vector<PrintedItem> items;
};

/// A document in memory. Nothing of it has been sent to a printer.
struct PrintedPages {
    QSizeF space; ///< the printable part of each page
    std::vector<PrintedPage> pages;
    QString title = {}; ///< of the document; empty for the report, whose job has a fixed name
};

} // namespace quend::printing
