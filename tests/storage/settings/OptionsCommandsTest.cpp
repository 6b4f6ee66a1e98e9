// Tools, Options: the dialog over the main window, the store, and the window afterwards.

#include "OptionsCommands.h"
#include "FakeMessages.h"
#include "Language.h"
#include "OptionsFixture.h"
#include "QuendNames.h"
#include "RegistryAPI.h"
#include "SettingsStore.h"
#include "StoreNames.h"
#include "WindowFixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

class OptionsOfTheWindow : public WindowTest {
protected:
    OptionsOfTheWindow() { m_store.CreateKey(RegistryRoot::CurrentUser, BaseKey); }

    void OpenWindow(const Start& start = {}) {
        Open(start);
        m_commands.emplace(Window(), m_store, m_pictures);
    }
    /// Triggers the menu entry and runs this in the dialog. False when no dialog appeared.
    bool Options(const std::function<void(frmOptions&)>& user) {
        bool shown = false;
        QTimer::singleShot(0, &Window(), [&] {
            if (auto* dialog = qobject_cast<frmOptions*>(QApplication::activeModalWidget())) {
                shown = QTest::qWaitForWindowActive(dialog);
                user(*dialog);
                if (dialog->isVisible()) {
                    dialog->reject();
                }
            }
        });
        Window().findChild<QAction*>(u"mnuToolsOptions"_s)->trigger();
        Settle();
        return shown;
    }
    /// Changes the options and presses OK.
    void Change(const std::function<void(frmOptions&)>& user) {
        EXPECT_TRUE(Options([&](frmOptions& dialog) {
            user(dialog);
            Child<QPushButton>(dialog, u"OKButton").click();
        }));
        ActivateAgain();
    }
    template <class Kind>
    static Kind& Child(const QWidget& dialog, QStringView name) {
        return *dialog.findChild<Kind*>(name.toString());
    }
    static void SetText(const QWidget& dialog, QStringView name, QStringView text) {
        Child<QLineEdit>(dialog, name).setText(text.toString());
    }
    int Stored(const char* name) const {
        return std::get<std::int32_t>(
            m_store.GetValue(RegistryRoot::CurrentUser, BaseKey, name, RegistryType::Number, -99));
    }
    QString StoredText(const char* name) const {
        return QString::fromStdString(
            std::get<std::string>(m_store.GetValue(RegistryRoot::CurrentUser, BaseKey, name,
                                                   RegistryType::Text, std::string("(absent)"))));
    }
    int RowsInView() const { return Control(u"picScroll").height() / RowHeight(); }

    QTemporaryDir m_folder;
    RegistryAPI m_store{m_folder.filePath(u"Loan.store"_s).toStdString()};
    FakePictures m_pictures;
    std::optional<OptionsCommands> m_commands;
};

TEST_F(OptionsOfTheWindow, EntryIsEnabled) {
    Open();
    const auto* entry = Window().findChild<QAction*>(u"mnuToolsOptions"_s);
    EXPECT_FALSE(entry->isEnabled()) << "as long as nothing is behind it";
    m_commands.emplace(Window(), m_store, m_pictures);
    EXPECT_TRUE(entry->isEnabled());
}

TEST_F(OptionsOfTheWindow, TermsAreRewrittenInTheOtherUnit) {
    struct Case {
        QStringView months;
        QStringView years;
    };
    for (const auto& [months, years] :
         {Case{u"360", u"30"}, Case{u"30", u"2.5"}, Case{u"12", u"1"}, Case{u"", u""}}) {
        OpenWindow({.termInMonths = true});
        Fill(u"txtLoanTerm", months);
        Fill(u"txtCurLoanTerm", months);
        Fill(u"txtTerm(0)", months);
        const int dialogs = 2;
        for (int dialog = 0; dialog < dialogs; ++dialog) {
            const bool toMonths = dialog == 1;
            Change([&](const frmOptions& options) {
                Child<QRadioButton>(options, toMonths ? u"optTerm(0)" : u"optTerm(1)").click();
            });
            for (const QStringView field : {u"txtLoanTerm", u"txtCurLoanTerm", u"txtTerm(0)"}) {
                EXPECT_EQ(Text(field), toMonths ? months : years) << field.toString().toStdString();
            }
            EXPECT_EQ(Stored("TermInMonths"), toMonths ? -1 : 0);
            EXPECT_EQ(Text(u"lblLoanTerm").contains(u"months"), toMonths) << "captions follow";
        }
        m_commands.reset();
        Shut();
    }
}

