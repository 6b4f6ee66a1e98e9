#pragma once

#include "CompareNames.h"
#include "ComparedWorksheet.h"
#include "DisplayFormats.h"

#include <QString>

namespace quend::compare {

/// The loan's name and why it takes no part, in the current language: "Lakeside Savings (enter a
/// term)". What is never repaid says which payments would be enough. Empty for a loan that takes
/// part, a blank offer, and where there is no loan held today.
QString WhyLeftOut(const ComparedWorksheet& worksheet, int place, const DisplayFormats& formats);

/// For a loan that its payment never repays: which payment would repay it at all, and which by the
/// horizon, as a sentence. Empty where no payment would, where something else is missing, and for a
/// loan with a payoff date in the main window.
QString EnoughFor(const ComparedWorksheet& worksheet, int place, const DisplayFormats& formats);

} // namespace quend::compare
