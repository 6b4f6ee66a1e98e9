#pragma once

#include "Mark.h"
#include "WindowNames.h"

#include <QColor>
#include <QPalette>

/// The background colours of marks. Both are light in every palette, so the text on them is dark.
namespace quend::window::Colours {

inline constexpr QColor Missing{255, 208, 215}; ///< light pink
inline constexpr QColor Raised{255, 255, 128};  ///< light yellow
inline constexpr QColor TextOnMark{0, 0, 0};

/// Only what a marked field overrides; empty without a mark.
inline QPalette MarkedPalette(Mark mark) {
    QPalette palette;
    if (mark != Mark::None) {
        palette.setColor(QPalette::Base, mark == Mark::Missing ? Missing : Raised);
        palette.setColor(QPalette::Text, TextOnMark);
    }
    return palette;
}

} // namespace quend::window::Colours
