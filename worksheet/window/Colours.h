#pragma once

#include <QColor>

/// The backgrounds that tell something. Both are light in every palette, so the text on them is
/// dark.
namespace Colours {

inline constexpr QColor Missing{255, 208, 215}; ///< light pink
inline constexpr QColor Raised{255, 255, 128};  ///< light yellow
inline constexpr QColor TextOnMark{0, 0, 0};

} // namespace Colours
