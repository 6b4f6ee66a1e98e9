#pragma once

#include "ChartData.h"
#include "CompareNames.h"
#include "DisplayFormats.h"

#include <QString>

namespace quend::compare {

/// "Cost so far" or "Balance".
QString NameOfShown(ChartShows shows);

/// "Today" for 0, otherwise "Month 30".
QString NameOfMonth(const DisplayFormats& formats, int month);
/// "Today" for 0, otherwise "Year 3".
QString NameOfYear(const DisplayFormats& formats, int year);

/// "After 5 years".
QString NameOfHorizon(const DisplayFormats& formats, int years);

/// "Month 30: Cedar & Sons has cost $12,345.67."
QString SentenceOf(const ChartData& data, const DisplayFormats& formats, const ChartLine& line,
                   int month);

} // namespace quend::compare
