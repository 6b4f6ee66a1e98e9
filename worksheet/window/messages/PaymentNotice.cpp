#include "PaymentNotice.h"

#include "FailureReport.h"
#include "Language.h"
#include "MessageQueue.h"
#include "TextNumbers.h"
#include "Worksheet.h"

#include <chrono>
#include <utility>

namespace quend::window {

using namespace std::chrono_literals;

PaymentNotice::PaymentNotice(QObject& window, Worksheet& worksheet, MessageQueue& messages,
                             std::function<void()> clearMarks)
    : m_worksheet(&worksheet), m_messages(&messages), m_clearMarks(std::move(clearMarks)),
      m_timer(new QTimer(&window)) {
    m_timer->setObjectName(QStringLiteral("Timer1"));
    m_timer->setInterval(1000ms);
    connect(m_timer, &QTimer::timeout, this,
            [this] { FailureReport(*m_messages).Guard([this] { Timer1_Timer(); }); });
}

void PaymentNotice::Start() {
    if (!m_timer->isActive()) {
        m_timer->start();
    }
}

void PaymentNotice::Withdraw() { m_timer->stop(); }

void PaymentNotice::TellRefused() { m_messages->Post(GetResourceText(TextNumber::PaymentRaised)); }

void PaymentNotice::Timer1_Timer() {
    m_timer->stop();
    if (m_worksheet->PaymentNoticeShown()) {
        m_clearMarks();
        return;
    }
    m_worksheet->SetPaymentNoticeShown(true);
    m_timer->setInterval(2000ms);
    // The marks show what the notice is about, so they stay until it is closed.
    m_messages->Post(GetResourceText(TextNumber::PaymentRaised), m_clearMarks);
}

} // namespace quend::window
