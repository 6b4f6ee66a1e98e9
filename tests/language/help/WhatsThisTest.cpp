#include "HelpFixture.h"
#include "HelpTopic.h"
#include "QuendNames.h"
#include "WhatsThisMode.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QWhatsThis>
#include <QWindow>

#include <optional>
#include <vector>

namespace {

/// The mode without its answers: records which topic was asked about.
class WhatsThis : public HelpTest {
protected:
    void SetUp() override {
        Open();
        QObject::connect(&m_mode, &WhatsThisMode::Asked, &Window(),
                         [this](int topic) { m_asked = topic; });
    }

    QMenu& Menu(const char* name) { return *Window().findChild<QMenu*>(QString::fromLatin1(name)); }
    void ClickTitle(const QMenu& menu) {
        const QMenuBar& bar = *Window().menuBar();
        Click(bar, bar.actionGeometry(menu.menuAction()).center());
    }
    static void ClickEntry(const QMenu& menu, QAction& entry) {
        QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          menu.actionGeometry(&entry).center());
    }
    std::optional<int> Asked() { return std::exchange(m_asked, std::nullopt); }

    WhatsThisMode m_mode;

private:
    std::optional<int> m_asked;
};

/// Every control with a topic, including read-only and disabled ones, headings and captions.
TEST_F(WhatsThis, EveryControlIsAskedAboutAndDoesNothing) {
    Control(u"txtLoanTerm").setFocus();
    int asked = 0;
    for (QWidget* control : Window().centralWidget()->findChildren<QWidget*>()) {
        const int topic = control->property("helpTopic").toInt();
        if (topic == 0 || !control->isVisible()) {
            continue;
        }
        SCOPED_TRACE(control->objectName().toStdString());
        m_mode.Begin();
        Click(*control);
        EXPECT_EQ(Asked(), topic);
        EXPECT_FALSE(m_mode.IsOn());
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_EQ(FocusName(), u"txtLoanTerm");
        ++asked;
    }
    EXPECT_GT(asked, 90);
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_EQ(SettledMessages(), QStringList());
}

TEST_F(WhatsThis, ClickIsNoClickForTheControl) {
    Control(u"txtLoanTerm").setFocus();
    m_mode.Begin();
    Click(u"chkPoints(0)");
    EXPECT_FALSE(Get<QAbstractButton>(u"chkPoints(0)").isChecked());
    Click(u"chkPoints(0)"); // the next click works as usual
    EXPECT_TRUE(Get<QAbstractButton>(u"chkPoints(0)").isChecked());
}

/// Even a field with a text that would be refused is not left.
TEST_F(WhatsThis, NoFieldIsLeft) {
    Enter(u"txtLoanAmount");
    Type(u"1.2.3");
    m_mode.Begin();
    Click(u"txtLoanTerm");
    EXPECT_EQ(Asked(), 1004);
    EXPECT_EQ(FocusName(), u"txtLoanAmount");
    EXPECT_EQ(SettledMessages(), QStringList());
    EXPECT_EQ(Text(u"txtLoanAmount"), u"1.2.3");
}

TEST_F(WhatsThis, MenusOpenAndTheirEntriesAreAskedAbout) {
    for (QMenu* menu : {&Menu("mnuFile"), &Menu("mnuTools"), &Menu("mnuHelp")}) {
        for (QAction* entry : menu->actions()) {
            if (entry->isSeparator() || entry->menu() || !entry->isVisible()) {
                continue;
            }
            SCOPED_TRACE(entry->objectName().toStdString());
            bool triggered = false;
            const auto watch =
                QObject::connect(entry, &QAction::triggered, &Window(), [&] { triggered = true; });
            m_mode.Begin();
            ClickTitle(*menu);
            ASSERT_TRUE(WaitFor([&] { return menu->isVisible(); }));
            EXPECT_TRUE(m_mode.IsOn());
            ClickEntry(*menu, *entry);
            EXPECT_EQ(Asked(), entry->property("helpTopic").toInt());
            EXPECT_FALSE(menu->isVisible());
            EXPECT_FALSE(triggered);
            QObject::disconnect(watch);
        }
    }
    EXPECT_TRUE(Window().isVisible()); // the click on File, Exit only asked about it
}

