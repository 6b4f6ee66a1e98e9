// Sends a message to the desktop's mail client: a real handler, registered as one.

#include "DesktopMail.h"
#include "Language.h"
#include "QuendNames.h"
#include "ShareCommands.h"
#include "TextNumbers.h"
#include "WindowFixture.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QUrlQuery>

#include <gtest/gtest.h>

namespace {

/// Sets an environment variable; the destructor restores the previous value.
class Variable {
public:
    Variable(const char* name, const QString& value) : m_name(name), m_before(qgetenv(name)) {
        qputenv(name, value.toLocal8Bit());
    }
    Q_DISABLE_COPY_MOVE(Variable)
    ~Variable() { m_before.isNull() ? qunsetenv(m_name) : qputenv(m_name, m_before); }

private:
    const char* m_name;
    QByteArray m_before;
};

void Write(const QString& path, const QString& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(text.toUtf8());
}

/// A desktop whose mail client writes the address it receives into a file.
class Desktop {
public:
    explicit Desktop(const QString& client) {
        QDir(m_folder.path()).mkpath(QStringLiteral("data/applications"));
        QDir(m_folder.path()).mkpath(QStringLiteral("config"));
        const QString program = PathOf(QStringLiteral("client"));
        Write(program, QStringLiteral("#!/bin/sh\n") + client.arg(Got()));
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        Write(PathOf(QStringLiteral("data/applications/client.desktop")),
              QStringLiteral("[Desktop Entry]\nType=Application\nName=Client\nExec=%1 %u\n"
                             "MimeType=x-scheme-handler/mailto;\n")
                  .arg(program));
        Write(PathOf(QStringLiteral("config/mimeapps.list")),
              QStringLiteral("[Default Applications]\nx-scheme-handler/mailto=client.desktop\n"));
    }

    QString Got() const { return PathOf(QStringLiteral("got")); }
    /// The file is complete or does not exist.
    QUrl Address() const {
        QFile file(Got());
        return file.open(QIODevice::ReadOnly) ? QUrl::fromEncoded(file.readAll().trimmed())
                                              : QUrl();
    }

private:
    QString PathOf(const QString& name) const { return m_folder.filePath(name); }

    const QTemporaryDir m_folder;
    const Variable m_data{"XDG_DATA_HOME", PathOf(QStringLiteral("data"))};
    const Variable m_config{"XDG_CONFIG_HOME", PathOf(QStringLiteral("config"))};
    const Variable m_home{"HOME", m_folder.path()};
    const Variable m_display{"DISPLAY", QStringLiteral(":77")};
    const Variable m_desktop{"XDG_CURRENT_DESKTOP", QString()};
};

const QString WritesAddress =
    QStringLiteral("printf '%s\\n' \"$1\" > '%1.part'\nmv '%1.part' '%1'\n");

QString PartOf(const QUrl& address, const char* part) {
    return QUrlQuery(address).queryItemValue(QString::fromLatin1(part), QUrl::FullyDecoded);
}

QString WithMailLineEnds(QString text) {
    return text.replace(QLatin1String("\n"), QLatin1String("\r\n"));
}

class MailClient : public WindowTest {
protected:
    /// The system's script that finds the client is slow on a busy machine.
    static bool WaitForMail(const Desktop& desktop) {
        constexpr int longest = 60'000;
        return QTest::qWaitFor([&] { return QFile::exists(desktop.Got()); }, longest);
    }
};

TEST_F(MailClient, GetsTheMessageWhole) {
    QString longText;
    for (int line = 0; line < 400; ++line) {
        longText += QStringLiteral("Line %1 of a long recommendation.\n").arg(line);
    }
    DesktopMail mail;
    for (const MailMessage& message :
         {MailMessage{QStringLiteral("Plain"), QStringLiteral("One line")},
          MailMessage{QStringLiteral("¿Qué préstamo?"), QStringLiteral("Año, «garantía»\n\n€ 1\n")},
          MailMessage{QStringLiteral("100 % & more + #1"),
                      QStringLiteral("a=b&c=d?e;f\\g/h 50%25")},
          MailMessage{QStringLiteral("$(touch x) `id` \"q\" 'q'"),
                      QStringLiteral("; rm -rf | > <\n$HOME")},
          MailMessage{QStringLiteral("Long"), longText}, MailMessage{QString(), QString()}}) {
        SCOPED_TRACE(message.subject.toStdString());
        const Desktop desktop(WritesAddress);
        ASSERT_NE(mail.SignOn(), 0) << "xdg-email is not installed";
        mail.Send(1, message);
        ASSERT_TRUE(WaitForMail(desktop));
        EXPECT_EQ(desktop.Address().scheme(), u"mailto");
        EXPECT_EQ(PartOf(desktop.Address(), "subject"), message.subject);
        EXPECT_EQ(PartOf(desktop.Address(), "body"), WithMailLineEnds(message.body));
    }
}

TEST_F(MailClient, GetsTheRecommendationInBothLanguages) {
    DesktopMail mail;
    for (const int language : {English, Spanish}) {
        const Desktop desktop(WritesAddress);
        Open({.language = language});
        const ShareCommands share(Window(), mail);
        Click(u"cmdShare");
        ASSERT_TRUE(WaitForMail(desktop));
        EXPECT_EQ(PartOf(desktop.Address(), "subject"), GetResourceText(TextNumber::MailSubject));
        EXPECT_EQ(PartOf(desktop.Address(), "body"),
                  WithMailLineEnds(ShareBody(GetResourceText(TextNumber::MailBody), QString())));
        EXPECT_FALSE(PartOf(desktop.Address(), "body").contains(QStringLiteral("?ID")));
    }
    EXPECT_EQ(SettledMessages(), QStringList());
}

/// A client that fails reports its error in its own window; the program shows nothing.
TEST_F(MailClient, ThatFailsIsMetWithSilence) {
    const Desktop desktop(QStringLiteral("touch '%1'\nexit 3\n"));
    DesktopMail mail;
    Open();
    const ShareCommands share(Window(), mail);
    Click(u"cmdShare");
    EXPECT_TRUE(WaitForMail(desktop));
    EXPECT_EQ(SettledMessages(), QStringList());
}

TEST_F(MailClient, ThatIsMissingIsMetWithSilence) {
    const Variable nothing("PATH", QStringLiteral("/nowhere"));
    DesktopMail mail;
    EXPECT_EQ(mail.SignOn(), 0);
    Open();
    const ShareCommands share(Window(), mail);
    Click(u"cmdShare");
    EXPECT_EQ(SettledMessages(), QStringList());
}

TEST(MailAddress, HoldsNothingThatAShellReads) {
    QString all;
    for (ushort code = 1; code < 0x250; ++code) {
        all += QChar(code);
    }
    const QByteArray address = DesktopMail::AddressOf({all, all});
    const QRegularExpression safe(
        QStringLiteral("^mailto:\\?subject=([-A-Za-z0-9._~]|%[0-9A-F]{2})*"
                       "&body=([-A-Za-z0-9._~]|%[0-9A-F]{2})*$"));
    EXPECT_TRUE(safe.match(QString::fromLatin1(address)).hasMatch());
}

} // namespace
