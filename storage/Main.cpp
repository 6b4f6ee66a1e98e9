// The composition root: creates, connects and starts all objects.

#include "AboutCommands.h"
#include "CalendarDate.h"
#include "ClearEdges.h"
#include "CommandLine.h"
#include "CompareCommands.h"
#include "DesktopMail.h"
#include "EndSignals.h"
#include "ExchangeCommands.h"
#include "ExportDialog.h"
#include "FailureReport.h"
#include "FileCommands.h"
#include "FileDialogs.h"
#include "HelpCommands.h"
#include "HelpPlugin.h"
#include "Language.h"
#include "LanguageIdentifier.h"
#include "Loan.h"
#include "MessageBoxes.h"
#include "MessageQueue.h"
#include "OptionsCommands.h"
#include "PictureDialog.h"
#include "PrintCommands.h"
#include "PrinterPlugin.h"
#include "ProgramIcon.h"
#include "RepairedWorksheets.h"
#include "SessionEnd.h"
#include "SettingsStore.h"
#include "ShareCommands.h"
#include "StoreCheck.h"
#include "StoreNames.h"
#include "StoreNotice.h"
#include "SystemInfo.h"
#include "TextNumbers.h"
#include "UnsavedWorksheets.h"
#include "VersionRecord.h"
#include "WindowPlace.h"
#include "WorksheetFiles.h"

#include <QApplication>
#include <QDate>
#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <future>
#include <iterator>
#include <optional>

using namespace quend;
using namespace quend::calc;
using namespace quend::compare;
using namespace quend::exchange;
using namespace quend::extras;
using namespace quend::help;
using namespace quend::language;
using namespace quend::model;
using namespace quend::printing;
using namespace quend::registry;
using namespace quend::storage;
using namespace quend::window;

