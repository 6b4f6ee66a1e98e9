#pragma once

#include "PrintedPage.h"

/// How much room text takes on paper, in twips.
class TextMetrics {
public:
    virtual ~TextMetrics() = default;
    /// The width of one line of text.
    virtual double Width(const PrintFont& font, const QString& text) const = 0;
    /// The height of one line; it depends on the font alone.
    virtual double Height(const PrintFont& font) const = 0;
};
