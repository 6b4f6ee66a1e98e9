#include "MessageQueue.h"

#include "FailureReport.h"

#include <QGuiApplication>

#include <algorithm>
#include <chrono>

namespace quend::window {

using namespace std::chrono_literals;

namespace {

constexpr auto MouseReleaseCheck = 10ms;

} // namespace

QString Shortened(const QString& text) {
    constexpr int longest = 40;
    if (text.size() <= longest) {
        return text;
    }
    const bool inTwoHalves = text.at(longest - 1).isHighSurrogate();
    return text.left(inTwoHalves ? longest - 1 : longest) + u'…';
}

MessageQueue::MessageQueue(MessageInterface& boxes) : m_boxes(&boxes) {
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, &MessageQueue::ShowNext);
}

void MessageQueue::Post(const QString& text, const std::function<void()>& afterwards) {
    if (std::ranges::find(m_waiting, text, &Message::text) == m_waiting.end()) {
        m_waiting.push_back({text, afterwards});
    }
    if (!m_showing) {
        m_later.start(0ms);
    }
}

void MessageQueue::ShowRest() {
    m_later.stop(); // or it would show them again while the first one is open
    if (!m_showing) {
        ShowNext();
    }
}

QStringList MessageQueue::TakeRest() {
    QStringList texts;
    for (const Message& message : m_waiting) {
        texts.append(message.text);
    }
    // The one being shown is removed when its box closes.
    m_waiting.resize(m_showing ? 1 : 0);
    m_later.stop();
    return texts;
}

void MessageQueue::ShowNext() {
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
        m_later.start(MouseReleaseCheck);
        return;
    }
    m_showing = true;
    while (!m_waiting.empty()) {
        const Message message = m_waiting.front();
        m_boxes->Show(message.text);
        m_waiting.pop_front();
        if (message.afterwards) {
            FailureReport(*this).Guard(message.afterwards);
        }
    }
    m_showing = false;
}

} // namespace quend::window
