#pragma once

#include "CompareNames.h"
#include "ComparedWorksheet.h"
#include "DisplayFormats.h"
#include "Figures.h"

#include <QString>

namespace quend::compare {

/// One or two sentences, in the current language, that say with its numbers how a figure came
/// about, or why there is none. Of a loan that takes no part: why (WhyLeftOut); of its costs, as of
/// those of every offer, what they are. Empty for a blank offer and where there is no loan held
/// today.
///
/// Runs up to two schedules. Raises nothing.
QString ExplanationOf(const ComparedWorksheet& worksheet, Figure figure, int place,
                      const DisplayFormats& formats);

} // namespace quend::compare
