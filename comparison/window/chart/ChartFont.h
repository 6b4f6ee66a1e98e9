#pragma once

#include "CompareNames.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPaintDevice>

namespace quend::compare {

/// The font, shrunk step by step until it fits; at the least size it may not.
template <typename Fits>
QFont ShrunkFont(QFont font, const QPaintDevice* device, Fits fits) {
    constexpr int steps = 40; // to a twelfth of the size
    constexpr double shrinkage = 0.94;
    const auto shrink = [](QFont& shrunk) {
        if (shrunk.pixelSize() > 0) {
            shrunk.setPixelSize(qMax(1, static_cast<int>(shrunk.pixelSize() * shrinkage)));
        } else {
            shrunk.setPointSizeF(shrunk.pointSizeF() * shrinkage);
        }
    };
    for (int step = 0; step < steps && !fits(QFontMetricsF(font, device)); ++step) {
        shrink(font);
    }
    return font;
}

} // namespace quend::compare
