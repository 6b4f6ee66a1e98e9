#pragma once

#include "Messages.h"

#include <QString>
#include <QStringList>

#include <functional>

/// Stands in the door of the message boxes: keeps each text and closes at once. What a user does
/// while a box is open is done by `whileOpen`.
class FakeMessages : public MessageDoor {
public:
    void Show(const QString& text) override {
        m_texts.append(text);
        if (m_whileOpen) {
            m_whileOpen();
        }
    }

    /// Every text shown since the last Clear(), in order.
    const QStringList& Texts() const { return m_texts; }
    void Clear() { m_texts.clear(); }
    void WhileOpen(std::function<void()> action) { m_whileOpen = std::move(action); }

private:
    QStringList m_texts;
    std::function<void()> m_whileOpen;
};
