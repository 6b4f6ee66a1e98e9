#include "WindowScroll.h"

#include <QApplication>
#include <QLayout>
#include <QScrollBar>

#include <algorithm>

namespace quend::window {

namespace {

/// Small enough that the window fits on any screen beside another one.
constexpr QSize Least(480, 270);

} // namespace

WindowScroll::WindowScroll(QWidget* parent) : QScrollArea(parent) {
    setFocusPolicy(Qt::NoFocus);
    // The window paints the background picture behind it.
    viewport()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*from*/, QWidget* to) { BringIntoSight(to); });
}

/// Children emit focus signals while they are destroyed.
WindowScroll::~WindowScroll() { disconnect(qApp, nullptr, this, nullptr); }

QSize WindowScroll::sizeHint() const { return SizeOfAll(0); }

QSize WindowScroll::minimumSizeHint() const { return widget()->minimumSizeHint().boundedTo(Least); }

bool WindowScroll::ShowsAll() const {
    return horizontalScrollBar()->maximum() == 0 && verticalScrollBar()->maximum() == 0;
}

QSize WindowScroll::Missing() const {
    const QSize room = maximumViewportSize();
    return SizeOfAll(room.width()) - room;
}

/// The minimum size of the content at this width or more.
QSize WindowScroll::SizeOfAll(int leastWidth) const {
    QLayout& controls = *widget()->layout();
    controls.activate(); // the layouts still have their previous sizes
    const int width = controls.totalMinimumSize().width();
    return {width, controls.totalMinimumHeightForWidth(std::max(width, leastWidth))};
}

/// Not while a mouse button is down: it would be released over another control.
void WindowScroll::BringIntoSight(QWidget* control) {
    if (control != nullptr && widget()->isAncestorOf(control) &&
        QGuiApplication::mouseButtons() == Qt::NoButton) {
        // The whole control: Qt's own scrolling only shows the caret.
        constexpr int around = 8;
        const QSize half = control->size() / 2 + QSize(around, around);
        const QPoint centre = control->mapTo(widget(), control->rect().center());
        ensureVisible(centre.x(), centre.y(), half.width(), half.height());
    }
}

} // namespace quend::window
