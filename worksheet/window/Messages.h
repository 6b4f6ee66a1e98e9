#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <deque>
#include <functional>

/// A question that is answered by yes or no or, where that is possible, by leaving everything as it
/// is.
struct Question {
    QString text;
    QString title;
    bool mayCancel = false;
};

enum class Answer { Yes, No, Cancel };

/// Shows a text to the user and waits until it has been read or answered. The one door for message
/// boxes.
class MessageDoor {
public:
    virtual ~MessageDoor() = default;
    virtual void Show(const QString& text) = 0;
    /// Closing the box by other means than its buttons is Cancel or, where that is not offered, No.
    virtual Answer Ask(const Question& question) = 0;
};

/// A text of the user's as a message quotes it: a long one's beginning.
QString Shortened(const QString& text);

/// Messages on their way to the user, shown one after another once the event that raised them is
/// over and no mouse button is down: a box that opens in the middle of a change of focus or of a
/// click would leave the window half way. The same text is not queued twice.
class Messages : public QObject {
    Q_OBJECT

public:
    explicit Messages(MessageDoor& door);

    /// `afterwards` runs once the user has closed the message.
    void Post(const QString& text, const std::function<void()>& afterwards = {});
    bool Waiting() const { return !m_waiting.empty(); }
    /// Shows at once what still waits: on the way out, before the window closes.
    void ShowRest();

    /// Asks at once: what is to happen next depends on the answer.
    Answer Ask(const Question& question) { return m_door->Ask(question); }

private:
    struct Message {
        QString text;
        std::function<void()> afterwards;
    };
    void ShowNext();

    MessageDoor* m_door;
    std::deque<Message> m_waiting;
    QTimer m_later;
    bool m_showing = false;
};
