#include "HelpWindow.h"
#include "HelpFixture.h"
#include "HelpView.h"
#include "Language.h"
#include "QuendNames.h"

#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCursor>
#include <QTreeView>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace {

class HelpShown : public HelpTest, public ::testing::WithParamInterface<int> {
protected:
    void SetUp() override { OpenWithHelp({.language = GetParam()}); }

    void Press(const QWidget& window, Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(window.windowHandle(), key, with);
    }
    /// Searches for words like a user, and waits for the result.
    void Search(const QString& words) {
        Entry(QStringLiteral("mnuHelpSearch")).trigger();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Help()));
        InHelp<QLineEdit>(QStringLiteral("txtWords")).setText(words);
        InHelp<QListWidget>(QStringLiteral("lstFound")).clear();
        InHelp<QLabel>(QStringLiteral("lblNotFound")).hide();
        Press(Help(), Qt::Key_Return);
        EXPECT_TRUE(WaitFor([this] {
            return InHelp<QListWidget>(QStringLiteral("lstFound")).count() > 0 ||
                   InHelp<QLabel>(QStringLiteral("lblNotFound")).isVisible();
        })) << words.toStdString();
    }
    QStringList Found() {
        QStringList titles;
        const auto& found = InHelp<QListWidget>(QStringLiteral("lstFound"));
        for (int row = 0; row < found.count(); ++row) {
            titles.append(found.item(row)->text());
        }
        return titles;
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, HelpShown, ::testing::Values(English, Spanish),
                         [](const auto& language) {
                             return language.param == English ? "English" : "Spanish";
                         });

TEST_P(HelpShown, OpensOnContentsAtItsPlace) {
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    ASSERT_TRUE(HelpShows());
    EXPECT_EQ(Help().frameGeometry(), HelpPlace{}.On(Window().screen()->geometry()));
    EXPECT_EQ(InHelp<QTabWidget>(QStringLiteral("tabHelp")).currentIndex(), 0);
    EXPECT_EQ(PageInView(), u"welcome.html");
    EXPECT_TRUE(Window().isVisible());
    EXPECT_FALSE(Help().testAttribute(Qt::WA_QuitOnClose));
    auto* contents = InHelp<QTreeView>(QStringLiteral("treContents")).model();
    ASSERT_TRUE(WaitFor([&] { return contents->rowCount() == 1; }));
    EXPECT_EQ(contents->rowCount(contents->index(0, 0)), 14);
}

/// Where even half of the window is too narrow for a title, the user can scroll to its end.
TEST_P(HelpShown, TitlesOfTheContentsAreNotCut) {
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    auto& contents = InHelp<QTreeView>(QStringLiteral("treContents"));
    ASSERT_TRUE(WaitFor([&] { return contents.model()->rowCount() == 1; }));
    Settle();
    int needed = 0;
    for (auto index = contents.model()->index(0, 0); index.isValid();
         index = contents.indexBelow(index)) {
        needed = std::max(needed,
                          contents.visualRect(index).x() + contents.horizontalScrollBar()->value() +
                              contents.fontMetrics().horizontalAdvance(index.data().toString()));
    }
    for (const int width : {300, 500, 900, 2'000}) {
        Help().resize(width, 500);
        Settle();
        const int shown = contents.viewport()->width() + contents.horizontalScrollBar()->maximum();
        EXPECT_GE(shown, needed) << width;
    }
    EXPECT_EQ(contents.horizontalScrollBar()->maximum(), 0) << "in a wide window all is in view";
}

TEST_P(HelpShown, StaysWhereTheUserPutsIt) {
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    const QRect place(30, 40, 500, 400);
    Help().setGeometry(place);
    Help().close();
    Entry(QStringLiteral("mnuHelpSearch")).trigger();
    EXPECT_EQ(Help().geometry(), place);
}

TEST_P(HelpShown, ContentsLeadToTheirPages) {
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    auto& contents = InHelp<QTreeView>(QStringLiteral("treContents"));
    ASSERT_TRUE(WaitFor([&] { return contents.model()->rowCount() == 1; }));
    contents.setCurrentIndex(contents.model()->index(0, 0, contents.model()->index(0, 0)));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Help()));
    Press(Help(), Qt::Key_Return);
    EXPECT_EQ(PageInView(), u"firststeps.html");
    const QString text = InHelp<HelpView>(QStringLiteral("txtPage")).toPlainText();
    EXPECT_TRUE(text.contains(QStringLiteral("$1,264.14")));
    EXPECT_TRUE(InHelp<QPushButton>(QStringLiteral("cmdBack")).isEnabled());
    InHelp<QPushButton>(QStringLiteral("cmdBack")).click();
    EXPECT_EQ(PageInView(), u"welcome.html");
}

