#include "SortButton.h"

#include "Captions.h"
#include "Language.h"
#include "WindowNames.h"

#include <QPainter>
#include <QPolygonF>
#include <QStyle>

namespace quend::window {

namespace {

constexpr int ArrowGap = 4;

} // namespace

SortButton::SortButton(QWidget* parent) : QPushButton(parent) {
    setProperty(TextProperty::ActiveAway, true);
}

void SortButton::SetActive(bool active) {
    m_active = active;
    setProperty(TextProperty::ActiveAway, !active);
    setAccessibleDescription(active ? GetResourceText(property(TextProperty::Active).toInt())
                                    : QString());
    update();
}

/// An equilateral triangle, proportional to the font.
QSize SortButton::ArrowSize() const {
    const int width = fontMetrics().height() / 2;
    return {width, width * 7 / 8};
}

/// The caption is centred, so the arrow needs its room on both sides.
QSize SortButton::sizeHint() const {
    return QPushButton::sizeHint() + QSize(2 * (ArrowSize().width() + ArrowGap), 0);
}

/// The arrow points from the last row to the first, because the least value is first.
void SortButton::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    if (!m_active) {
        return;
    }
    const QSize size = ArrowSize();
    const int caption = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    const QPoint place(rect().center().x() + caption / 2 + ArrowGap,
                       rect().center().y() - size.height() / 2);
    const QRectF arrow = QStyle::visualRect(layoutDirection(), rect(), QRect(place, size));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().buttonText());
    painter.drawPolygon(QPolygonF(
        {arrow.bottomLeft(), QPointF(arrow.center().x(), arrow.top()), arrow.bottomRight()}));
}

} // namespace quend::window
