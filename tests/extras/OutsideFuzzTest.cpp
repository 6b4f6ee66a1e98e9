// The outgoing interfaces of the program with arbitrary contents. The mail client gets exactly the
// message, and no shell interprets any of it. The command in the registry is started unchanged.

#include "DesktopMail.h"
#include "Fuzzing.h"
#include "HostileTexts.h"
#include "QuendNames.h"
#include "StoreFolder.h"
#include "SystemInfo.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

namespace {

bool IsPlain(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("-._~%").find(c) != std::string_view::npos;
}

void TryMail(const std::string& input) {
    const QString text = TextOf(input);
    const QByteArray address = DesktopMail::AddressOf({text, text});
    ASSERT_TRUE(address.startsWith("mailto:?subject="));
    const qsizetype body = address.indexOf("&body=");
    QByteArray lines = text.toUtf8();
    lines.replace("\r\n", "\n").replace("\n", "\r\n");
    for (const QByteArray& part : {address.mid(16, body - 16), address.mid(body + 6)}) {
        EXPECT_TRUE(std::all_of(part.begin(), part.end(), IsPlain)) << part.toStdString();
        EXPECT_EQ(QByteArray::fromPercentEncoding(part), lines);
    }
    EXPECT_TRUE(QUrl::fromEncoded(address, QUrl::StrictMode).isValid());
}

TEST(MailFuzz, TheCorpusArrivesAndNoShellSeesIt) { FuzzTarget("text", TryMail).TryCorpus(); }

TEST(MailFuzz, AnyMessageArrivesAndNoShellSeesIt) {
    FuzzTarget("mail", TryMail).TryAtRandom([](FuzzRandom& random) {
        return Patched(random, HostilePieces) + Patched(random, HostilePieces);
    });
}

TEST(SystemInfoFuzz, AnyValueIsAPathOrNone) {
    const StoreFolder folder;
    const RegistryAPI store = folder.Store();
    constexpr RegistryRoot machine = RegistryRoot::LocalMachine;
    const std::string key = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
    store.CreateKey(machine, key);
    const FuzzTarget target("registry", [&](const std::string& input) {
        std::vector<std::byte> bytes;
        for (const char c : input) {
            bytes.push_back(static_cast<std::byte>(c));
        }
        if (input.size() % 3 == 0) {
            store.SetValue(machine, key, "PATH", RegistryType::Binary, bytes);
        } else {
            store.SetValue(machine, key, "PATH", RegistryType::Text, input);
        }
        std::optional<QString> started;
        StartSysInfo(store, {.installed = [] { return std::nullopt; },
                             .start =
                                 [&](const QString& path) {
                                     started = path;
                                     return true;
                                 }});
        EXPECT_EQ(started, GetKeyValue(store, machine, key, "PATH"));
        ASSERT_TRUE(started);
        EXPECT_LE(started->size(), 4'096);
    });
    target.TryAtRandom(
        [](FuzzRandom& random) { return Patched(random, HostilePieces).substr(0, 1'000); });
}

TEST(SystemInfoInterface, StartsTheVeryFileThatIsNamedWithoutArguments) {
    const QTemporaryDir folder;
    const SystemInfoInterface system = InstalledSystemInfo();
    for (const QString& name :
         {QStringLiteral("two words"), QStringLiteral("-x"), QStringLiteral("%n%s"),
          QStringLiteral("$(touch x)"), QStringLiteral("\"q\" 'q'"), QStringLiteral("line\nbreak"),
          QStringLiteral("a;b|c&d>e"), QStringLiteral("Información"), QString(200, u'x')}) {
        SCOPED_TRACE(name.toStdString());
        const QString path = folder.filePath(name);
        const QString note = folder.filePath(QStringLiteral("note"));
        QFile script(path);
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s\\n' \"$#\" > '" + QFile::encodeName(note) +
                     ".part'\nmv '" + QFile::encodeName(note) + ".part' '" +
                     QFile::encodeName(note) + "'\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        EXPECT_TRUE(system.start(path));
        EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(note); }, 20'000));
        QFile said(note);
        ASSERT_TRUE(said.open(QIODevice::ReadOnly));
        EXPECT_EQ(said.readAll(), "0\n");
        said.remove();
    }
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("x"))));
    for (const QString& path :
         {QString(), QStringLiteral("/"), QStringLiteral("/dev/zero"), folder.path(),
          folder.filePath(QStringLiteral("none")), QStringLiteral("%n"), QStringLiteral("-x"),
          QString(5'000, u'x'), QStringLiteral("$(touch x)")}) {
        EXPECT_FALSE(system.start(path)) << path.left(80).toStdString();
    }
}

} // namespace
