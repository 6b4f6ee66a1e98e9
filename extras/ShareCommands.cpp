#include "ShareCommands.h"

#include "FailureReport.h"
#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "MailInterface.h"
#include "TextNumbers.h"

#include <cmath>
#include <utility>

namespace quend::extras {

namespace {

const QLatin1String Marker("?ID");

/// Whether its value is a number other than 0. "12abc" is not a number; "nan" and "inf", which Qt
/// accepts, do not count either.
bool IsKnown(const QString& referral) {
    const double value = referral.toDouble();
    return std::isfinite(value) && value != 0.0;
}

} // namespace

QString ShareBody(const QString& text, const QString& referral) {
    QString body = text;
    const qsizetype at = body.indexOf(Marker);
    return at < 0
               ? body
               : body.replace(at, Marker.size(),
                              IsKnown(referral) ? QStringLiteral("?ref=") + referral : QString());
}

ShareCommands::ShareCommands(Loan& window, MailInterface& mail, QString referral)
    : m_window(&window), m_mail(&mail), m_referral(std::move(referral)) {
    QPushButton* button = window.Form().cmdShare;
    button->setEnabled(true);
    // A missing or failing mail client is not reported.
    connect(button, &QPushButton::clicked, this,
            [this] { m_window->Report().Guard([this] { cmdShare_Click(); }, NoMessage); });
}

void ShareCommands::cmdShare_Click() {
    const int session = m_mail->SignOn();
    if (session == 0) {
        return;
    }
    const QString body = ShareBody(GetResourceText(TextNumber::MailBody), m_referral);
    m_mail->Send(session, {GetResourceText(TextNumber::MailSubject), body});
    m_mail->SignOff(session);
}

} // namespace quend::extras