TEST_P(HelpShown, PicturesShow) {
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    auto& view = InHelp<HelpView>(QStringLiteral("txtPage"));
    Help().resize(800, 600);
    Settle();
    view.setSource(Help().PageInView().resolved(QUrl(QStringLiteral("firststeps.html"))));
    const auto picture =
        view.loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("pictures/loan.png")));
    ASSERT_FALSE(picture.value<QImage>().isNull());
    EXPECT_LE(picture.value<QImage>().deviceIndependentSize().width(), view.viewport()->width());
}

/// The contrast ratio of two colours, from 1 to 21.
double Contrast(const QColor& one, const QColor& other) {
    const auto light = [](const QColor& colour) {
        const auto part = [](int level) {
            const double value = level / 255.0;
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.red()) + 0.7152 * part(colour.green()) +
               0.0722 * part(colour.blue()) + 0.05;
    };
    return std::max(light(one), light(other)) / std::min(light(one), light(other));
}

TEST_P(HelpShown, LinksCanBeReadInAnyPalette) {
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    auto& view = InHelp<HelpView>(QStringLiteral("txtPage"));
    for (const QColor& window : {QColor(239, 239, 239), QColor(38, 38, 42), QColor(0, 0, 0)}) {
        QPalette palette(window);
        palette.setColor(QPalette::Link, Qt::blue);
        view.setPalette(palette);
        Settle();
        QTextCursor link(view.document());
        while (!link.charFormat().isAnchor() && link.movePosition(QTextCursor::NextCharacter)) {
        }
        ASSERT_TRUE(link.charFormat().isAnchor());
        EXPECT_GE(Contrast(link.charFormat().foreground().color(), palette.color(QPalette::Base)),
                  4.5)
            << window.name().toStdString();
    }
}

TEST_P(HelpShown, SearchFindsWholeAndBegunWords) {
    struct Case {
        const char* english;
        const char* spanish;
        const char* page; ///< null: found, but on no particular page
    };
    for (const Case& tested :
         {Case{"refinancing", "refinanciar", "refinance.html"},
          Case{"refinan", "refinan", "refinance.html"},
          Case{"POINTS closing", "puntos liquidado", nullptr},
          Case{"escrow", "garantia", "escrow.html"}, Case{"xylophone", "xilófono", ""},
          Case{"escrow xylophone", "garantía xilófono", ""},
          // Operators of the search engine count as words.
          Case{"AND", "OR", nullptr}, Case{"escrow AND", "garantia OR", nullptr},
          Case{"NOT escrow", "garantia NOT", nullptr}, Case{"OR OR", "OR OR", nullptr},
          Case{"NEAR", "OR", nullptr}, Case{"escrow NOT escrow", "garantia NOT", nullptr},
          Case{"\"escrow", "\"garantia", "escrow.html"},
          Case{"escrow_insurance", "garantia_seguro", "escrow.html"}}) {
        const char* words = GetParam() == English ? tested.english : tested.spanish;
        SCOPED_TRACE(words);
        Search(QString::fromUtf8(words));
        const bool none = tested.page != nullptr && *tested.page == '\0';
        EXPECT_EQ(Found().isEmpty(), none);
        EXPECT_EQ(InHelp<QLabel>(QStringLiteral("lblNotFound")).isVisible(), none);
        bool seen = tested.page == nullptr || none;
        auto& found = InHelp<QListWidget>(QStringLiteral("lstFound"));
        for (int row = 0; row < found.count() && !seen; ++row) {
            found.setCurrentRow(row);
            seen = PageInView() == QString::fromLatin1(tested.page);
        }
        EXPECT_TRUE(seen);
    }
}

