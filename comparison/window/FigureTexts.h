#pragma once

#include "CompareNames.h"
#include "DisplayFormats.h"
#include "Figures.h"

#include <QString>

namespace quend::compare {

/// A number of months from 1 on as people say it, in the current language: "27 months" are "2 years
/// 3 months".
QString Duration(int months, const DisplayFormats& formats);

/// Some months in the current language: "from 3 years 1 month on", "up to 9 months".
QString StretchText(const CheaperStretch& stretch, const DisplayFormats& formats);

/// A value as the table and the sentences show it: amounts with symbol and cents, rates with three
/// decimals, both as the main window does. No value is an empty text; no stretch says "never".
QString TextOf(const FigureValue& value, const DisplayFormats& formats);

/// Amounts and counts as exact decimals, rates in percent to eight decimals, with a point and the
/// digits 0 to 9; a null text for what is no number.
QString PlainNumberOf(const FigureValue& value);

} // namespace quend::compare
