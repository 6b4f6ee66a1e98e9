#pragma once

#include <QObject>
#include <QString>

class Loan;
class MailDoor;

/// The body of the recommendation: the first "?ID" becomes "?ref=" and the referral identifier, or
/// nothing where that is no number other than 0.
QString ShareBody(const QString& text, const QString& referral);

/// The Share button: a message that recommends the program, in the language in use, for the user to
/// send. Where no mail client answers nothing happens, and nobody is told.
class ShareCommands : public QObject {
    Q_OBJECT

public:
    /// Window and mail outlive the commands. Enables the button. `referral` is empty for none.
    ShareCommands(Loan& window, MailDoor& mail, QString referral = {});

private:
    void cmdShare_Click();

    MailDoor* m_mail;
    QString m_referral;
};
