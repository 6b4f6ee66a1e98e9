#include "CommandLine.h"

#include "CommandTextNumbers.h"
#include "Language.h"
#include "VersionRecord.h"

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

struct QuestionOption {
    const char16_t* option;
    Question question;
};

constexpr std::array QuestionOptions{
    QuestionOption{u"--help", Question::Help},
    QuestionOption{u"-h", Question::Help},
    QuestionOption{u"--version", Question::Version},
    QuestionOption{u"-v", Question::Version},
};

} // namespace

Question QuestionIn(const QStringList& arguments) {
    for (const QuestionOption& asked : QuestionOptions) {
        if (arguments.contains(QStringView(asked.option))) {
            return asked.question;
        }
    }
    return Question::None;
}

QString AnswerTo(Question question) {
    switch (question) {
    case Question::Help:
        return HelpText();
    case Question::Version:
        return VersionText();
    case Question::None:
        break;
    }
    return {};
}

QString RefusalOf(const QStringList& arguments) {
    const QString& first = arguments.front();
    const int text =
        first.startsWith(u'-') ? TextNumber::UnknownOption : TextNumber::LoanTakesNoFile;
    return QStringLiteral("%1: %2\n%1: %3\n")
        .arg(Command(), GetResourceText(text).arg(first),
             GetResourceText(TextNumber::SeeHelp).arg(Command()));
}

} // namespace quend::storage
