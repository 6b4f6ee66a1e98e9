#pragma once

#include "QuendNames.h"
#include "TextMetrics.h"

/// Simple font metrics: every character is half as wide as the font size, every line as high as the
/// font size; bold and italic change nothing.
class RulerMetrics : public TextMetrics {
public:
    double Width(const PrintFont& font, const QString& text) const override {
        return static_cast<double>(text.size()) * font.points * TwipsPerPoint / 2;
    }
    double Height(const PrintFont& font) const override { return font.points * TwipsPerPoint; }
};
