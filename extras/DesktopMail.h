#pragma once

#include "MailInterface.h"

#include <QByteArray>

namespace quend::extras {

/// The desktop's mail client, started through xdg-email. It runs separately: the program neither
/// waits for it nor knows its result.
class DesktopMail : public MailInterface {
public:
    /// 0 if xdg-email is not installed.
    int SignOn() override;
    void Send(int session, const MailMessage& message) override;
    void SignOff(int session) override;

    /// The message as a mailto address. Every byte except letters, digits and "-._~" is
    /// percent-encoded: xdg-email is a shell script, and no shell may interpret a text.
    static QByteArray AddressOf(const MailMessage& message);
};

} // namespace quend::extras
