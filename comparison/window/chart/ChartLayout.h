#pragma once

#include "ChartAxes.h"
#include "ChartData.h"
#include "ChartLook.h"
#include "CompareNames.h"
#include "DisplayFormats.h"

#include <QFont>
#include <QPaintDevice>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QString>

#include <vector>

namespace quend::compare {

/// Where a chart is to be. Its measures follow from the font, so that any unit of the painter will
/// do.
struct ChartPlace {
    QRectF place;
    const QPaintDevice* device = nullptr; ///< of the painter; null: the screen
    int span = 0;                         ///< months to show at least
};

/// Months after today across the plot.
struct MonthScale {
    double left = 0;
    double width = 1;
    int span = 1;

    double XOf(double month) const { return left + width * month / span; }
    /// Also beyond both ends.
    double MonthAt(double x) const { return (x - left) / width * span; }
};

struct ChartTick {
    double position = 0; ///< x or y
    QString text;
    QRectF place; ///< of the text
};

/// A line: its curve, and its name at the end.
struct ChartCurve {
    int loan = 0; ///< ChartLine::place
    QPolygonF points;
    QPolygonF leader; ///< from the end of the curve to the label
    QString label;    ///< elided where it is too long
    QRectF labelPlace;
};

/// Where everything of a chart is. A value; PaintChart needs nothing else but the look.
struct ChartLayout {
    QRectF place;
    QRectF plot;
    double unit = 1; ///< the width of a grid line: a sixteenth of the font's height
    MonthScale scale;
    AmountAxis amounts;
    QFont font;
    QFont axisFont;  ///< of the amounts, and
    QFont labelFont; ///< of the labels: smaller where they do not fit
    QString title;   ///< what is shown, or that there is nothing to show
    QRectF titlePlace;
    QString monthsTitle;
    QRectF monthsTitlePlace;
    std::vector<ChartTick> amountTicks;
    std::vector<ChartTick> monthTicks;
    ChartTick horizon;
    std::vector<ChartCurve> curves; ///< as the lines of the data; none: only the title is shown

    double YOf(Money amount) const {
        return plot.bottom() - amounts.ShareOf(amount) * plot.height();
    }
    /// The nearest month of the span.
    int MonthAt(double x) const;
};

/// In a place that is too small for the font everything gets smaller. Nothing leaves the place.
ChartLayout LayOutChart(const ChartData& data, const DisplayFormats& formats, const ChartLook& look,
                        const ChartPlace& at);

} // namespace quend::compare
