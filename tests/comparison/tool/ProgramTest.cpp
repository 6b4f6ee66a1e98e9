// The program itself: its libraries, its streams and its exit status, without a display.

#include "ToolRun.h"

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace {

const QString Program = QStringLiteral(QUEND_PROGRAM_DIR "/quend-compare");

struct Ended {
    int status = 0;
    QByteArray out;
    QByteArray err;
};

/// Runs a shell command with the program as $1, and no display.
Ended Shell(const char* command, const QByteArray& input = {}, const char* locale = "C.UTF-8") {
    QProcess shell;
    QStringList environment = QProcess::systemEnvironment();
    environment.removeIf([](const QString& variable) {
        return variable.startsWith(QStringLiteral("DISPLAY=")) ||
               variable.startsWith(QStringLiteral("WAYLAND_DISPLAY=")) ||
               variable.startsWith(QStringLiteral("QT_QPA_PLATFORM=")) ||
               variable.startsWith(QStringLiteral("LC_ALL="));
    });
    shell.setEnvironment(environment << QStringLiteral("LC_ALL=") + QLatin1String(locale));
    shell.start(QStringLiteral("/bin/sh"),
                {QStringLiteral("-c"), QLatin1String(command), QStringLiteral("sh"), Program,
                 QString::fromStdString(Sample)});
    shell.write(input);
    shell.closeWriteChannel();
    EXPECT_TRUE(shell.waitForFinished(60'000));
    return {shell.exitCode(), shell.readAllStandardOutput(), shell.readAllStandardError()};
}

TEST(CompareProgram, NeedsNoWindowSystem) {
    const Ended ended = Shell("LC_ALL=C readelf --dynamic \"$1\" | grep NEEDED");
    EXPECT_EQ(ended.status, 0) << ended.err.toStdString();
    EXPECT_TRUE(ended.out.contains("libQt6Core"));
    for (const QByteArray& line : ended.out.split('\n')) {
        EXPECT_FALSE(line.contains("libQt6") && !line.contains("libQt6Core")) << line.toStdString();
        EXPECT_FALSE(line.contains("libX") || line.contains("wayland")) << line.toStdString();
    }
}

TEST(CompareProgram, SpeaksTheUsersLanguage) {
    EXPECT_TRUE(Shell("\"$1\" --help", {}, "es_MX.UTF-8").out.startsWith("Uso: quend-compare"));
    EXPECT_TRUE(Shell("\"$1\" --help", {}, "en_US.UTF-8").out.startsWith("Usage: quend-compare"));
    const Ended plain = Shell("\"$1\" \"$2\"", {}, "C");
    EXPECT_TRUE(plain.out.startsWith("Our new home\n"));
    EXPECT_EQ(plain.err, ""); // also where the locale is not UTF-8
}

TEST(CompareProgram, StatusSaysWhatHappened) {
    struct Case {
        const char* command;
        int status;
    };
    const std::array cases{
        Case{"\"$1\" --version", 0},
        Case{"\"$1\" --format json \"$2\"", 0},
        Case{"\"$1\" --lines", 0},
        Case{"\"$1\" no-such-file", 1},
        Case{"echo | \"$1\" --lines", 1},
        Case{"\"$1\" --format json \"$2\" > /dev/full", 1},
        Case{"\"$1\" --help > /dev/full", 1},
        Case{"echo '{}' | \"$1\" --lines > /dev/full", 1},
        Case{"\"$1\" --no-such-option", 2},
    };
    for (const Case& run : cases) {
        const Ended ended = Shell(run.command);
        EXPECT_EQ(ended.status, run.status) << run.command;
        EXPECT_EQ(ended.err.isEmpty(), run.status == 0 || ended.out.contains("error"))
            << run.command << ended.err.toStdString();
    }
}

TEST(CompareProgram, EndsQuietlyWhenNobodyReads) {
    const QByteArray lines = QByteArray("{}\n").repeated(20'000);
    // With the signal, and where the caller ignores it.
    for (const char* command :
         {"\"$1\" --lines | head -n 1", "trap '' PIPE; \"$1\" --lines | head -n 1"}) {
        const Ended ended = Shell(command, lines);
        EXPECT_EQ(ended.out.count('\n'), 1);
        EXPECT_EQ(ended.err, "");
    }
}

TEST(CompareProgram, AnswersEachLineAtOnce) {
    QProcess program;
    program.start(Program, {QStringLiteral("--lines")});
    for (int line = 0; line < 3; ++line) {
        program.write("{}\n");
        while (!program.canReadLine() && program.waitForReadyRead(30'000)) {
        }
        EXPECT_TRUE(program.readLine().startsWith("{\"offers\":[],"));
    }
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 0);
}

TEST(CompareProgram, TakesTheDateFromTheSystemOnlyWithoutAnother) {
    const Ended ended =
        Shell("for day in '--today 2020-02-29' ''; do \"$1\" $day --schedule 1 \"$2\" |"
              " sed -n 2p | cut -d , -f 2; done; date +%F");
    const QList<QByteArray> days = ended.out.split('\n');
    EXPECT_EQ(days[0], "2020-02-29");
    EXPECT_EQ(days[1], days[2]);
}

} // namespace
