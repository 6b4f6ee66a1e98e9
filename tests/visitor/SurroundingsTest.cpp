// The real program in hostile surroundings. With any environment and command line, it starts and
// closes with its store in the right place, or reports why it cannot.

#include "Fuzzing.h"
#include "HostileTexts.h"
#include "QuendNames.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* StoreFile = "Quend Halverworks/Loan.store";

struct Variable {
    const char* name;
    QByteArray value;
};

/// Sets these variables; the destructor restores the previous ones. A null value removes a
/// variable. Values are bytes, because Qt's process environment holds only texts.
class Environment {
public:
    explicit Environment(const std::vector<Variable>& variables) {
        for (const Variable& variable : variables) {
            m_before.push_back({variable.name, qgetenv(variable.name)});
            Set(variable);
        }
    }
    Q_DISABLE_COPY_MOVE(Environment)
    ~Environment() { std::for_each(m_before.rbegin(), m_before.rend(), Set); }

private:
    static void Set(const Variable& variable) {
        variable.value.isNull() ? unsetenv(variable.name)
                                : setenv(variable.name, variable.value.constData(), 1);
    }

    std::vector<Variable> m_before;
};

/// The result of one run.
struct Outcome {
    int exitCode = -1;
    QStringList report;

    QStringList Of(const char* what) const {
        QStringList found;
        for (const QString& line : report) {
            if (line.startsWith(QLatin1String(what) + u' ')) {
                found.append(line.sliced(static_cast<qsizetype>(qstrlen(what)) + 1));
            }
        }
        return found;
    }
};

/// A temporary home of a user, and the program started from it.
class Surroundings : public testing::Test {
protected:
    QString PathOf(const QString& name) const { return m_home.filePath(name); }
    QByteArray BytesOfPath(const QString& name) const { return QFile::encodeName(PathOf(name)); }

