#pragma once

#include "TextMetrics.h"

/// Type that can be reckoned with: every character half as wide as its size, every line as high as
/// its size; bold and italic change nothing.
class RulerMetrics : public TextMetrics {
public:
    double Width(const PrintFont& font, const QString& text) const override {
        return static_cast<double>(text.size()) * font.points * TwipsPerPoint / 2;
    }
    double Height(const PrintFont& font) const override { return font.points * TwipsPerPoint; }
};
