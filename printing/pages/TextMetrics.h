#pragma once

#include "PrintedPage.h"

namespace quend::printing {

/// The size of text on paper, in twips.
class TextMetrics {
public:
    virtual ~TextMetrics() = default;
    /// The width of one line of text.
    virtual double Width(const PrintFont& font, const QString& text) const = 0;
    /// The height of one line; depends only on the font.
    virtual double Height(const PrintFont& font) const = 0;
};

} // namespace quend::printing
