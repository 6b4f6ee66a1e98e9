#pragma once

#include "Comparison.h"
#include "ModelNames.h"

namespace quend::model {

class Worksheet;

/// What a comparison takes from a worksheet: today, the values above the offers, and the offers in
/// the order of entry, blank ones included. The years and the choice of payment keep their
/// defaults.
///
/// There is no loan held today where nothing but its next payment is entered, because that date is
/// preset. For two offers a comparison computes more than the main window shows: one without a term
/// gets that of the worksheet, and one whose intended payment was cleared gets the required one.
/// Rates and terms may be negative, as they may be typed.
comparison::ComparisonInput ToComparison(const Worksheet& worksheet);

} // namespace quend::model
