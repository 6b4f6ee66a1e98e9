#include "Program.h"

#include "CompareCommands.h"
#include "CompareWorld.h"
#include "CompiledHelp.h"
#include "ExportDialog.h"
#include "Language.h"
#include "SettingsStore.h"

#include <QImage>
#include <QTest>

#include <stdexcept>

using namespace std::chrono_literals;

namespace {

constexpr std::uint16_t AmericanEnglish = 0x0409;

Date FixedDay() { return Date::FromCalendar(2026, 11, 21); }

/// Tests never start the system information.
SystemInfoInterface NoSystemInfo() {
    return {.installed = [] { return std::optional<QString>(); },
            .start = [](const QString&) { return false; }};
}

/// The comparison is neither printed nor exported, and has its usual place.
compare::CompareWorld NoOutsideWorld() {
    return {.print = [](QWidget&, const QString&, const printing::DrawDocument&) {},
            .exportPdf = [](const QString&, const QString&,
                            const printing::DrawDocument&) { return QString(); },
            .askForFile = [](QWidget&, const QString&, const QStringList&) { return ExportFile(); },
            .restoreGeometry = [](QWidget&) {},
            .saveGeometry = [](const QWidget&) {},
            .restoreColumns = [] { return QByteArray(); },
            .saveColumns = [](const QByteArray&) {}};
}

std::shared_ptr<HelpCollection> OpenDirectly(const QString& file) {
    return std::make_shared<CompiledHelp>(file);
}

} // namespace

struct Program::Parts {
    Parts(Program& program, const RegistryAPI& store, const QLocale& locale)
        : window({.messages = &program.messages, .locale = locale, .today = FixedDay},
                 LoadSettings(store).settings),
          files(window, WorksheetStore(store),
                [&program](QWidget&, const QString&) { return std::optional(program.newName); }),
          options(window, store, program.pictures),
          printing(window, program.printer,
                   frmPrint::Pace{.shownAtLeast = 0ms,
                                  .yield = [&program] { program.whilePrinting(); }}),
          help(window, OpenDirectly), share(window, program.mail),
          about(window, store, NoSystemInfo()), comparing(window, NoOutsideWorld()) {
        window.OnUnload([this, store] {
            if (!files.MayDrop()) {
                return false;
            }
            SaveSettings(store, window.GetSettings());
            return true;
        });
    }

    Loan window;
    FileCommands files;
    OptionsCommands options;
    PrintCommands printing;
    HelpCommands help;
    ShareCommands share;
    AboutCommands about;
    compare::CompareCommands comparing;
};

Program::Program() : whilePrinting([] {}) {
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
    QImage picture(16, 16, QImage::Format_RGB32);
    picture.fill(qRgb(200, 220, 240));
    picture.save(Picture());
}

Program::~Program() = default;

void Program::Start(const QLocale& locale) {
    QLocale::setDefault(locale);
    const RegistryAPI store = m_store.Store();
    PrepareKeyAndLanguage(store, AmericanEnglish);
    m_parts = std::make_unique<Parts>(*this, store, locale);
    m_parts->window.show();
    Activate();
}

void Program::Shut() { m_parts.reset(); }
Loan& Program::Window() const { return m_parts->window; }
frmPrint* Program::Job() const { return m_parts->window.findChild<frmPrint*>(); }

void Program::Activate() const {
    if (m_parts->window.isActiveWindow()) {
        return;
    }
    m_parts->window.activateWindow();
    if (!QTest::qWaitForWindowActive(&m_parts->window)) {
        throw std::runtime_error("the window does not become active");
    }
}

QString Program::Picture() const { return m_folder.filePath(QStringLiteral("picture.bmp")); }

std::vector<std::string> Program::Kept() const {
    return m_store.Store().GetSubKeys(StoreFolder::Root, BaseKey);
}
