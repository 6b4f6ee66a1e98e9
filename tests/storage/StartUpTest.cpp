// The program's key and language at the start, the place of the window, the busy pointer.

#include "StartUp.h"

#include "CMouse.h"
#include "Failure.h"
#include "Language.h"
#include "LoanNameBox.h"
#include "StoreFolder.h"
#include "WindowFixture.h"
#include "WindowPlace.h"

#include <QFile>
#include <QGuiApplication>
#include <QSettings>

#include <array>
#include <stdexcept>

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
         {Case{0, -Spanish}, Case{1, 1}, Case{2, 2}, Case{-2, -2}, Case{99, 99}}) {
        m_store.SetValue(StoreFolder::Root, BaseKey, "CurrentLanguage", RegistryType::Number,
                         row.kept);
        PrepareKeyAndLanguage(m_store, MexicanSpanish);
        EXPECT_EQ(row.language, Language::Instance().CurrentLanguage()) << row.kept;
    }
}

TEST_F(StartUp, AKeyThatCannotBeMadeIsAFailure) {
    EXPECT_THROW(PrepareKeyAndLanguage(RegistryAPI("/proc/no/place/Loan.store"), AmericanEnglish),
                 Failure);
}

class LanguageOutOfRange : public WindowTest {};

TEST_F(LanguageOutOfRange, IsToldAndNotKept) {
    Open({.language = 99});
    const QStringList told = SettledMessages();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.front().startsWith(u"errn=429  src=")) << told.front().toStdString();
    EXPECT_EQ(Language::Instance().CurrentLanguage(), English);
    EXPECT_EQ(Text(u"lblLoanName"), u"Loan &Name:");
}

class PlaceOfTheWindow : public WindowTest {};

TEST_F(PlaceOfTheWindow, IsKeptApartFromTheSettings) {
    const QTemporaryDir folder;
    QSettings kept(folder.filePath(u"place.conf"_qs), QSettings::IniFormat);
    Open();
    Window().resize(Window().width() + 60, Window().height() + 40);
    const QSize size = Window().size();
    KeepPlace(Window(), kept);
    Open();
    EXPECT_NE(Window().size(), size);
    RestorePlace(Window(), kept);
    EXPECT_EQ(Window().size(), size);
}

TEST_F(PlaceOfTheWindow, UnreadablePlacesAreIgnored) {
    const QTemporaryDir folder;
    QSettings kept(folder.filePath(u"place.conf"_qs), QSettings::IniFormat);
    Open();
    const QSize size = Window().size();
    for (const QByteArray& bytes : {QByteArray(), QByteArray("garbage"), QByteArray(500, '\xFF')}) {
        kept.setValue(u"window/geometry"_qs, bytes);
        RestorePlace(Window(), kept);
        EXPECT_EQ(Window().size(), size);
    }
}

TEST_F(PlaceOfTheWindow, AFileWithAnythingElseIsDropped) {
    struct Row {
        const char* file;
        bool stays;
    };
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"place.conf"_qs);
    DropForeignPlace(path); // there is none yet
    for (const Row& row : {Row{"sound.conf", true}, Row{"maximized.conf", true},
                           Row{"endless-variant.conf", false}, Row{"another-kind.conf", false}}) {
        ASSERT_TRUE(QFile::copy(
            QStringLiteral(QUEND_TEST_DATA "/place-corpus/") + QLatin1String(row.file), path));
        DropForeignPlace(path);
        EXPECT_EQ(QFile::exists(path), row.stays) << row.file;
        QFile::remove(path);
    }
    QSettings kept(path, QSettings::IniFormat);
    Open();
    KeepPlace(Window(), kept);
    kept.sync();
    DropForeignPlace(path);
    EXPECT_TRUE(QFile::exists(path)); // what we write is ours
}

// The pointer

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
