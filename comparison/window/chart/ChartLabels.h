#pragma once

#include "CompareNames.h"

#include <vector>

namespace quend::compare {

/// Moves labels of one height as little as possible (least squares) until none overlaps another or
/// leaves the range. Takes and returns their middles, in the same order; of equal ones the first is
/// put on top. The range has space for all of them.
std::vector<double> SpreadLabels(const std::vector<double>& middles, double height, double top,
                                 double bottom);

} // namespace quend::compare
