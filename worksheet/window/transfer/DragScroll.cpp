#include "DragScroll.h"

#include "FailureReport.h"
#include "OfferRows.h"

#include <QWidget>

#include <chrono>

namespace quend::window {

using namespace std::chrono_literals;

namespace {

/// Slow enough to release the button at the intended row.
constexpr auto Tick = 250ms;

} // namespace

DragScroll::DragScroll(const OfferRows& rows, QWidget& frame, const FailureReport& report)
    : m_rows(&rows), m_frame(&frame), m_timer(new QTimer(&frame)) {
    m_timer->setObjectName(QStringLiteral("tmrDragScroll"));
    m_timer->setInterval(Tick);
    QObject::connect(m_timer, &QTimer::timeout, m_timer,
                     [this, &report] { report.Guard([this] { m_rows->ScrollBy(m_direction); }); });
}

/// The edges are half a row high.
void DragScroll::Over(const QWidget& control, QPoint at) {
    const int y = control.mapTo(m_frame, at).y();
    const int edge = m_rows->OfferRowHeight() / 2;
    m_direction = y < edge ? -1 : y >= m_frame->height() - edge ? 1 : 0;
    if (m_direction == 0) {
        Stop();
    } else if (!m_timer->isActive()) {
        m_timer->start();
    }
}

} // namespace quend::window
