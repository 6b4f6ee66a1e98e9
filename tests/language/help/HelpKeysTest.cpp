#include "HelpFixture.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <cstdlib>

namespace {

using HelpKey = HelpTest;

TEST_F(HelpKey, F1OpensTheTopicOfTheControlWithTheFocus) {
    struct Case {
        QStringView control;
        QStringView page;
    };
    OpenWithHelp();
    for (const Case& tested :
         {Case{u"cboLoanName", u"wanted.html#t1001"}, Case{u"txtLoanAmount", u"wanted.html#t1003"},
          Case{u"txtAnnualTaxes", u"wanted.html#t1005"},
          Case{u"txtCurrentBalance", u"current.html#t1016"},
          Case{u"dtNextPayment", u"current.html#t1019"},
          Case{u"chkPoints(0)", u"offers.html#t1031"},
          Case{u"cboFrequency(2)", u"offers.html#t1034"}, Case{u"txtWho(3)", u"offers.html#t1040"},
          Case{u"cmdWhatsThis", u"wanted.html#t1051"}}) {
        SCOPED_TRACE(tested.control.toString().toStdString());
        Control(tested.control).setFocus();
        Press(Qt::Key_F1);
        EXPECT_EQ(PageInView(), tested.page);
        EXPECT_LE(std::abs(TopOfSection()), 2) << "the topic is at the top";
        ActivateAgain();
        EXPECT_EQ(Control(tested.control).focusWidget(), &Control(tested.control));
    }
    EXPECT_EQ(SettledMessages(), QStringList());
}

/// Reading help while a field is being edited leaves the typed text unchanged.
TEST_F(HelpKey, F1LeavesNoField) {
    OpenWithHelp();
    Enter(u"txtLoanAmount");
    Type(u"12.3.4");
    Press(Qt::Key_F1);
    ASSERT_TRUE(HelpShows());
    EXPECT_EQ(SettledMessages(), QStringList());
    EXPECT_EQ(Text(u"txtLoanAmount"), u"12.3.4");
}

TEST_F(HelpKey, F1InAMenuOpensTheTopicOfTheEntry) {
    OpenWithHelp();
    auto& menu = *Window().findChild<QMenu*>(QStringLiteral("mnuFile"));
    QTest::mouseClick(
        Window().windowHandle(), Qt::LeftButton, Qt::NoModifier,
        PlaceInWindow(*Window().menuBar(),
                      Window().menuBar()->actionGeometry(menu.menuAction()).center()));
    ASSERT_TRUE(WaitFor([&] { return menu.isVisible(); }));
    menu.setActiveAction(&Entry(QStringLiteral("mnuFileExit")));
    Press(Qt::Key_F1);
    EXPECT_EQ(PageInView(), u"menus.html#t1106");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(SettledMessages(), QStringList());
}

TEST_F(HelpKey, F1InAListOpensTheTopicOfTheList) {
    OpenWithHelp();
    List(u"cboLoanType").setFocus();
    List(u"cboLoanType").showPopup();
    ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    Press(Qt::Key_F1);
    EXPECT_EQ(PageInView(), u"wanted.html#t1002");
}

TEST_F(HelpKey, ShiftAndF1BeginsToAskAndOtherModifiersDoNothing) {
    OpenWithHelp();
    for (const Qt::KeyboardModifiers other :
         {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier}) {
        Press(Qt::Key_F1, other);
        EXPECT_FALSE(IsAsking());
        EXPECT_FALSE(HelpShows());
    }
    Press(Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_TRUE(IsAsking());
    EXPECT_FALSE(HelpShows());
    Press(Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_TRUE(IsAsking());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsAsking());
}

/// A dialog blocks all other windows, but its help must remain usable.
TEST_F(HelpKey, F1InADialogOpensAHelpThatCanBeUsed) {
    OpenWithHelp();
    QDialog dialog(&Window());
    QVBoxLayout layout(&dialog);
    QLineEdit edit;
    edit.setProperty("helpTopic", 2001);
    layout.addWidget(&edit);
    dialog.open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    edit.setFocus();
    ASSERT_TRUE(WaitFor([&] { return QApplication::focusWidget() == &edit; }));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_F1);
    EXPECT_EQ(PageInView(), u"dialogs.html#t2001");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Help()));
    QTest::keyClick(Help().windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(HelpShows());
    QTest::keyClick(dialog.windowHandle(), Qt::Key_F1);
    ASSERT_TRUE(HelpShows());
    dialog.reject();
    EXPECT_TRUE(HelpShows());
    Press(Qt::Key_F1);
    EXPECT_TRUE(HelpShows());
    QTest::keyClick(Help().windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(HelpShows());
}

TEST_F(HelpKey, F1InTheHelpExplainsTheHelp) {
    OpenWithHelp();
    Entry(QStringLiteral("mnuHelpContents")).trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Help()));
    QTest::keyClick(Help().windowHandle(), Qt::Key_F1);
    EXPECT_EQ(PageInView(), u"dialogs.html#t2040");
}

} // namespace
