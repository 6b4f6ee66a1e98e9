#include "CalendarDate.h"
#include "Language.h"
#include "LanguageIdentifier.h"
#include "Loan.h"
#include "MessageBoxes.h"

#include <QApplication>
#include <QDate>
#include <QFileInfo>

namespace {

Date Today() { return FromCalendar(QDate::currentDate()); }

/// Chooses the language before any window needs a text.
void ChooseLanguage() {
    const QFileInfo program(QCoreApplication::applicationFilePath());
    Language& language = Language::Instance();
    language.SetUp(program.absolutePath(), program.completeBaseName());
    language.DetectLanguage(UserDefaultLanguageIdentifier());
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Loan"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quend Loan"));
    ChooseLanguage();
    MessageBoxes messages;
    Loan window({.messages = &messages, .locale = QLocale::system(), .today = Today}, Settings());
    window.show();
    return QApplication::exec();
}