    /// Variables with a null value are removed.
    Outcome Start(const std::vector<Variable>& variables, const QStringList& arguments = {}) const {
        std::vector<Variable> all = {{"HOME", QFile::encodeName(m_home.path())},
                                     {"QT_QPA_PLATFORM", "offscreen"},
                                     {"QT_QPA_GENERIC_PLUGINS", "visitor"},
                                     {"QT_PLUGIN_PATH", QUEND_VISITOR_PLUGINS}};
        for (const char* const name :
             {"LC_ALL", "LANG", "LANGUAGE", "XDG_DATA_HOME", "XDG_CONFIG_HOME"}) {
            all.push_back({name, {}});
        }
        all.insert(all.end(), variables.begin(), variables.end());
        QProcess program;
        program.setWorkingDirectory(m_home.path());
        const Environment environment(all);
        program.start(QStringLiteral(QUEND_PROGRAM_DIR "/Loan"), arguments);
        Outcome outcome;
        if (!program.waitForFinished(60'000)) {
            ADD_FAILURE() << "it hangs";
            program.kill();
            program.waitForFinished();
        }
        const QString complaint = QString::fromUtf8(program.readAllStandardError()).left(2'000);
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << complaint.toStdString();
        outcome.exitCode = program.exitCode();
        outcome.report =
            QString::fromUtf8(program.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        return outcome;
    }
    /// `message` may appear more than once; no other message may appear.
    void ExpectStarts(const Outcome& outcome, const QStringList& message = {}) const {
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_EQ(outcome.Of("shown"), QStringList(u"Quend Loan"_s));
        QStringList messages = outcome.Of("message");
        messages.removeDuplicates();
        EXPECT_EQ(messages.join(u'\n').toStdString(), message.join(u'\n').toStdString());
    }
    bool IsStoreIn(const QString& folder) const {
        return QFile::exists(QDir(PathOf(folder)).filePath(QLatin1String(StoreFile)));
    }

private:
    QTemporaryDir m_home;
};

TEST_F(Surroundings, LetTheProgramDoAllItsWork) {
    const Outcome outcome = Start({{"QUEND_VISIT", "work"},
                                   {"LC_ALL", "en_US.UTF-8"},
                                   {"CUPS_SERVER", "/nowhere/cups.sock"}});
    const QString noServer =
        u"El servidor de impresión no está disponible o no responde. No se imprimió nada."_s;
    ExpectStarts(outcome, {noServer});
    EXPECT_EQ(outcome.Of("payment"), QStringList(u"$599.55"_s));
    EXPECT_GE(outcome.Of("dialog").size(), 2) << outcome.report.join(u'\n').toStdString();
    EXPECT_EQ(outcome.Of("missing"), QStringList());
    EXPECT_EQ(Start({}).Of("names"), QStringList(u"2"_s)) << "the entry of a new loan and Sample";
}

TEST_F(Surroundings, OfAnyLocaleAreTaken) {
    for (const std::vector<Variable>& variables : std::vector<std::vector<Variable>>{
             {{"LC_ALL", "xx_XX.UTF-8"}},
             {{"LC_ALL", "en_US.\xFF\xFE"}, {"LANGUAGE", "::x:\xFF"}},
             {{"LC_ALL", "%n%n%s\n@"}, {"LANG", "."}},
             {{"LC_ALL", ""}, {"LANG", "../../etc/passwd"}, {"LANGUAGE", "../../etc/passwd"}},
             {{"LC_NUMERIC", "ar_EG.UTF-8"}, {"LC_MONETARY", "_"}, {"LC_TIME", "fa_IR"}},
             {{"LC_ALL", QByteArray(100'000, 'x')}, {"LANG", QByteArray(100'000, '_')}}}) {
        SCOPED_TRACE(testing::PrintToString(variables.front().value.left(80).toStdString()));
        ExpectStarts(Start(variables));
    }
}

TEST_F(Surroundings, OfAnyFoldersKeepTheStoreWhereItBelongs) {
    QDir(PathOf({})).mkpath(u"Año \"de\" $(id) 'x'\n%n"_s);
    QFile file(PathOf(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    const QString usual = u".local/share"_s;
    struct Case {
        const char* what;
        std::vector<Variable> variables;
        QString store; ///< its folder; null if there can be none, and the user gets a message
    };
    const QByteArray longPath = BytesOfPath(u"long/"_s) + QByteArray("folder/").repeated(1'000);
    const std::vector<Case> cases = {
        {"nothing set", {}, usual},
        {"a data folder", {{"XDG_DATA_HOME", BytesOfPath(u"data"_s)}}, u"data"_s},
        {"a data folder by a relative path", {{"XDG_DATA_HOME", "data2"}}, usual},
        {"an empty data folder", {{"XDG_DATA_HOME", ""}}, usual},
        {"accents, quotes and line breaks",
         {{"XDG_DATA_HOME", BytesOfPath(u"Año \"de\" $(id) 'x'\n%n"_s)}},
         u"Año \"de\" $(id) 'x'\n%n"_s},
        {"a home with accents", {{"HOME", BytesOfPath(u"José"_s)}}, u"José/.local/share"_s},
        {"no folder to be made", {{"XDG_DATA_HOME", "/proc/none"}}, {}},
        {"a file in the way", {{"XDG_DATA_HOME", BytesOfPath(u"file"_s)}}, {}},
        {"a path too long", {{"XDG_DATA_HOME", longPath}}, {}},
        {"a home too long", {{"HOME", longPath}}, {}},
        {"configuration in the way", {{"XDG_CONFIG_HOME", BytesOfPath(u"file"_s)}}, usual},
        {"configuration nowhere", {{"XDG_CONFIG_HOME", "/proc/none"}}, usual},
        {"configuration too long", {{"XDG_CONFIG_HOME", longPath}}, usual},
        {"no folder for a while",
         {{"TMPDIR", "/proc/none"},
          {"XDG_RUNTIME_DIR", "/proc/none"},
          {"XDG_CACHE_HOME", "/proc/none"}},
         usual},
        {"no path to programs", {{"PATH", {}}}, usual},
    };
    for (const Case& tested : cases) {
        SCOPED_TRACE(tested.what);
        const Outcome outcome = Start(tested.variables);
        if (tested.store.isNull()) {
            EXPECT_EQ(outcome.exitCode, 1);
            EXPECT_EQ(outcome.Of("message").size(), 1);
            EXPECT_EQ(outcome.Of("shown"), QStringList());
        } else {
            ExpectStarts(outcome);
            EXPECT_TRUE(IsStoreIn(tested.store));
        }
        QDir(PathOf(usual)).removeRecursively();
    }
}

/// The manual tells users where the files are.
TEST_F(Surroundings, FilesAreWhereTheManualSays) {
    ExpectStarts(Start({}));
    ExpectStarts(
        Start({{"XDG_DATA_HOME", BytesOfPath(u"d"_s)}, {"XDG_CONFIG_HOME", BytesOfPath(u"c"_s)}}));
    for (const char* const page : {"quend-loan.en.1.in", "quend-loan.es.1.in"}) {
        QFile manual(QStringLiteral(QUEND_SOURCE_DIR "/packaging/man/") + QLatin1String(page));
        ASSERT_TRUE(manual.open(QIODevice::ReadOnly));
        int files = 0;
        for (const QString& line : QString::fromUtf8(manual.readAll()).split(u'\n')) {
            const QString name = line.startsWith(u".I ~/") ? line.sliced(5) : QString();
            if (name.isNull()) {
                continue;
            }
            ++files;
            EXPECT_TRUE(QFile::exists(PathOf(name))) << name.toStdString();
            QString moved = name;
            moved.replace(u".local/share"_s, u"d"_s).replace(u".config"_s, u"c"_s);
            EXPECT_TRUE(QFile::exists(PathOf(moved))) << moved.toStdString();
        }
        EXPECT_EQ(files, 2) << page;
    }
}

TEST_F(Surroundings, OfAnyQtSettingsAreTaken) {
    const std::vector<Variable> variables = {{"QT_STYLE_OVERRIDE", "nonsense"},
                                             {"QT_SCALE_FACTOR", "x"},
                                             {"QT_SCREEN_SCALE_FACTORS", ";;=%n"},
                                             {"QT_FONT_DPI", "-1"},
                                             {"QT_AUTO_SCREEN_SCALE_FACTOR", "99"},
                                             {"QT_ENABLE_HIGHDPI_SCALING", "?"},
                                             {"QT_LOGGING_RULES", "*=\n%n"},
                                             {"QT_MESSAGE_PATTERN", "%{if-debug}%{"},
                                             {"QT_IM_MODULE", "nonsense"},
                                             {"QT_QPA_PLATFORMTHEME", "nonsense"},
                                             {"DISPLAY", ":nonsense"},
                                             {"WAYLAND_DISPLAY", "\xFF"},
                                             {"QT_ACCESSIBILITY", "x"},
                                             {"DBUS_SESSION_BUS_ADDRESS", "unix:path=/none;;"},
                                             {"TZ", "../../etc/passwd"},
                                             {"CUPS_SERVER", "/none:99999"},
                                             {"XDG_CURRENT_DESKTOP", "::%n"},
                                             {"XDG_DATA_DIRS", ":::relative:/proc"}};
    ExpectStarts(Start(variables));
}

TEST_F(Surroundings, OfAnyArgumentsAreTakenOrRefused) {
    const QStringList oddGeometry{u"-qwindowgeometry"_s, u"9999999999x-1+%n"_s, u"-session"_s,
                                  u"../x"_s};
    ExpectStarts(Start({}, oddGeometry));
    ExpectStarts(Start({}, {u"-stylesheet"_s, PathOf(u"none"_s), u"-style"_s, u"nonsense"_s}));
    struct Case {
        QStringList arguments;
        int exitCode;
        bool starts = false; ///< with an error message over the window
    };
    for (const auto& [arguments, exitCode, starts] :
         std::vector<Case>{{{u"-x"_s, u""_s, u"%n"_s, u"a\nb"_s, u"-reverse"_s, u"--help"_s}, 0},
                           {{u""_s}, 2},
                           {{u"/dev/zero"_s, u"-reverse"_s}, 0, true},
                           {{u"/dev/zero"_s, u"a.quendloan"_s}, 2},
                           {{u"-style"_s}, 2},
                           {{u"ñ\xD83C"_s, QString(100'000, u'-')}, 2},
                           {{QString(100'000, u'-')}, 2}}) {
        SCOPED_TRACE(arguments.join(u'|').left(80).toStdString());
        const Outcome outcome = Start({}, arguments);
        EXPECT_EQ(outcome.exitCode, exitCode);
        EXPECT_EQ(!outcome.Of("shown").isEmpty(), starts);
    }
}

TEST_F(Surroundings, AtRandomAreTaken) {
    constexpr std::array Names{"LC_ALL",
                               "LC_NUMERIC",
                               "LC_MONETARY",
                               "LC_TIME",
                               "LC_MESSAGES",
                               "LANG",
                               "LANGUAGE",
                               "TZ",
                               "XDG_CURRENT_DESKTOP",
                               "QT_STYLE_OVERRIDE",
                               "QT_FONT_DPI",
                               "QT_LOGGING_RULES"};
    constexpr std::array Pieces{"en", "_US",        "es",       "MX", ".UTF-8", "@euro", "de_DE",
                                "C",  "zh_Hant_TW", "sr@latin", ":",  "/",      ";"};
    const FuzzTarget target("surroundings", [&](const std::string& input) {
        std::vector<Variable> variables;
        for (const QByteArray& line : QByteArray::fromStdString(input).split('\n')) {
            const qsizetype sign = line.indexOf('=');
            const auto* const known =
                std::find_if(Names.begin(), Names.end(), [&](const char* name) {
                    return line.left(std::max<qsizetype>(sign, 0)) == name;
                });
            if (known != Names.end()) {
                variables.push_back({*known, line.mid(sign + 1)});
            }
        }
        ExpectStarts(Start(variables));
    });
    target.TryAtRandom([&](FuzzRandom& random) {
        std::string lines;
        for (std::size_t count = 1 + random.Below(4); count > 0; --count) {
            lines += std::string(random.AnyOf(Names)) + '=' +
                     (random.OneIn(2) ? Patched(random, Pieces) : Patched(random, HostilePieces)) +
                     '\n';
        }
        return lines;
    });
}

} // namespace