/// Users do not know the syntax of the search engine, so it causes no error.
TEST_P(HelpShown, SearchBearsAnyCharacters) {
    for (const char* words : {"\"points", "points AND (", "puntos* OR 'x", "a:b", "^$-+%_"}) {
        Entry(QStringLiteral("mnuHelpSearch")).trigger();
        InHelp<QLineEdit>(QStringLiteral("txtWords")).setText(QString::fromLatin1(words));
        InHelp<QPushButton>(QStringLiteral("cmdFind")).click();
        Settle();
        EXPECT_EQ(SettledMessages(), QStringList()) << words;
    }
}

TEST_P(HelpShown, SearchOpensReadyToType) {
    Entry(QStringLiteral("mnuHelpSearch")).trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Help()));
    EXPECT_EQ(InHelp<QTabWidget>(QStringLiteral("tabHelp")).currentIndex(), 2);
    EXPECT_EQ(FocusName(), u"txtWords");
    EXPECT_EQ(InHelp<QLineEdit>(QStringLiteral("txtWords")).text(), QString());
}

/// The previous words or results would answer a different question.
TEST_P(HelpShown, SearchStartsEmptyEachTime) {
    for (const char* words : {"loan", "xylophone"}) {
        Search(QString::fromLatin1(words));
        Entry(QStringLiteral("mnuHelpSearch")).trigger();
        EXPECT_EQ(InHelp<QLineEdit>(QStringLiteral("txtWords")).text(), QString());
        EXPECT_EQ(Found(), QStringList());
        EXPECT_FALSE(InHelp<QLabel>(QStringLiteral("lblNotFound")).isVisible());
    }
    // A late result is discarded as well.
    InHelp<QLineEdit>(QStringLiteral("txtWords")).setText(QStringLiteral("loan"));
    InHelp<QPushButton>(QStringLiteral("cmdFind")).click();
    Entry(QStringLiteral("mnuHelpSearch")).trigger();
    Settle();
    EXPECT_EQ(Found(), QStringList());
}

TEST_P(HelpShown, IndexFindsByPartOfAKeyword) {
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    auto* keywords = InHelp<QListView>(QStringLiteral("lstIndex")).model();
    ASSERT_TRUE(WaitFor([&] { return keywords->rowCount() >= 50; }));
    EXPECT_NE(keywords->index(0, 0).data().toString(), QString());
    InHelp<QTabWidget>(QStringLiteral("tabHelp")).setCurrentIndex(1);
    auto& keyword = InHelp<QLineEdit>(QStringLiteral("txtKeyword"));
    keyword.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Help()));
    QTest::keyClicks(&keyword,
                     GetParam() == English ? QStringLiteral("ESCR") : QStringLiteral("ESCR"));
    ASSERT_EQ(keywords->rowCount(), 1);
    Press(Help(), Qt::Key_Return);
    EXPECT_EQ(PageInView(), u"escrow.html");
}

TEST_P(HelpShown, EscapeClosesIt) {
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Help()));
    Press(Help(), Qt::Key_Escape);
    EXPECT_FALSE(Help().isVisible());
    EXPECT_TRUE(Window().isVisible());
}

