#include "ChartCurves.h"

#include <algorithm>
#include <limits>

namespace quend::compare {

namespace {

/// The slopes of all lines from a point that pass the later points closely enough.
struct Slopes {
    double least = -std::numeric_limits<double>::infinity();
    double greatest = std::numeric_limits<double>::infinity();

    bool Contains(double slope) const { return slope >= least && slope <= greatest; }
};

double SlopeBetween(const QPointF& from, const QPointF& to, double higher) {
    return (to.y() + higher - from.y()) / (to.x() - from.x());
}

} // namespace

QPolygonF Simplified(const QPolygonF& curve, double tolerance) {
    if (curve.size() < 3) {
        return curve;
    }
    QPolygonF kept{curve.front()};
    Slopes slopes;
    for (qsizetype i = 1; i < curve.size(); ++i) {
        if (!slopes.Contains(SlopeBetween(kept.back(), curve[i], 0))) {
            kept.push_back(curve[i - 1]);
            slopes = {};
        }
        slopes.least = std::max(slopes.least, SlopeBetween(kept.back(), curve[i], -tolerance));
        slopes.greatest = std::min(slopes.greatest, SlopeBetween(kept.back(), curve[i], tolerance));
    }
    kept.push_back(curve.back());
    return kept;
}

} // namespace quend::compare
