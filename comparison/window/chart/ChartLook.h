#pragma once

#include "CompareNames.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QPen>

namespace quend::compare {

/// The colours and the font of a chart. The same code paints every look.
struct ChartLook {
    QFont font;
    QColor background;
    QColor text;
    QColor grid;
    QColor accent;         ///< of the horizon, the focus and what is read
    bool coloured = false; ///< the lines are; otherwise all have the colour of the text
};

ChartLook LookOfScreen(const QPalette& palette, const QFont& font);
/// Black on white.
ChartLook LookOfPaper(const QFont& font);

/// The contrast of two colours by the accessibility guidelines: from 1, none, to 21.
double ContrastOf(const QColor& one, const QColor& other);
/// What lines and marks need.
inline constexpr double LeastContrast = 3;

/// The pen of a loan's line. Dashes and width alone distinguish the loan held today and sixteen
/// offers; further offers repeat them. `unit` is the width of a thin grid line.
QPen PenOfLine(const ChartLook& look, int place, double unit);

} // namespace quend::compare
