// The window's program on the command line: help and version without a display, and what it
// refuses. A refused start leaves the store alone.

#include "QuendNames.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

struct Ended {
    int status = 0;
    QByteArray out;
    QByteArray err;
    bool hasStore = false;
};

/// Runs it without a display, in a new home folder.
Ended RunLoan(const QStringList& arguments, const char* locale = "en_US.UTF-8") {
    const QTemporaryDir home;
    const QTemporaryDir runtime; // Qt warns without one
    QProcess program;
    program.setProcessEnvironment([&] {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(QLatin1String(variable));
        }
        environment.insert(QStringLiteral("LC_ALL"), QLatin1String(locale));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path());
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
        return environment;
    }());
    program.start(QStringLiteral(QUEND_PROGRAM_DIR "/Loan"), arguments);
    EXPECT_TRUE(program.waitForFinished(60'000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError(),
            !QDir(home.path()).isEmpty()};
}

TEST(LoanCommandLine, AnswersWithoutADisplay) {
    for (const char* option : {"--version", "-v"}) {
        const Ended version = RunLoan({QLatin1String(option)});
        EXPECT_EQ(version.status, 0);
        EXPECT_TRUE(version.out.startsWith("quend-loan 0.")) << version.out.toStdString();
        EXPECT_EQ(version.out.count('\n'), 1);
        EXPECT_EQ(version.err, "");
        EXPECT_FALSE(version.hasStore);
    }
    for (const char* option : {"--help", "-h"}) {
        EXPECT_TRUE(RunLoan({QLatin1String(option)}).out.startsWith("Usage: quend-loan [OPTION]"));
        const Ended spanish =
            RunLoan({QStringLiteral("file"), QLatin1String(option)}, "es_MX.UTF-8");
        EXPECT_TRUE(spanish.out.startsWith("Uso: quend-loan [")) << spanish.out.toStdString();
        EXPECT_TRUE(spanish.out.contains("-platform"));
        EXPECT_EQ(spanish.status, 0);
        EXPECT_EQ(spanish.err, "");
    }
}

TEST(LoanCommandLine, RefusesWhatNeitherQtNorTheProgramKnows) {
    struct Case {
        std::vector<const char*> arguments;
        const char* locale;
        const char* words;
    };
    const std::array cases{
        Case{{"--no-such"},
             "en_US.UTF-8",
             "quend-loan: There is no option --no-such.\n"
             "quend-loan: “quend-loan --help” lists the options.\n"},
        Case{{"home.quendloan", "-y"},
             "en_US.UTF-8",
             "quend-loan: There is no option -y.\n"
             "quend-loan: “quend-loan --help” lists the options.\n"},
        Case{{"home.quendloan", "%1 b"},
             "en_US.UTF-8",
             "quend-loan: Only one file can be opened: %1 b\n"
             "quend-loan: “quend-loan --help” lists the options.\n"},
        Case{{"-x%1"},
             "es_MX.UTF-8",
             "quend-loan: No existe la opción -x%1.\n"
             "quend-loan: «quend-loan --help» muestra las opciones.\n"},
    };
    for (const Case& refused : cases) {
        QStringList arguments{QStringLiteral("-platform"), QStringLiteral("offscreen"),
                              QStringLiteral("-style"), QStringLiteral("fusion")};
        for (const char* argument : refused.arguments) {
            arguments << QString::fromUtf8(argument);
        }
        const Ended ended = RunLoan(arguments, refused.locale);
        EXPECT_EQ(ended.status, 2);
        EXPECT_EQ(ended.out, "");
        EXPECT_EQ(ended.err.toStdString(), refused.words);
        EXPECT_FALSE(ended.hasStore);
    }
}

TEST(LoanCommandLine, LeavesQtItsOptions) {
    QTemporaryDir home;
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path());
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(QUEND_PROGRAM_DIR "/Loan"),
                  {QStringLiteral("-platform"), QStringLiteral("offscreen"),
                   QStringLiteral("-style"), QStringLiteral("fusion")});
    const QString store = home.filePath(QStringLiteral("Quend Halverworks/Loan.store"));
    while (!QFile::exists(store) && !program.waitForFinished(50)) {
        if (program.state() == QProcess::NotRunning) {
            break;
        }
    }
    EXPECT_EQ(program.state(), QProcess::Running);
    EXPECT_TRUE(QFile::exists(store));
    program.terminate();
    program.waitForFinished();
}

} // namespace
