// Reading the help: contents, pages, sections, and what screen readers report.

#include "HelpFixture.h"
#include "HelpView.h"
#include "QuendNames.h"

#include <QAccessible>
#include <QItemSelectionModel>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTextDocument>
#include <QTextFrame>
#include <QTreeView>
#include <QWindow>

#include <cstdlib>

namespace {

class HelpRead : public HelpTest, public ::testing::WithParamInterface<int> {
protected:
    void SetUp() override {
        OpenWithHelp({.language = GetParam()});
        Entry(QStringLiteral("mnuHelpContents")).trigger();
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, HelpRead, ::testing::Values(English, Spanish),
                         [](const auto& language) {
                             return language.param == English ? "English" : "Spanish";
                         });

/// Help, Contents returns to the first page from anywhere.
TEST_P(HelpRead, ContentsShowsTheFirstPage) {
    Entry(QStringLiteral("mnuHelpSearch")).trigger();
    InHelp<HelpView>(QStringLiteral("txtPage")).setSource(QUrl(QStringLiteral("escrow.html")));
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    EXPECT_EQ(PageInView(), u"welcome.html");
    EXPECT_EQ(InHelp<QTabWidget>(QStringLiteral("tabHelp")).currentIndex(), 0);
}

TEST_P(HelpRead, ContentsFollowThePage) {
    const auto& contents = InHelp<QTreeView>(QStringLiteral("treContents"));
    auto& view = InHelp<HelpView>(QStringLiteral("txtPage"));
    const auto marked = [&] { return contents.currentIndex().data().toString(); };
    ASSERT_TRUE(WaitFor([&] { return marked() == Help().windowTitle(); })) << "the first page";
    for (const char* page : {"escrow.html", "wanted.html", "dialogs.html#t2040", "words.html"}) {
        view.setSource(QUrl(QString::fromLatin1(page)));
        EXPECT_EQ(marked(), view.documentTitle());
        EXPECT_TRUE(contents.selectionModel()->isSelected(contents.currentIndex()));
    }
    InHelp<QPushButton>(QStringLiteral("cmdBack")).click();
    EXPECT_EQ(PageInView(), u"dialogs.html#t2040");
    EXPECT_EQ(marked(), view.documentTitle());
}

/// Two chapters lead to one page: the chapter that the user selected stays marked.
TEST_P(HelpRead, ContentsKeepTheMarkOfTheUser) {
    auto& contents = InHelp<QTreeView>(QStringLiteral("treContents"));
    ASSERT_TRUE(WaitFor([&] { return contents.model()->rowCount() == 1; }));
    const QModelIndex fields = contents.model()->index(12, 0, contents.model()->index(0, 0));
    contents.setCurrentIndex(fields);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Help()));
    QTest::keyClick(Help().windowHandle(), Qt::Key_Return);
    EXPECT_EQ(PageInView(), u"wanted.html");
    EXPECT_EQ(contents.currentIndex(), fields);
}

