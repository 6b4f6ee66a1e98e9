#pragma once

#include "MailDoor.h"

#include <QByteArray>

/// The mail client that the desktop names, asked through xdg-email. It runs apart from the program,
/// which neither waits for it nor learns how it ended.
class DesktopMail : public MailDoor {
public:
    /// 0 where xdg-email is not installed.
    int SignOn() override;
    void Send(int session, const MailMessage& message) override;
    void SignOff(int session) override;

    /// The message as an address. Every byte but letters, digits and "-._~" is written as a percent
    /// sign and two digits: xdg-email is a shell script, and so no shell sees a text.
    static QByteArray AddressOf(const MailMessage& message);
};
