#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

namespace quend::help {

/// The colour of links on a background of this palette. Few dark palettes define one, and Qt's
/// default blue is unreadable there.
inline QColor LinkColour(const QPalette& palette, QPalette::ColorRole background) {
    constexpr int half = 128;
    const QColor link = palette.color(QPalette::Link);
    const bool darkOnDark =
        palette.color(background).lightness() < half && link.lightness() <= half;
    return darkOnDark ? QColor(122, 184, 255) : link;
}

} // namespace quend::help