/// Without extra space below it, the last section of a page could not scroll to the top.
TEST_P(HelpRead, TheSectionAskedForIsAtTheTop) {
    auto& view = InHelp<HelpView>(QStringLiteral("txtPage"));
    for (const char* page :
         {"dialogs.html#t2040", "menus.html#t1100", "menus.html#t1123", "offers.html#t1041",
          "current.html#t1022", "wanted.html#t1052", "results.html#last"}) {
        SCOPED_TRACE(page);
        Help().resize(700, 600);
        view.setSource(QUrl(QString::fromLatin1(page)));
        EXPECT_LE(std::abs(TopOfSection()), 2);
        for (const QSize& size : {QSize(1'200, 900), QSize(400, 300)}) {
            Help().resize(size);
            Settle();
            EXPECT_LE(std::abs(TopOfSection()), 2) << size.width();
        }
        view.zoomIn(3);
        EXPECT_LE(std::abs(TopOfSection()), 2) << "in larger type";
        view.zoomOut(3);
    }
}

/// The extra space below a page is only for its sections; a whole page ends with its text.
TEST_P(HelpRead, PagesEndWithTheirText) {
    auto& view = InHelp<HelpView>(QStringLiteral("txtPage"));
    const auto below = [&] { return view.document()->rootFrame()->frameFormat().bottomMargin(); };
    const double margin = below();
    view.setSource(QUrl(QStringLiteral("dialogs.html#t2040")));
    EXPECT_GT(below(), margin);
    view.setSource(QUrl(QStringLiteral("dialogs.html")));
    EXPECT_EQ(below(), margin);
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}

/// A view that the user has scrolled stays at the beginning or end of its text.
TEST_P(HelpRead, ScrolledViewsDoNotGoBackToTheSection) {
    auto& view = InHelp<HelpView>(QStringLiteral("txtPage"));
    view.setSource(QUrl(QStringLiteral("dialogs.html#t2031")));
    view.verticalScrollBar()->setValue(0);
    Help().resize(500, 500);
    Settle();
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}

TEST_P(HelpRead, AccessKeysOfTheSidesLeadTheKeyboardThere) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Help()));
    const auto& tabs = InHelp<QTabWidget>(QStringLiteral("tabHelp"));
    struct Case {
        int tab;
        QStringView control;
    };
    // Also where the tab is already open.
    for (const Case& tested :
         {Case{1, u"txtKeyword"}, Case{2, u"txtWords"}, Case{0, u"treContents"},
          Case{0, u"treContents"}, Case{2, u"txtWords"}}) {
        InHelp<HelpView>(QStringLiteral("txtPage")).setFocus();
        const QKeyCombination key = QKeySequence::mnemonic(tabs.tabText(tested.tab))[0];
        QTest::keyClick(Help().windowHandle(), key.key(), key.keyboardModifiers());
        EXPECT_TRUE(WaitFor([&] { return FocusName() == tested.control; }))
            << FocusName().toStdString() << " instead of "
            << tested.control.toString().toStdString();
        EXPECT_EQ(tabs.currentIndex(), tested.tab);
    }
}

TEST_P(HelpRead, ScreenReadersHearAWindowADocumentAndNoHeading) {
    const auto heard = [](QWidget& control) {
        return QAccessible::queryAccessibleInterface(&control);
    };
    EXPECT_EQ(heard(Help())->role(), QAccessible::Window);
    EXPECT_EQ(heard(Help())->text(QAccessible::Name), Help().windowTitle());

    auto& contents = InHelp<QTreeView>(QStringLiteral("treContents"));
    ASSERT_TRUE(WaitFor([&] { return contents.model()->rowCount() == 1; }));
    const QAccessibleInterface* tree = heard(contents);
    for (int child = 0; child < tree->childCount(); ++child) {
        const QAccessibleInterface* part = tree->child(child);
        EXPECT_EQ(part->role() == QAccessible::ColumnHeader,
                  part->text(QAccessible::Name).isEmpty())
            << part->text(QAccessible::Name).toStdString();
    }
}

/// A screen reader that reads a page line by line misses nothing.
TEST_P(HelpRead, ScreenReadersReadThePage) {
    auto& view = InHelp<HelpView>(QStringLiteral("txtPage"));
    auto* page = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(page->role(), QAccessible::Document);
    EXPECT_NE(page->text(QAccessible::Name), QString());
    EXPECT_TRUE(page->state().readOnly);
    auto* text = page->textInterface();
    ASSERT_NE(text, nullptr);
    const QString all = view.toPlainText();
    ASSERT_EQ(text->characterCount(), all.size());
    EXPECT_EQ(text->text(0, text->characterCount()), all);

    int start = 0;
    int end = 0;
    QString read = text->textAtOffset(0, QAccessible::LineBoundary, &start, &end);
    EXPECT_TRUE(view.documentTitle().startsWith(read)) << read.toStdString();
    int lines = 1;
    for (; end < text->characterCount(); ++lines) {
        const int before = end;
        read += text->textAfterOffset(start, QAccessible::LineBoundary, &start, &end);
        ASSERT_GT(end, before);
        int back = 0;
        int backEnd = 0;
        text->textBeforeOffset(start, QAccessible::LineBoundary, &back, &backEnd);
        EXPECT_EQ(backEnd, before);
    }
    EXPECT_GT(lines, 10);
    EXPECT_EQ(QString(read).remove(u' ').remove(u'\n'), QString(all).remove(u' ').remove(u'\n'));

    const QRect letter = text->characterRect(3);
    EXPECT_EQ(text->offsetAtPoint(letter.center() - QPoint(letter.width() / 4, 0)), 3);
    text->addSelection(0, 4);
    EXPECT_EQ(view.textCursor().selectedText(), all.left(4));
    text->removeSelection(0);
    EXPECT_EQ(text->selectionCount(), 0);
}

} // namespace
