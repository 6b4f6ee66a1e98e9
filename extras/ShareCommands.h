#pragma once

#include "ExtrasNames.h"

#include <QObject>
#include <QString>

namespace quend::window {
class Loan;
}

namespace quend::extras {

class MailInterface;

/// The body of the recommendation: the first "?ID" is replaced by "?ref=" and the referral
/// identifier, or removed if that is not a number other than 0.
QString ShareBody(const QString& text, const QString& referral);

/// The Share button: a message that recommends the program, in the current language, for the user
/// to send. Does nothing, without a message, if there is no mail client.
class ShareCommands : public QObject {
    Q_OBJECT

public:
    /// Window and mail must outlive the commands. Enables the button. `referral` is empty for none.
    ShareCommands(Loan& window, MailInterface& mail, QString referral = {});

private:
    void cmdShare_Click();

    Loan* m_window;
    MailInterface* m_mail;
    QString m_referral;
};

} // namespace quend::extras
