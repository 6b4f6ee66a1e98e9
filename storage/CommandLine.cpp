#include "CommandLine.h"

#include "CommandTextNumbers.h"
#include "Language.h"
#include "VersionRecord.h"

#include <algorithm>
#include <array>

namespace quend::storage {

namespace {

const QString& Command() {
    static const QString command = QStringLiteral("quend-loan");
    return command;
}

QString VersionText() {
    using namespace VersionRecord;
    return QStringLiteral("%1 %2.%3.%4\n").arg(Command()).arg(Major).arg(Minor).arg(Revision);
}

QString HelpText() {
    const auto text = [](int number) { return GetResourceText(number); };
    const QString indent = QStringLiteral("        ");
    return text(TextNumber::LoanUsage) + QStringLiteral("\n\n") + text(TextNumber::LoanAbout) +
           QStringLiteral("\n\n  -h, --help\n") + indent + text(TextNumber::OptionHelp) +
           QStringLiteral("\n  -v, --version\n") + indent + text(TextNumber::OptionVersion) +
           QStringLiteral("\n\n") + text(TextNumber::LoanQtOptions) + u'\n';
}

bool IsOption(const QString& argument) { return argument.startsWith(u'-'); }

struct AskingOption {
    const char16_t* option;
    Asked asked;
};

constexpr std::array AskingOptions{
    AskingOption{u"--help", Asked::Help},
    AskingOption{u"-h", Asked::Help},
    AskingOption{u"--version", Asked::Version},
    AskingOption{u"-v", Asked::Version},
};

} // namespace

Asked AskedBy(const QStringList& arguments) {
    for (const AskingOption& asking : AskingOptions) {
        if (arguments.contains(QStringView(asking.option))) {
            return asking.asked;
        }
    }
    return Asked::None;
}

QString AnswerTo(Asked asked) {
    switch (asked) {
    case Asked::Help:
        return HelpText();
    case Asked::Version:
        return VersionText();
    case Asked::None:
        break;
    }
    return {};
}

bool CanStartWith(const QStringList& arguments) {
    return arguments.size() <= 1 && std::ranges::none_of(arguments, [](const QString& argument) {
               return argument.isEmpty() || IsOption(argument);
           });
}

QString RefusalOf(const QStringList& arguments) {
    const auto refuse = [](int text, const QString& argument) {
        return QStringLiteral("%1: %2\n%1: %3\n")
            .arg(Command(), GetResourceText(text).arg(argument),
                 GetResourceText(TextNumber::SeeHelp).arg(Command()));
    };
    const auto option = std::ranges::find_if(arguments, IsOption);
    return option != arguments.end() ? refuse(TextNumber::UnknownOption, *option)
                                     : refuse(TextNumber::LoanTakesOneFile, arguments.last());
}

} // namespace quend::storage
