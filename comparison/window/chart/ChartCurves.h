#pragma once

#include "CompareNames.h"

#include <QPolygonF>

namespace quend::compare {

/// The curve with only the points that it needs: each point left out is no further above or below
/// the rest than the tolerance. The points ascend from left to right.
QPolygonF Simplified(const QPolygonF& curve, double tolerance);

} // namespace quend::compare