TEST_F(OptionsOfTheWindow, NumberOfOffersIsKeptAndShown) {
    for (const int offers : {1, 15, 6, 2}) {
        OpenWindow();
        Change([&](const frmOptions& options) {
            SetText(options, u"txtLoans", QString::number(offers));
        });
        EXPECT_EQ(Stored("LoansDisplayed"), offers) << "what the user typed";
        EXPECT_EQ(LoadSettings(m_store).settings.loansDisplayed, offers - 1);
        EXPECT_EQ(Window().GetSettings().loansDisplayed, offers - 1);
        EXPECT_GE(RowCount(), offers);
        if (offers > 1) {
            EXPECT_EQ(RowsInView(), offers);
        }
        m_commands.reset();
        Shut();
    }
}

TEST_F(OptionsOfTheWindow, PictureIsKeptShownAndDropped) {
    const QString path = m_folder.filePath(u"tile.bmp"_s);
    QImage tile(8, 8, QImage::Format_RGB32);
    tile.fill(qRgb(10, 200, 30));
    ASSERT_TRUE(tile.save(path));
    OpenWindow();
    m_pictures.answer = path;
    Change([](const frmOptions& options) {
        Child<QAbstractButton>(options, u"cmdWallpaper").click();
    });
    EXPECT_EQ(StoredText("Wallpaper"), path);
    EXPECT_EQ(StoredText("WallpaperDirectory"), m_folder.path() + u'/');
    EXPECT_EQ(Window().grab().toImage().pixelColor(3, Window().height() / 2), qRgb(10, 200, 30));
    Change([](const frmOptions& options) { SetText(options, u"txtWallpaper", u""); });
    EXPECT_EQ(StoredText("Wallpaper"), u"(absent)") << "deleted rather than empty";
    EXPECT_EQ(StoredText("WallpaperDirectory"), m_folder.path() + u'/');
    EXPECT_NE(Window().grab().toImage().pixelColor(3, Window().height() / 2), qRgb(10, 200, 30));
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(OptionsOfTheWindow, PictureThatCannotBeLoadedIsReportedAndForgotten) {
    OpenWindow();
    Change([](const frmOptions& options) { SetText(options, u"txtWallpaper", u"/no/such.bmp"); });
    EXPECT_EQ(SettledMessages(),
              QStringList(u"This background picture could not be loaded: /no/such.bmp"_s));
    EXPECT_EQ(Window().GetSettings().wallpaper, u"");
    EXPECT_EQ(StoredText("Wallpaper"), u"(absent)") << "tried before it is stored";
    Options([](const frmOptions& options) {
        EXPECT_EQ(Child<QLineEdit>(options, u"txtWallpaper").text(), u"");
    });
}

TEST_F(OptionsOfTheWindow, CancelChangesNothingButKeepsTheSettings) {
    OpenWindow({.language = Spanish, .termInMonths = true, .loansDisplayed = 2});
    Fill(u"txtLoanTerm", u"30");
    EXPECT_TRUE(Options([](frmOptions& options) {
        SetText(options, u"txtLoans", u"9");
        Child<QRadioButton>(options, u"optTerm(1)").click();
        SetText(options, u"txtWallpaper", u"/no/such.bmp");
        Child<QPushButton>(options, u"CancelButton").click();
    }));
    EXPECT_EQ(Text(u"txtLoanTerm"), u"30");
    EXPECT_TRUE(Window().GetSettings().termInMonths);
    EXPECT_EQ(Stored("LoansDisplayed"), 3);
    EXPECT_EQ(Stored("TermInMonths"), -1);
    EXPECT_EQ(Stored("CurrentLanguage"), Spanish);
    EXPECT_EQ(StoredText("Wallpaper"), u"(absent)");
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(OptionsOfTheWindow, FieldBeingEditedIsStoredFirst) {
    OpenWindow();
    Enter(u"txtLoanTerm");
    Type(u"30");
    Change([](const frmOptions& options) {
        EXPECT_TRUE(WaitFor([] { return FocusName() == u"udLoans"; })) << FocusName().toStdString();
        Child<QRadioButton>(options, u"optTerm(0)").click();
    });
    EXPECT_EQ(Text(u"txtLoanTerm"), u"360");
    EXPECT_EQ(FocusName(), u"txtLoanTerm");
}

TEST_F(OptionsOfTheWindow, RefusedFieldStopsTheCommand) {
    OpenWindow();
    Enter(u"txtLoanAmount");
    Paste(u"abc");
    EXPECT_FALSE(Options([](frmOptions&) {}));
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_EQ(FocusName(), u"txtLoanAmount");
    EXPECT_EQ(Stored("LoansDisplayed"), -99) << "nothing is written";
}

TEST_F(OptionsOfTheWindow, RefusalIsShownOverTheDialog) {
    OpenWindow();
    EXPECT_TRUE(Options([&](frmOptions& options) {
        SetText(options, u"txtLoans", u"16");
        Child<QPushButton>(options, u"OKButton").click();
        EXPECT_EQ(SettledMessages(), QStringList(RefusedInEnglish));
        EXPECT_TRUE(options.isVisible());
    }));
    EXPECT_EQ(Window().GetSettings().loansDisplayed, 5);
}

} // namespace