namespace {

Date Today() { return FromCalendar(QDate::currentDate()); }

/// The form used in the name of a damaged file.
std::string TodayInWords() { return QDate::currentDate().toString(Qt::ISODate).toStdString(); }

void SetUpLanguage() {
    const QFileInfo program(QCoreApplication::applicationFilePath());
    Language::Instance().SetUp(program.absolutePath(), program.completeBaseName());
}

/// For texts before the language has been read from the store.
void DetectLanguage() { Language::Instance().DetectLanguage(UserDefaultLanguageIdentifier()); }

/// A text about the store itself.
QString StoreText(int number) {
    DetectLanguage();
    return GetResourceText(number).arg(QString::fromStdString(RegistryAPI::UserStore().string()));
}

/// The message that explains why the program cannot start; no value when it can.
std::optional<QString> Obstacle(const RegistryAPI& store, const StoreCondition& condition) {
    if (condition.state == StoreCondition::State::Newer) {
        return StoreText(TextNumber::StoreNewer);
    }
    try {
        PrepareKeyAndLanguage(store, UserDefaultLanguageIdentifier());
    } catch (const Failure& failure) { // becomes the message, because there is no window yet
        return StoreText(TextNumber::StoreUnusable) + QStringLiteral("\n\n") +
               StoreFailureText(failure);
    }
    return std::nullopt;
}

void ReportStore(MessageQueue& messages, const RegistryAPI& store, const StoreCondition& condition,
                 const std::vector<Failure>& refused) {
    if (condition.state == StoreCondition::State::Repaired) {
        messages.Post(RepairNotice(FindIncomplete(store), condition.keptAs));
    }
    if (!refused.empty()) {
        messages.Post(GetResourceText(TextNumber::SettingsNotRead) + QStringLiteral("\n\n") +
                      FailureLines(refused));
    }
}

/// The comparison window prints and saves through the path of the report, and keeps its place in a
/// file beside that of the main window.
CompareWorld WorldOfComparison(PrintCommands& printing) {
    const QString place = UserFile(QStringLiteral("compare.place"));
    const QString columns = UserFile(QStringLiteral("compare.columns"));
    return {.print = [&printing](QWidget& parent, const QString& title,
                                 const DrawDocument& draw) { printing.Print(parent, title, draw); },
            .exportPdf =
                [&printing](const QString& file, const QString& title, const DrawDocument& draw) {
                    QString error;
                    printing.ExportPdf(file, title, draw, error);
                    return error;
                },
            .askForFile = AskForExportFile,
            .restoreGeometry = [place](QWidget& window) { RestoreGeometry(window, place); },
            .saveGeometry = [place](const QWidget& window) { SaveGeometry(window, place); },
            .restoreColumns = [columns] { return KeptBytes(columns); },
            .saveColumns = [columns](const QByteArray& bytes) { KeepBytes(bytes, columns); }};
}

/// Opens the file of the command line after the window is shown, so that an error message has it
/// as parent.
void OpenNamedFile(ExchangeCommands& exchanging) {
    const QStringList named = QCoreApplication::arguments().mid(1);
    if (!named.isEmpty()) {
        QTimer::singleShot(0, &exchanging, [&exchanging, path = PathOfArgument(named.front())] {
            exchanging.OpenFile(path);
        });
    }
}

/// The exit code.
int Print(const QString& text, std::FILE* stream, int code) {
    const bool isWritten =
        std::fputs(qUtf8Printable(text), stream) >= 0 && std::fflush(stream) == 0;
    return isWritten ? code : 1;
}

/// A message that nobody can be shown any more.
void PrintUnseen(const QString& message) { Print(message + u'\n', stderr, 0); }

int Run(const std::filesystem::path& place, const StoreCondition& condition,
        MessageBoxes& messages) {
    const auto [settings, refused] = LoadSettings(RegistryAPI(place));
    Loan window({.messages = &messages, .locale = QLocale::system(), .today = Today}, settings);
    const RegistryAPI store = ReportingStore(place, window.GetMessages(), TodayInWords);
    FileCommands files(window, WorksheetStore(store));
    ExchangeCommands exchanging(window, FileDialogs(), [&files] {
        const bool mayDrop = files.MayDrop();
        if (mayDrop) { // the file's worksheet is none of the stored ones
            files.ForgetStored();
        }
        return mayDrop;
    });
    PictureDialog pictures;
    const OptionsCommands options(window, store, pictures);
    PrinterOfPlugin printer;
    PrintCommands printing(window, printer);
    const CompareCommands comparing(window, WorldOfComparison(printing));
    const HelpCommands help(window, OpenByPlugin);
    DesktopMail mail;
    const ShareCommands share(window, mail);
    const AboutCommands about(window, store, InstalledSystemInfo());
    const QString geometry = UserFile(QStringLiteral("window.place"));
    const auto keepSettings = [&] {
        SaveSettings(store, window.GetSettings());
        SaveGeometry(window, geometry);
    };
    SessionEnd ending(window, files, UnsavedWorksheets(store),
                      {.print = PrintUnseen, .keepSettings = keepSettings, .exit = [] {
                           QApplication::exit(0);
                       }});
    const EndSignals signals([&ending] { ending.EndNow(); });
    window.OnUnload([&] {
        if (!files.MayDrop()) {
            return false;
        }
        keepSettings();
        ending.Forget();
        window.GetMessages().ShowRest(); // nobody answers after the window has closed
        return true;
    });
    FitToScreen(window);
    RestoreGeometry(window, geometry);
    ReportStore(window.GetMessages(), store, condition, refused);
    window.show();
    OpenNamedFile(exchanging);
    // The icon loads Qt's plugins of all picture formats, and looking for an unsaved worksheet
    // opens the store, so they follow when the window can be used.
    constexpr auto afterFirstPaint = std::chrono::milliseconds(100);
    QTimer::singleShot(afterFirstPaint, &window, [&ending] {
        QApplication::setWindowIcon(ProgramIcon());
        ending.OfferUnsaved();
    });
    return QApplication::exec();
}

/// Checks the store while Qt initializes.
std::future<StoreCondition> BeginLook(const std::filesystem::path& place) {
    return std::async(
        [place, today = TodayInWords()] { return PrepareStore(place, today, NamedLoans()); });
}

/// The exit code.
int Start(const std::filesystem::path& place, std::future<StoreCondition> look,
          MessageBoxes& messages) {
    const StoreCondition condition = look.get();
    if (const auto obstacle = Obstacle(RegistryAPI(place), condition)) {
        messages.Show(*obstacle);
        return 1;
    }
    const int result = Run(place, condition, messages);
    TidyStore(place);
    return result;
}

constexpr int BadUsage = 2;

/// Help and version are printed without a display; then the exit code.
std::optional<int> AnswerBeforeStart(int& argc, char** argv) {
    QStringList arguments;
    std::transform(argv + 1, argv + argc, std::back_inserter(arguments),
                   [](const char* argument) { return QString::fromLocal8Bit(argument); });
    const Asked asked = AskedBy(arguments);
    if (asked == Asked::None) {
        return std::nullopt;
    }
    const QCoreApplication application(argc, argv); // finds the program's folder
    SetUpLanguage();
    DetectLanguage();
    return Print(AnswerTo(asked), stdout, 0);
}

/// The exit code for arguments that Qt has not taken.
std::optional<int> RefuseRest() {
    const QStringList rest = QCoreApplication::arguments().mid(1);
    if (CanStartWith(rest)) {
        return std::nullopt;
    }
    DetectLanguage();
    return Print(RefusalOf(rest), stderr, BadUsage);
}

} // namespace

int main(int argc, char* argv[]) {
    const bool hasArguments = argc > 1;
    if (hasArguments) {
        if (const auto code = AnswerBeforeStart(argc, argv)) {
            return *code;
        }
    }
    const std::filesystem::path place = RegistryAPI::UserStore();
    // With arguments later, because a start that is refused leaves the store alone.
    std::future<StoreCondition> look =
        hasArguments ? std::future<StoreCondition>() : BeginLook(place);
    const QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Quend Halverworks"));
    QCoreApplication::setApplicationName(QStringLiteral("Loan"));
    using namespace VersionRecord;
    QCoreApplication::setApplicationVersion(
        QStringLiteral("%1.%2.%3").arg(Major).arg(Minor).arg(Revision));
    QGuiApplication::setDesktopFileName(QString::fromUtf8(ApplicationId));
    ClearEdges::Install();
    SetUpLanguage();
    if (hasArguments) {
        if (const auto code = RefuseRest()) {
            return *code;
        }
        look = BeginLook(place);
    }
    // The last resort: a failure that no handler caught ends the program with a message.
    MessageBoxes messages;
    MessageQueue queue(messages);
    int result = 1;
    FailureReport(queue).Guard([&] { result = Start(place, std::move(look), messages); });
    queue.ShowRest();
    return result;
}
