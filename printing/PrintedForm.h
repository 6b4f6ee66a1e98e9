#pragma once

#include <QLineF>
#include <QRectF>
#include <QString>

#include <array>
#include <cstddef>
#include <vector>

/// What the report shows of the main window, as it stood at one moment. Places are in pixels of the
/// window below its menu bar.

enum class Side { Left, Centre, Right };

struct FormLabel {
    QString caption; ///< without the marks of access keys
    QRectF place;
    Side side = Side::Left; ///< where in its place the caption stands
    double points = 0;      ///< the size of its type
    bool bold = false;
};

/// A label, its field, and the side on which the field's text stands.
struct FormEntry {
    FormLabel label;
    QRectF field;
    QString text;
    Side side = Side::Left;
};

/// The left edge, from that of the area of the offers, and the width of a column.
struct FormColumn {
    double left = 0;
    double width = 0;
    Side side = Side::Left;
};

inline constexpr std::size_t OfferColumnCount = 11;

/// The texts of an offer in the order of the columns: the tick box shows "x" or nothing, the last
/// is about the lender and may hold "\r\n".
using FormRow = std::array<QString, OfferColumnCount>;

struct PrintedForm {
    double width = 0;          ///< of the window
    double pixelsPerPoint = 1; ///< of the screen
    QString fontFamily;        ///< of the label of the loan's name, and of everything printed
    double fontHeight = 0;     ///< what a line takes in the window's font
    FormLabel current;         ///< the heading of the loan held today
    std::vector<FormEntry> header;
    std::array<QLineF, 4> lines;
    std::vector<FormEntry> currentFirstHalf;
    std::vector<FormEntry> currentSecondHalf;
    std::vector<FormLabel> headings;
    double offersLeft = 0; ///< of the area of the offers
    double offersTop = 0;
    std::array<FormColumn, OfferColumnCount> columns;
    double scrollBarWidth = 0; ///< beside the offers
    double fieldHeight = 0;    ///< of a field of an offer
    std::vector<FormRow> rows;
    QString legalNotice;
};
