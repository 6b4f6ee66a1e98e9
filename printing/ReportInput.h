#pragma once

#include <QLineF>
#include <QRectF>
#include <QString>

#include <array>
#include <vector>

namespace quend::printing {

/// What the report shows of the main window, read at one moment. Positions are in pixels of the
/// window below its menu bar.

enum class Side { Left, Centre, Right };

struct FormLabel {
    QString caption; ///< without access key marks
    QRectF place;
    Side side = Side::Left; ///< the alignment of the caption in its place
    double points = 0;      ///< the font size
    bool bold = false;
};

/// A label, its field, and the alignment of the field's text.
struct FormEntry {
    FormLabel label;
    QRectF field;
    QString text;
    Side side = Side::Left;
};

/// The left edge of a column, relative to the offer area, and its width.
struct FormColumn {
    double left = 0;
    double width = 0;
    Side side = Side::Left;
};

/// The texts of an offer, one for each column. The tick box shows "x" or nothing. The last text
/// describes the lender and may contain "\r\n".
using FormRow = std::vector<QString>;

struct ReportInput {
    double width = 0;          ///< of the window
    double pixelsPerPoint = 1; ///< of the screen
    QString fontFamily;        ///< of the label of the loan's name, used for everything printed
    double fontHeight = 0;     ///< the line height in the window's font
    FormLabel current;         ///< the heading of the current loan
    std::vector<FormEntry> header;
    std::array<QLineF, 4> lines;
    std::vector<FormEntry> currentFirstHalf;
    std::vector<FormEntry> currentSecondHalf;
    std::vector<FormLabel> headings;
    double offersLeft = 0; ///< of the offer area
    double offersTop = 0;
    std::vector<FormColumn> columns; ///< the last one holds the lender
    double scrollBarWidth = 0;       ///< beside the offers
    double fieldHeight = 0;          ///< of a field in an offer row
    std::vector<FormRow> rows;
    QString legalNotice;
};

} // namespace quend::printing
