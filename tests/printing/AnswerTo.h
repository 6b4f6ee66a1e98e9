#pragma once

#include <QApplication>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <utility>

/// Answers the next modal dialog of this kind as a user would.
template <class Dialog>
class AnswerTo : public QObject {
public:
    explicit AnswerTo(std::function<void(Dialog&)> answer) {
        connect(&m_timer, &QTimer::timeout, this, [this, answer = std::move(answer)] {
            if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
                m_timer.stop();
                ++m_count;
                answer(*dialog);
            }
        });
        m_timer.start(std::chrono::milliseconds(10));
    }
    int Count() const { return m_count; }

private:
    QTimer m_timer;
    int m_count = 0;
};
