#pragma once

#include "MessageQueue.h"
#include "QuendNames.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <initializer_list>
#include <vector>

/// Test double for the message boxes: records each text and returns at once. `whileOpen` does what
/// a user does while a box is open. Questions are answered from a queue; when it is empty, by
/// Cancel (or No, if there is no Cancel).
class FakeMessages : public MessageInterface {
public:
    void Show(const QString& text) override {
        m_texts.append(text);
        if (m_whileOpen) {
            m_whileOpen();
        }
    }
    Answer Ask(const Question& question) override {
        m_questions.push_back(question);
        if (m_answers.empty()) {
            return question.mayCancel ? Answer::Cancel : Answer::No;
        }
        const Answer answer = m_answers.front();
        m_answers.pop_front();
        return answer;
    }

    /// Every text shown since the last Clear(), in order.
    const QStringList& Texts() const { return m_texts; }
    /// Every question asked since the last Clear(), in order.
    const std::vector<Question>& Questions() const { return m_questions; }
    void Clear() {
        m_texts.clear();
        m_questions.clear();
    }
    void WhileOpen(std::function<void()> action) { m_whileOpen = std::move(action); }
    void WillAnswer(std::initializer_list<Answer> answers) { m_answers = answers; }

private:
    QStringList m_texts;
    std::vector<Question> m_questions;
    std::deque<Answer> m_answers;
    std::function<void()> m_whileOpen;
};
