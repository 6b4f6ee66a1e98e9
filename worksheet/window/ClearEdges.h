#pragma once

#include <QProxyStyle>

namespace quend::window {

/// Draws visible edges in a dark palette. Qt's Fusion style draws the edges of fields, lists and
/// boxes a shade darker than the window, which is invisible there. This style draws them half as
/// light as the text, and as light as the text around the focused control. Other styles are not
/// changed.
class ClearEdges : public QProxyStyle {
    Q_OBJECT

public:
    ClearEdges();

    /// Installs the style if the application uses Fusion and a dark palette. With a light palette,
    /// the usual case, it costs no start-up time.
    static void Install();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};

} // namespace quend::window
