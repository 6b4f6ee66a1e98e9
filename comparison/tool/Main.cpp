// quend-compare: connects the program to the system's streams, date and language.

#include "CalendarDate.h"
#include "Language.h"
#include "LanguageIdentifier.h"
#include "Program.h"

#include <QCoreApplication>
#include <QDate>
#include <QLocale>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

using namespace quend;
using namespace quend::language;
using namespace quend::tool;

namespace {

/// Loads the language at the first call. The application object says where the program's folder
/// is; it is made only for that, because it is a large part of the start.
class LanguageLoader {
public:
    LanguageLoader(int& argc, char** argv) : m_argc(&argc), m_argv(argv) {}

    void Load() {
        if (m_application) {
            return;
        }
        // Qt's warning about a locale without UTF-8 would be taken for output of this program.
        const QtMessageHandler before =
            qInstallMessageHandler([](QtMsgType /*type*/, const QMessageLogContext& /*place*/,
                                      const QString& /*text*/) {});
        m_application = std::make_unique<QCoreApplication>(*m_argc, m_argv);
        qInstallMessageHandler(before);
        // Shares the languages of the window's program, which is beside it.
        Language::Instance().SetUp(QCoreApplication::applicationDirPath(), QStringLiteral("Loan"));
        Language::Instance().DetectLanguage(UserDefaultLanguageIdentifier());
    }

private:
    int* m_argc;
    char** m_argv;
    std::unique_ptr<QCoreApplication> m_application;
};

/// The exit code.
int Run(int argc, char** argv) {
    std::ios::sync_with_stdio(false); // otherwise standard input is read byte by byte
    std::cin.tie(nullptr);
    const std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    LanguageLoader loader(argc, argv);
    const World world{
        .in = &std::cin,
        .out = &std::cout,
        .err = &std::cerr,
        .today = [] { return model::FromCalendar(QDate::currentDate()); },
        .locale = [] { return QLocale::system(); },
        .loadLanguage = [&loader] { loader.Load(); },
    };
    return static_cast<int>(RunProgram(arguments, world));
}

} // namespace

int main(int argc, char* argv[]) {
    try {
        return Run(argc, argv);
    } catch (...) { // all other failures are reported where they happen
        static_cast<void>(std::fputs("quend-compare: out of memory\n", stderr));
        return 1;
    }
}