TEST_P(HelpShown, NothingIsCutOffAndAccessKeysAreClear) {
    Entry(QStringLiteral("mnuHelpSearch")).trigger();
    Settle();
    QStringList keys;
    const auto& tabs = InHelp<QTabWidget>(QStringLiteral("tabHelp"));
    for (int tab = 0; tab < tabs.count(); ++tab) {
        keys.append(QKeySequence::mnemonic(tabs.tabText(tab)).toString());
        EXPECT_FALSE(tabs.tabText(tab).isEmpty());
    }
    for (const QWidget* control : Help().findChildren<QWidget*>()) {
        const QString text = control->property("text").toString();
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty()) {
            keys.append(key.toString());
        }
        if (control->isVisible() && qobject_cast<const QPushButton*>(control)) {
            EXPECT_GE(control->width(), control->minimumSizeHint().width()) << text.toStdString();
        }
    }
    EXPECT_EQ(keys.size(), 8);
    keys.removeDuplicates();
    EXPECT_EQ(keys.size(), 8) << keys.join(u' ').toStdString();
}

using HelpLanguage = HelpTest;

TEST_F(HelpLanguage, FollowsASwitchOnTheSamePage) {
    OpenWithHelp();
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    InHelp<HelpView>(QStringLiteral("txtPage")).setSource(QUrl(QStringLiteral("escrow.html")));
    EXPECT_EQ(Help().windowTitle(), u"Quend Loan Help");
    SwitchLanguage(Spanish);
    Settle();
    EXPECT_EQ(Help().windowTitle(), u"Ayuda de Quend Loan");
    EXPECT_EQ(PageInView(), u"escrow.html");
    EXPECT_EQ(InHelp<QTabWidget>(QStringLiteral("tabHelp")).tabText(0), u"&Contenido");
    const auto text = [this] { return InHelp<HelpView>(QStringLiteral("txtPage")).toPlainText(); };
    EXPECT_TRUE(text().startsWith(u"La cuenta de garantía"));
    const auto& contents = InHelp<QTreeView>(QStringLiteral("treContents"));
    EXPECT_TRUE(WaitFor(
        [&] { return text().startsWith(contents.currentIndex().data().toString() + u'\n'); }));
    SwitchLanguage(English);
    Settle();
    EXPECT_TRUE(text().startsWith(u"Escrow"));
}

TEST_F(HelpLanguage, SwitchOpensNoHelp) {
    OpenWithHelp();
    SwitchLanguage(Spanish);
    Settle();
    EXPECT_FALSE(HelpShows());
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    Help().close();
    SwitchLanguage(English);
    Settle();
    EXPECT_FALSE(HelpShows());
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    EXPECT_EQ(Help().windowTitle(), u"Quend Loan Help");
}

using HelpMissing = HelpTest;

TEST_F(HelpMissing, IsReportedByItsMessageAndChangesNothing) {
    const QTemporaryDir folder;
    OpenBesides(folder.path());
    Fill(u"txtLoanAmount", u"1000");
    for (const char* entry : {"mnuHelpContents", "mnuHelpSearch"}) {
        Messages().Clear();
        Entry(QString::fromLatin1(entry)).trigger();
        ASSERT_EQ(SettledMessages().size(), 1) << entry;
        EXPECT_TRUE(Messages().Texts().front().contains(folder.path()));
        EXPECT_FALSE(Messages().Texts().front().contains(u"errn="));
        EXPECT_FALSE(HelpShows());
    }
    Messages().Clear();
    Press(Qt::Key_F1);
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_EQ(Text(u"txtLoanAmount"), u"$1,000.00");
    EXPECT_EQ(FocusName(), u"txtLoanTerm");
}

/// The Spanish file is damaged: the open page stays, in its language.
TEST_F(HelpMissing, InTheOtherLanguageLeavesWhatIsOpen) {
    const QTemporaryDir folder;
    QFile::link(QStringLiteral(QUEND_PROGRAM_DIR "/loan000.hlp"),
                folder.filePath(QStringLiteral("loan000.hlp")));
    QFile damaged(folder.filePath(QStringLiteral("loan40a.hlp")));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("no help");
    damaged.close();
    OpenBesides(folder.path());
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    SwitchLanguage(Spanish);
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_TRUE(HelpShows());
    EXPECT_EQ(Help().windowTitle(), u"Quend Loan Help");
    EXPECT_EQ(Window().menuBar()->actions().front()->text(), u"&Archivo");
}

} // namespace
