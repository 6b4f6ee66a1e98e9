#include "UsageText.h"

#include "Language.h"
#include "OptionTable.h"
#include "TerminalText.h"

#include <array>

namespace quend::tool {

namespace {

QString Latin(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

/// "-h, --help", "--today DATE".
QString Form(const OptionRow& option) {
    QString form = QStringLiteral("  ");
    if (!option.shortName.empty()) {
        form += Latin(option.shortName) + QStringLiteral(", ");
    }
    form += Latin(option.name);
    if (!option.value.empty()) {
        const QString value = Latin(option.value);
        form += u' ' + (option.word == 0 ? value : value.arg(GetResourceText(option.word)));
    }
    return form + u'\n';
}

/// In the order of UsageFault.
constexpr std::array Faults{
    TextNumber::UnknownOption, TextNumber::OptionNeedsValue, TextNumber::OptionTakesNoValue,
    TextNumber::BadFormat,     TextNumber::BadYears,         TextNumber::BadPayments,
    TextNumber::BadDate,       TextNumber::BadPlace,         TextNumber::NotTogether,
    TextNumber::NoFileNamed,   TextNumber::OneFileOnly};

} // namespace

QString HelpText() {
    constexpr int Indent = 8;
    QString help = GetResourceText(TextNumber::ToolUsage) + QStringLiteral("\n\n") +
                   Wrapped(GetResourceText(TextNumber::ToolAbout), 0) + u'\n';
    for (const OptionRow& option : OptionTable) {
        help += Form(option) + Wrapped(GetResourceText(option.about), Indent);
    }
    return help + u'\n' + Wrapped(GetResourceText(TextNumber::ToolNotes), 0);
}

QString UsageErrorText(const UsageError& error) {
    QString sentence = GetResourceText(Faults.at(static_cast<std::size_t>(error.fault)));
    const QString subject = QString::fromStdString(error.subject);
    switch (error.fault) {
    case UsageFault::NoFile:
    case UsageFault::OneFileOnly:
        return sentence;
    case UsageFault::NotTogether:
        return sentence.arg(subject, QString::fromStdString(error.other));
    default:
        return sentence.arg(subject);
    }
}

} // namespace quend::tool
