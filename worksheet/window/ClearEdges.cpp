#include "ClearEdges.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

#include <memory>

namespace quend::window {

namespace {

constexpr auto ToolkitsOwn = "fusion";

bool IsDark(const QPalette& palette) {
    return palette.window().color().lightness() < palette.windowText().color().lightness();
}

QColor HalfWay(const QColor& one, const QColor& other) {
    return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
            (one.blue() + other.blue()) / 2};
}

enum class Shape { Box, Round };

/// Draws over the existing edge. The focused control gets the lightest one.
void DrawEdge(const QStyleOption& option, QPainter& painter, Shape shape = Shape::Box) {
    if (!IsDark(option.palette)) {
        return;
    }
    constexpr double radius = 2;
    const QRectF edge = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const QColor text = option.palette.windowText().color();
    const bool hasFocus = (option.state & QStyle::State_HasFocus) != 0;
    painter.setPen(hasFocus ? text : HalfWay(option.palette.window().color(), text));
    if (shape == Shape::Round) {
        painter.drawEllipse(edge);
    } else {
        painter.drawRoundedRect(edge, radius, radius);
    }
    painter.restore();
}

} // namespace

ClearEdges::ClearEdges() : QProxyStyle(QString::fromLatin1(ToolkitsOwn)) {}

void ClearEdges::Install() {
    const bool hasToolkitsOwn = QApplication::style()->name() == QLatin1String(ToolkitsOwn);
    if (hasToolkitsOwn && IsDark(QApplication::palette())) {
        QApplication::setStyle(std::make_unique<ClearEdges>().release());
    }
}

void ClearEdges::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
    case PE_FrameLineEdit:
    case PE_PanelButtonCommand:
    case PE_IndicatorCheckBox:
    case PE_Frame:
        return DrawEdge(*option, *painter);
    case PE_IndicatorRadioButton:
        return DrawEdge(*option, *painter, Shape::Round);
    default:
        return;
    }
}

void ClearEdges::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox || control == CC_SpinBox) {
        DrawEdge(*option, *painter);
    }
}

} // namespace quend::window
