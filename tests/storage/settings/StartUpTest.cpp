// The program's key and language at the start, the window geometry, the busy pointer.

#include "QuendNames.h"

#include "CMouse.h"
#include "Failure.h"
#include "Language.h"
#include "LoanNameBox.h"
#include "SettingsStore.h"
#include "StoreFolder.h"
#include "TextNumbers.h"
#include "WindowFixture.h"
#include "WindowPlace.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>

#include <sys/stat.h>

#include <array>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr std::uint16_t MexicanSpanish = 0x080A;
constexpr std::uint16_t AmericanEnglish = 0x0409;

class StartUp : public testing::Test {
protected:
    StartUp() {
        Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
    }

    QTemporaryDir m_folder;
    RegistryAPI m_store{std::filesystem::path(m_folder.path().toStdString()) / "new" /
                        "Loan.store"};
};

TEST_F(StartUp, AFirstRunMakesTheKeyAndTakesTheSystemsLanguage) {
    struct Case {
        std::uint16_t identifier;
        int language;
    };
    for (const Case& row : {Case{MexicanSpanish, -Spanish}, Case{AmericanEnglish, -English},
                            Case{0, -English}, Case{0x0C0A, -Spanish}}) {
        const QTemporaryDir folder;
        const RegistryAPI store(std::filesystem::path(folder.path().toStdString()) / "Loan.store");
        PrepareKeyAndLanguage(store, row.identifier);
        EXPECT_TRUE(store.KeyExists(StoreFolder::Root, BaseKey));
        EXPECT_EQ(row.language, Language::Instance().CurrentLanguage()) << row.identifier;
    }
}

TEST_F(StartUp, TheLanguageThatWasSetWins) {
    struct Case {
        std::int32_t kept;
        int language;
    };
    m_store.CreateKey(StoreFolder::Root, BaseKey);
    for (const Case& row :
         {Case{0, -Spanish}, Case{1, 1}, Case{2, 2}, Case{-1, -Spanish}, Case{-2, -Spanish},
          Case{-99, -Spanish}, Case{INT32_MIN, -Spanish}, Case{99, 99}}) {
        m_store.SetValue(StoreFolder::Root, BaseKey, "CurrentLanguage", RegistryType::Number,
                         row.kept);
        Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
        PrepareKeyAndLanguage(m_store, MexicanSpanish);
        // A detected language is loaded already; one that was set is loaded with the window.
        EXPECT_EQ(GetResourceText(TextNumber::NewLoan) == u"(préstamo nuevo)", row.language < 0);
        EXPECT_EQ(row.language, Language::Instance().CurrentLanguage()) << row.kept;
    }
}

TEST_F(StartUp, AKeyThatCannotBeMadeIsAFailure) {
    EXPECT_THROW(PrepareKeyAndLanguage(RegistryAPI("/proc/no/place/Loan.store"), AmericanEnglish),
                 Failure);
}

class LanguageOutOfRange : public WindowTest {};

TEST_F(LanguageOutOfRange, IsReportedAndNotKept) {
    Open({.language = 99});
    const QStringList told = SettledMessages();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.front().startsWith(u"errn=429  src=")) << told.front().toStdString();
    EXPECT_EQ(Language::Instance().CurrentLanguage(), English);
    EXPECT_EQ(Text(u"lblLoanName"), u"Loan &Name:");
}

class PlaceOfTheWindow : public WindowTest {};

TEST_F(PlaceOfTheWindow, IsKeptInAFolderMadeForIt) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"made/for it/window.place"_s);
    Open();
    Window().resize(700, 500); // on any screen there is room for it
    const QSize size = Window().size();
    SaveGeometry(Window(), file);
    Open();
    EXPECT_NE(Window().size(), size);
    RestoreGeometry(Window(), file);
    EXPECT_EQ(Window().size(), size);
}

TEST_F(PlaceOfTheWindow, IsNoLargerThanTheScreenAtFirst) {
    for (const int last : {0, 14}) {
        Open({.language = Spanish, .loansDisplayed = last});
        FitToScreen(Window());
        const QSize screen = Window().screen()->availableGeometry().size();
        EXPECT_EQ(Window().size().boundedTo(screen), Window().size());
        EXPECT_EQ(Window().width(), std::min(Window().sizeHint().width(), screen.width()));
    }
}

TEST_F(PlaceOfTheWindow, UnreadablePlacesAreIgnored) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"window.place"_s);
    Open();
    const QSize size = Window().size();
    RestoreGeometry(Window(), name); // the file does not exist yet
    EXPECT_EQ(Window().size(), size);
    for (const QByteArray& bytes : {QByteArray(), QByteArray("garbage"), QByteArray(500, '\xFF')}) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        RestoreGeometry(Window(), name);
        EXPECT_EQ(Window().size(), size);
    }
}

TEST_F(PlaceOfTheWindow, AFileThatNobodyWritesToIsNotWaitedFor) {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(u"window.place"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    Open();
    const QSize size = Window().size();
    RestoreGeometry(Window(), pipe);
    EXPECT_EQ(Window().size(), size);
}

TEST_F(PlaceOfTheWindow, WhereItCannotBeKeptTheProgramGoesOn) {
    const QTemporaryDir folder;
    const QString blocked = folder.filePath(u"blocked"_s);
    ASSERT_TRUE(QFile(blocked).open(QIODevice::WriteOnly));
    Open();
    SaveGeometry(Window(), blocked + u"/window.place"_s);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList(u"blocked"_s));
    EXPECT_EQ(SettledMessages(), QStringList());
}

// The mouse pointer

Qt::CursorShape Shown() {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return cursor == nullptr ? Qt::ArrowCursor : cursor->shape();
}

TEST(BusyPointer, ComesBackFromBeforeTheFirstChange) {
    {
        CMouse mouse;
        mouse.SetPointer(MousePointer::Hourglass);
        EXPECT_EQ(Shown(), Qt::WaitCursor);
        mouse.SetPointer(2);
        EXPECT_EQ(Shown(), Qt::CrossCursor);
        {
            CMouse inner;
            inner.SetPointer(13);
            EXPECT_EQ(Shown(), Qt::BusyCursor);
        }
        EXPECT_EQ(Shown(), Qt::CrossCursor);
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(BusyPointer, ComesBackAfterAFailureToo) {
    EXPECT_THROW(
        {
            CMouse mouse;
            mouse.SetPointer(MousePointer::Hourglass);
            throw std::runtime_error("in the middle");
        },
        std::runtime_error);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(BusyPointer, AGuardWithoutAPointerChangesNothing) {
    QGuiApplication::setOverrideCursor(Qt::ForbiddenCursor);
    { const CMouse mouse; }
    EXPECT_EQ(Shown(), Qt::ForbiddenCursor);
    QGuiApplication::restoreOverrideCursor();
    {
        CMouse mouse;
        mouse.SetPointer(-77); // no such pointer
        EXPECT_EQ(Shown(), Qt::ArrowCursor);
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
