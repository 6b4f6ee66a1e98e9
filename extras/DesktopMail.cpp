#include "DesktopMail.h"

#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace quend::extras {

namespace {

QString Client() { return QStandardPaths::findExecutable(QStringLiteral("xdg-email")); }

QByteArray Encoded(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1String("\n"), QLatin1String("\r\n")); // line end in mail
    return QUrl::toPercentEncoding(text);
}

} // namespace

int DesktopMail::SignOn() { return Client().isEmpty() ? 0 : 1; }

void DesktopMail::Send(int /*session*/, const MailMessage& message) {
    QProcess client;
    client.setProgram(Client());
    client.setArguments({QString::fromLatin1(AddressOf(message))});
    client.setStandardInputFile(QProcess::nullDevice());
    client.setStandardOutputFile(QProcess::nullDevice());
    client.setStandardErrorFile(QProcess::nullDevice());
    client.startDetached();
}

void DesktopMail::SignOff(int /*session*/) {
    // There is no session to close: each message starts a separate client.
}

QByteArray DesktopMail::AddressOf(const MailMessage& message) {
    return "mailto:?subject=" + Encoded(message.subject) + "&body=" + Encoded(message.body);
}

} // namespace quend::extras
