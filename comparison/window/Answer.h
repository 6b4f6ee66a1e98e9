#pragma once

#include "CompareNames.h"
#include "ComparedWorksheet.h"
#include "DisplayFormats.h"

#include <QStringList>

namespace quend::compare {

/// The answer in words: whole sentences in the current language, in the order in which they are
/// read, and at least one.
///
/// First which loan costs least by the horizon and by how much, to the cent as shown: costs that
/// show alike are equal. Then for which other stretches of months another offer would be the
/// cheapest, since when the cheapest one costs no more than the loan held today, and what else the
/// comparison with that loan depends on. Where no offer takes part, what to enter.
///
/// Costs and differences are in whole units if all of them are at least 100, otherwise in cents.
/// Raises nothing: costs so large that their difference is no amount are not compared.
QStringList AnswerOf(const ComparedWorksheet& worksheet, const DisplayFormats& formats);

} // namespace quend::compare
