#pragma once

#include <QTimer>

class OfferRows;
class QWidget;

/// Brings further rows into the frame while something is held near its upper or lower edge, one row
/// a tick. Does not know what is dragged, nor whether it may be dropped there.
class DragScroll {
public:
    DragScroll(const OfferRows& rows, QWidget& frame);

    /// Something is held at this place of that control in the frame.
    void Over(const QWidget& control, QPoint at);
    /// It has gone, or been dropped.
    void Stop() { m_timer->stop(); }

private:
    const OfferRows* m_rows;
    const QWidget* m_frame;
    QTimer* m_timer;     // the frame's, where it is found by its name
    int m_direction = 0; ///< rows a tick: down is positive
};
