#pragma once

#include <QString>

namespace quend::extras {

/// The initial content of a new message.
struct MailMessage {
    QString subject;
    QString body; ///< lines end in "\n"
};

/// The user's mail client, the only interface for messages. Nothing is sent that the user has not
/// seen and sent.
class MailInterface {
public:
    virtual ~MailInterface() = default;

    /// The number of the session; 0 if there is none.
    virtual int SignOn() = 0;
    /// Shows the message to the user, who edits, sends or discards it.
    virtual void Send(int session, const MailMessage& message) = 0;
    virtual void SignOff(int session) = 0;
};

} // namespace quend::extras
