#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <functional>

namespace quend::window {

/// A question with the answers yes and no and, if possible, cancel, which changes nothing.
struct Question {
    QString text;
    QString title;
    bool mayCancel = false;
};

enum class Answer { Yes, No, Cancel };

/// Shows a text to the user and waits until it has been read or answered. The only interface to
/// message boxes.
class MessageInterface {
public:
    virtual ~MessageInterface() = default;
    virtual void Show(const QString& text) = 0;
    /// Closing the box without a button is Cancel or, if that is not offered, No.
    virtual Answer Ask(const Question& question) = 0;
};

/// A user's text as a message quotes it: if long, only its beginning.
QString Shortened(const QString& text);

/// The message queue. Messages are shown one after another when the event that raised them is
/// over and no mouse button is down: a box that opens during a focus change or a click would leave
/// the window in an inconsistent state. A text that is already queued is not queued again.
class MessageQueue : public QObject {
    Q_OBJECT

public:
    explicit MessageQueue(MessageInterface& boxes);

    /// `afterwards` runs once the user has closed the message.
    void Post(const QString& text, const std::function<void()>& afterwards = {});
    /// Shows all waiting messages at once, before the window closes.
    void ShowRest();
    /// The texts of all messages that the user has not closed, which are no longer shown.
    QStringList TakeRest();

    /// Asks at once, because the next step depends on the answer.
    Answer Ask(const Question& question) { return m_boxes->Ask(question); }

private:
    struct Message {
        QString text;
        std::function<void()> afterwards;
    };
    void ShowNext();

    MessageInterface* m_boxes;
    std::deque<Message> m_waiting;
    QTimer m_later;
    bool m_showing = false;
};

} // namespace quend::window
