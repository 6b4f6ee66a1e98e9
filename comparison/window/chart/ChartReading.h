#pragma once

#include "ChartData.h"
#include "ChartLayout.h"
#include "CompareNames.h"
#include "DisplayFormats.h"

#include <QFont>
#include <QPaintDevice>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <vector>

namespace quend::compare {

/// What is read, in months after today.
struct ChartMark {
    int month = 0;
    int chosen = -1; ///< index of the line that is highlighted; none: -1

    friend bool operator==(const ChartMark&, const ChartMark&) = default;
};

struct ReadingRow {
    int line = 0; ///< index
    int loan = 0; ///< ChartLine::place
    QString name; ///< elided where it is too long
    QString amount;
    QPointF point; ///< on the curve
    QRectF place;  ///< of the row in the box
};

/// The values of all lines at one month, in a box.
struct ChartReading {
    double x = 0;
    QString heading;
    QRectF headingPlace;
    QFont font; ///< smaller than that of the chart where the box would leave it
    QRectF box;
    double sample = 0;            ///< width of the piece of line at the left of a row
    std::vector<ReadingRow> rows; ///< the greatest value first
    int chosen = -1;              ///< as in the mark
};

/// The lines, by index, from the greatest value at a month to the least; equal ones in their order.
std::vector<int> LinesByValue(const ChartData& data, int month);

/// The box is inside the chart, where it hides least of the lines and their names.
ChartReading LayOutReading(const ChartData& data, const DisplayFormats& formats,
                           const ChartLayout& layout, const ChartMark& mark,
                           const QPaintDevice* device);

} // namespace quend::compare
