#pragma once

#include <QTimer>

class QWidget;

namespace quend::window {

class FailureReport;
class OfferRows;

/// Scrolls the rows, one per timer tick, while something is dragged near the upper or lower edge of
/// the frame. Does not know what is dragged or whether it may be dropped there.
class DragScroll {
public:
    DragScroll(const OfferRows& rows, QWidget& frame, const FailureReport& report);

    /// Something is dragged over this position of a control in the frame.
    void Over(const QWidget& control, QPoint at);
    /// The drag has left or ended.
    void Stop() { m_timer->stop(); }

private:
    const OfferRows* m_rows;
    const QWidget* m_frame;
    QTimer* m_timer;     // a child of the frame, where it is found by its name
    int m_direction = 0; ///< rows per tick: down is positive
};

} // namespace quend::window
