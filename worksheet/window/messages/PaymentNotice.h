#pragma once

#include "WindowNames.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace quend::model {
class Worksheet;
}

namespace quend::window {

class MessageQueue;

/// Tells the user, once per run, that an intended payment was raised, and removes the yellow mark
/// after one timer interval.
class PaymentNotice : public QObject {
    Q_OBJECT

public:
    /// The timer is a child of the window.
    PaymentNotice(QObject& window, Worksheet& worksheet, MessageQueue& messages,
                  std::function<void()> clearMarks);

    /// An intended payment has been marked.
    void Start();
    /// Stops the timer: undo has restored the payments and removed their marks.
    void Withdraw();
    /// An intended payment was refused.
    void TellRefused();

private:
    void Timer1_Timer();

    Worksheet* m_worksheet;
    MessageQueue* m_messages;
    std::function<void()> m_clearMarks;
    QTimer* m_timer;
};

} // namespace quend::window