TEST_F(WhatsThis, NameOfAnOpenMenuIsAskedAbout) {
    m_mode.Begin();
    ClickTitle(Menu("mnuTools"));
    ASSERT_TRUE(WaitFor([&] { return Menu("mnuTools").isVisible(); }));
    ClickTitle(Menu("mnuTools"));
    EXPECT_EQ(Asked(), 1110);
    EXPECT_FALSE(Menu("mnuTools").isVisible());
}

TEST_F(WhatsThis, KeysAskAboutEntriesAndButtons) {
    Entry(QStringLiteral("mnuFileNew")).setEnabled(true);
    bool triggered = false;
    QObject::connect(&Entry(QStringLiteral("mnuFileNew")), &QAction::triggered, &Window(),
                     [&] { triggered = true; });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_N}) {
        m_mode.Begin();
        ClickTitle(Menu("mnuFile"));
        ASSERT_TRUE(WaitFor([&] { return Menu("mnuFile").isVisible(); }));
        Menu("mnuFile").setActiveAction(&Entry(QStringLiteral("mnuFileNew")));
        Press(key);
        EXPECT_EQ(Asked(), 1101);
    }
    m_mode.Begin();
    Press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Asked(), 1101);
    m_mode.Begin();
    Control(u"chkPoints(1)").setFocus();
    Press(Qt::Key_Space);
    EXPECT_EQ(Asked(), 1031);
    EXPECT_FALSE(Get<QAbstractButton>(u"chkPoints(1)").isChecked());
    EXPECT_FALSE(triggered);
}

TEST_F(WhatsThis, EscapeAndLeavingCallItOff) {
    m_mode.Begin();
    Press(Qt::Key_Escape);
    EXPECT_FALSE(m_mode.IsOn());
    m_mode.Begin();
    QEvent leaves(QEvent::ApplicationDeactivate);
    QApplication::sendEvent(qApp, &leaves);
    EXPECT_FALSE(m_mode.IsOn());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(Asked(), std::nullopt);
}

/// The mode including its answers.
class WhatsThisText : public HelpTest, public ::testing::WithParamInterface<int> {
protected:
    void SetUp() override { OpenWithHelp({.language = GetParam()}); }
};

INSTANTIATE_TEST_SUITE_P(Languages, WhatsThisText, ::testing::Values(English, Spanish),
                         [](const auto& language) {
                             return language.param == English ? "English" : "Spanish";
                         });

TEST_P(WhatsThisText, ButtonAsksAndTheNextClickIsAnswered) {
    for (const QStringView control :
         {u"txtLoanAmount", u"txtMonthlyEscrow", u"cmdPayoffDate", u"lblPoints", u"vsbLoans"}) {
        SCOPED_TRACE(control.toString().toStdString());
        Click(u"cmdWhatsThis");
        EXPECT_TRUE(IsAsking());
        Click(control);
        ASSERT_TRUE(WaitFor([] { return WhatsThisPopup() != nullptr; }));
        EXPECT_FALSE(IsAsking());
        Press(Qt::Key_Escape);
        EXPECT_TRUE(WaitFor([] { return WhatsThisPopup() == nullptr; }));
    }
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_FALSE(HelpShows());
    EXPECT_EQ(SettledMessages(), QStringList());
}

TEST_P(WhatsThisText, LinkInItOpensThePage) {
    Press(Qt::Key_F1, Qt::ShiftModifier);
    Click(u"txtPoints(0)");
    ASSERT_TRUE(WaitFor([] { return WhatsThisPopup() != nullptr; }));
    QWhatsThisClickedEvent click(QStringLiteral("points.html"));
    QApplication::sendEvent(&Window(), &click);
    EXPECT_EQ(PageInView(), u"points.html");
    EXPECT_TRUE(WaitFor([] { return WhatsThisPopup() == nullptr; }));
}

/// Controls that are created together with a row also have topics.
TEST_P(WhatsThisText, EveryControlOfTheWindowHasATopic) {
    for (const QWidget* control : Window().centralWidget()->findChildren<QWidget*>()) {
        EXPECT_NE(TopicOf(control), 0) << control->objectName().toStdString();
    }
    for (const QAction* entry : Window().findChildren<QAction*>()) {
        if (!entry->isSeparator() && !entry->text().isEmpty()) {
            EXPECT_NE(TopicOf(entry), 0) << entry->text().toStdString();
        }
    }
}

} // namespace
