#pragma once

#include <QRect>

namespace quend::help {

/// The initial geometry of the help window in 1024ths of the screen, so that it is beside the main
/// window and covers the lower right of any screen.
struct HelpPlace {
    static constexpr int Units = 1024;

    int x = 400;
    int y = 400;
    int width = 620;
    int height = 620;

    /// In the pixels of this screen.
    QRect On(const QRect& screen) const {
        return {screen.x() + x * screen.width() / Units, screen.y() + y * screen.height() / Units,
                width * screen.width() / Units, height * screen.height() / Units};
    }
};

} // namespace quend::help
