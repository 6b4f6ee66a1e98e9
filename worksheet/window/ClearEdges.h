#pragma once

#include <QProxyStyle>

/// The toolkit's own style draws the edges of fields, lists and boxes a shade darker than the
/// window. In a dark palette nobody sees those: there they are drawn half as light as the text,
/// around what has the keyboard as light. Desktops with a style of their own keep it as it is.
class ClearEdges : public QProxyStyle {
    Q_OBJECT

public:
    ClearEdges();

    /// Gives the application these edges where it has the toolkit's own style and a dark palette.
    /// A light one, the usual case, costs the start nothing.
    static void Install();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};
