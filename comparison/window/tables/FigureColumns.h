#pragma once

#include "CompareNames.h"
#include "DisplayFormats.h"
#include "Figures.h"

#include <QString>
#include <Qt>

#include <span>

namespace quend::compare {

/// A column of the table of costs.
struct FigureColumn {
    Figure figure = Figure::Lender;
    int heading = 0; ///< the number of its text; the cost by the horizon has another for one year
    int toolTip = 0; ///< the number of its text; 0: none
    int helpTopic = 0;
    Qt::AlignmentFlag side = Qt::AlignRight;
    Best best = Best::None;
    bool shownAtFirst = false;
};

/// All columns in their usual order. The place of a column is the number of its figure.
std::span<const FigureColumn> FigureColumns();

const FigureColumn& ColumnOf(Figure figure);

/// The heading in the current language. `years` until the horizon.
QString HeadingOf(Figure figure, int years, const DisplayFormats& formats);

/// A heading as a table shows it: a long one is broken at the blank nearest its middle.
QString InTwoLines(QString heading);

/// The columns of a schedule have the help topics from this one on, in the order of
/// ScheduleColumn.
inline constexpr int FirstScheduleTopic = 716;

} // namespace quend::compare
