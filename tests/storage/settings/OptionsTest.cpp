// The Options dialog on its own: input, rejected input, result.

#include "CountSpin.h"
#include "OptionsFixture.h"
#include "QuendNames.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/qtestspontaneevent.h>

#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

TEST_F(OptionsDialog, ShowsTheSettings) {
    struct Case {
        Settings settings;
        QStringView offers;
        QStringView selected;
        QStringView picture;
    };
    const std::vector<Case> cases = {
        // last row, months, picture, folder        offers  selected       picture
        {{0, true, u"/x/a.bmp"_s, {}}, u"1", u"optTerm(0)", u"/x/a.bmp"},
        {{14, false, {}, u"/x/"_s}, u"15", u"optTerm(1)", u""},
        {{5, false, {}, {}}, u"6", u"optTerm(1)", u""},
    };
    for (const Case& tested : cases) {
        Open(tested.settings);
        EXPECT_EQ(Text(u"txtLoans"), tested.offers);
        EXPECT_EQ(Get<QRadioButton>(u"optTerm(0)").isChecked(), tested.selected == u"optTerm(0)");
        EXPECT_EQ(Get<QRadioButton>(u"optTerm(1)").isChecked(), tested.selected == u"optTerm(1)");
        EXPECT_EQ(Text(u"txtWallpaper"), tested.picture);
        EXPECT_EQ(FocusName(), u"udLoans");
        EXPECT_EQ(Control(u"txtLoans").accessibleName(), u"Offers displayed");
        EXPECT_TRUE(Control(u"txtLoans").hasFocus());
        EXPECT_EQ(Get<QLineEdit>(u"txtLoans").selectedText(), tested.offers);
    }
}

/// Text typed or pasted over the number, and the result when the field loses focus.
struct Entry {
    QStringView keys;
    QStringView shown;
    bool taken;
};

const std::vector<Entry> TypedEntries = {
    // keys                      shown                     taken
    {u"1", u"1", true},
    {u"15", u"15", true},
    {u"007", u"007", true},
    {u"1x5", u"15", true},
    {u"-3", u"3", true},
    {u"1.5", u"15", true},
    {u"0", u"0", false},
    {u"16", u"16", false},
    {u"00", u"00", false},
    {u"4294967297", u"4294967297", false}, // would be 1 if truncated to 32 bits
    {u"99999999999999999999999", u"99999999999999999999999", false},
    {u"", u"", false},
    {u"abc+-., ", u"", false},
    {u"٣", u"", false}, // a digit of another script
};

TEST_F(OptionsDialog, TakesNumbersFromOneToFifteenAlone) {
    for (const int language : {English, Spanish}) {
        for (const Entry& entry : TypedEntries) {
            SCOPED_TRACE(entry.keys.toString().toStdString());
            m_boxes.Clear();
            Open({}, language);
            TypeInto(u"txtLoans", entry.keys);
            EXPECT_EQ(Text(u"txtLoans"), entry.shown);
            Tab();
            const QString& refusal = language == English ? RefusedInEnglish : RefusedInSpanish;
            EXPECT_EQ(SettledMessages(), entry.taken ? QStringList() : QStringList(refusal));
            EXPECT_EQ(FocusName(), entry.taken ? u"optTerm(1)" : u"udLoans");
            EXPECT_EQ(Text(u"txtLoans"), entry.shown);
            EXPECT_EQ(Get<QLineEdit>(u"txtLoans").selectedText(),
                      entry.taken ? QStringView() : entry.shown);
        }
    }
}

TEST_F(OptionsDialog, PastesDigitsAlone) {
    const std::vector<Entry> entries = {
        // pasted    shown   taken
        {u"12", u"12", true}, {u"0", u"0", false}, {u"abc", u"6", true},  {u"1a", u"6", true},
        {u"-1", u"6", true},  {u" 5", u"6", true}, {u"5\n6", u"6", true}, {u"1e1", u"6", true},
    };
    for (const Entry& entry : entries) {
        SCOPED_TRACE(entry.keys.toString().toStdString());
        m_boxes.Clear();
        Open();
        Press(Qt::Key_A, Qt::ControlModifier);
        Paste(entry.keys);
        EXPECT_EQ(Text(u"txtLoans"), entry.shown);
        Tab();
        EXPECT_EQ(SettledMessages().isEmpty(), entry.taken);
    }
}

TEST_F(OptionsDialog, LetterLeavesTheSelectedNumberSelected) {
    Open();
    Type(u"x");
    EXPECT_EQ(Text(u"txtLoans"), u"6");
    EXPECT_EQ(Get<QLineEdit>(u"txtLoans").selectedText(), u"6");
    Press(Qt::Key_Delete);
    EXPECT_EQ(Text(u"txtLoans"), u"") << "editing keys pass";
}

/// Ways of leaving the field, and their effect if the number were valid.
TEST_F(OptionsDialog, RefusesHoweverTheFieldIsLeft) {
    const std::vector<std::pair<const char*, std::function<void()>>> ways = {
        {"tab key", [this] { Tab(); }},
        {"click on an option", [this] { Click(u"optTerm(0)"); }},
        {"click on the picture's path", [this] { Click(u"txtWallpaper"); }},
        {"click on the picture's button", [this] { Click(u"cmdWallpaper"); }},
        {"click on OK", [this] { Click(u"OKButton"); }},
        {"Return", [this] { Press(Qt::Key_Return); }},
        {"Enter", [this] { Press(Qt::Key_Enter, Qt::KeypadModifier); }},
        {"access key of an option", [this] { Press(Qt::Key_M, Qt::AltModifier); }},
        {"access key of the picture's path", [this] { Press(Qt::Key_F, Qt::AltModifier); }},
    };
    for (const auto& [name, leave] : ways) {
        SCOPED_TRACE(name);
        m_boxes.Clear();
        m_pictures.requests.clear();
        Open();
        TypeInto(u"txtLoans", u"16");
        leave();
        EXPECT_EQ(SettledMessages(), QStringList(RefusedInEnglish));
        EXPECT_TRUE(Dialog().isVisible());
        EXPECT_EQ(FocusName(), u"udLoans");
        EXPECT_EQ(Get<QLineEdit>(u"txtLoans").selectedText(), u"16");
        EXPECT_TRUE(Get<QRadioButton>(u"optTerm(1)").isChecked()) << "nothing else was done";
        EXPECT_TRUE(m_pictures.requests.empty());
        Type(u"8");
        leave();
        EXPECT_EQ(SettledMessages(), QStringList(RefusedInEnglish)) << "and takes the next";
        EXPECT_TRUE(FocusName() != u"udLoans" || !Dialog().isVisible());
    }
}

TEST_F(OptionsDialog, CancelsAlsoWithAWrongNumber) {
    const std::vector<std::pair<const char*, std::function<void()>>> ways = {
        {"click on Cancel", [this] { Click(u"CancelButton"); }},
        {"Escape", [this] { Press(Qt::Key_Escape); }},
        {"the close box", [this] { Dialog().close(); }},
        {"tab key to Cancel",
         [this] {
             Press(Qt::Key_Backtab, Qt::ShiftModifier);
             EXPECT_EQ(FocusName(), u"CancelButton");
             Press(Qt::Key_Space);
         }},
    };
    for (const auto& [name, cancel] : ways) {
        SCOPED_TRACE(name);
        Open({3, false, {}, u"/x/"_s});
        Get<QRadioButton>(u"optTerm(0)").setChecked(true);
        Get<QLineEdit>(u"txtWallpaper").setText(u"/y.bmp"_s);
        TypeInto(u"txtLoans", u"0");
        cancel();
        EXPECT_TRUE(SettledMessages().isEmpty());
        EXPECT_FALSE(Dialog().isVisible());
        EXPECT_EQ(Dialog().result(), QDialog::Rejected);
        EXPECT_EQ(Dialog().Chosen().loansDisplayed, 3);
        EXPECT_FALSE(Dialog().Chosen().termInMonths);
        EXPECT_EQ(Dialog().Chosen().wallpaper, u"");
        EXPECT_EQ(Dialog().Chosen().wallpaperDirectory, u"/x/");
    }
}

TEST_F(OptionsDialog, RefusesOnTheWayOnFromCancel) {
    Open();
    TypeInto(u"txtLoans", u"16");
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(FocusName(), u"CancelButton");
    EXPECT_TRUE(SettledMessages().isEmpty());
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(SettledMessages(), QStringList(RefusedInEnglish));
    EXPECT_EQ(FocusName(), u"udLoans");
}

TEST_F(OptionsDialog, IsClosedUnderItsMessage) {
    Open();
    TypeInto(u"txtLoans", u"16");
    Tab();
    Press(Qt::Key_Escape); // before the message appears
    Open();
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_EQ(Text(u"txtLoans"), u"6");
}

TEST_F(OptionsDialog, StaysInTheFieldForMenusAndOtherWindows) {
    Open();
    TypeInto(u"txtLoans", u"16");
    QWidget& field = Control(u"txtLoans");
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, {}, field.mapToGlobal(QPoint()));
    // The context menu blocks until it is closed.
    bool shown = false;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&] {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            shown = true;
            popup->close();
        }
    });
    closer.start(0);
    QApplication::sendEvent(&field, &menu);
    ASSERT_TRUE(shown);
    closer.stop();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_TRUE(SettledMessages().isEmpty());
    Dialog().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Dialog()));
    EXPECT_TRUE(SettledMessages().isEmpty());
    EXPECT_TRUE(Control(u"txtLoans").hasFocus());
    EXPECT_EQ(Text(u"txtLoans"), u"16");
}

TEST_F(OptionsDialog, SpinKeysStayWithinTheRange) {
    struct Case {
        QStringView text;
        Qt::Key key;
        QStringView after;
    };
    const std::vector<Case> cases = {
        // text          key               after
        {u"6", Qt::Key_Up, u"7"},
        {u"6", Qt::Key_Down, u"5"},
        {u"15", Qt::Key_Up, u"15"},
        {u"1", Qt::Key_Down, u"1"},
        {u"0", Qt::Key_Up, u"1"},
        {u"0", Qt::Key_Down, u"0"},
        {u"16", Qt::Key_Down, u"15"},
        {u"16", Qt::Key_Up, u"16"},
        {u"99999999999", Qt::Key_Down, u"15"},
        {u"", Qt::Key_Up, u"1"},
        {u"6", Qt::Key_PageUp, u"15"},
        {u"6", Qt::Key_PageDown, u"1"},
    };
    Open();
    for (const Case& tested : cases) {
        TypeInto(u"txtLoans", tested.text);
        Press(tested.key);
        EXPECT_EQ(Text(u"txtLoans"), tested.after) << tested.text.toString().toStdString();
    }
}

TEST_F(OptionsDialog, SpinButtonsStepByOne) {
    Open({13, false, {}, {}});
    auto& spin = Get<CountSpin>(u"udLoans");
    EXPECT_EQ(spin.Minimum(), 1);
    EXPECT_EQ(spin.Maximum(), 15);
    const auto click = [&](QStyle::SubControl button) {
        QStyleOptionSpinBox option;
        option.initFrom(&spin);
        option.subControls = QStyle::SC_All;
        const QRect place =
            spin.style()->subControlRect(QStyle::CC_SpinBox, &option, button, &spin);
        QTest::mouseClick(Dialog().windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          spin.mapTo(&Dialog(), place.center()));
        return Text(u"txtLoans");
    };
    EXPECT_EQ(click(QStyle::SC_SpinBoxUp), u"15");
    EXPECT_EQ(click(QStyle::SC_SpinBoxUp), u"15");
    EXPECT_EQ(click(QStyle::SC_SpinBoxDown), u"14");
    EXPECT_EQ(spin.property("value").toInt(), 14) << "what a screen reader says";
}

TEST_F(OptionsDialog, WheelTurnsTheNumberOnlyWhereTheKeyboardIs) {
    Open();
    QWidget& field = Control(u"udLoans");
    const auto wheel = [&] {
        const QPoint at = field.rect().center();
        QWheelEvent event(at, field.mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event); // otherwise it could never move the focus
        qApp->notify(&field, &event);
        return Text(u"txtLoans");
    };
    EXPECT_TRUE(field.hasFocus()) << FocusName().toStdString();
    EXPECT_EQ(wheel(), u"7");
    Tab();
    EXPECT_EQ(wheel(), u"7");
    EXPECT_FALSE(field.hasFocus());
}

TEST_F(OptionsDialog, HandsBackWhatWasChosen) {
    const QString picture = Picture(u"house.bmp", {30, 20});
    Open(WithPicture({}, u"/x/"_s));
    TypeInto(u"txtLoans", u"015");
    Click(u"optTerm(0)");
    TypeInto(u"txtWallpaper", picture);
    Click(u"OKButton");
    EXPECT_EQ(Dialog().result(), QDialog::Accepted);
    EXPECT_FALSE(Dialog().isVisible());
    EXPECT_EQ(Dialog().Chosen().loansDisplayed, 14);
    EXPECT_TRUE(Dialog().Chosen().termInMonths);
    EXPECT_EQ(Dialog().Chosen().wallpaper, picture);
    EXPECT_EQ(Dialog().Chosen().wallpaperDirectory, u"/x/") << "the dialog was not asked";
}

TEST_F(OptionsDialog, ReturnIsOKFromEveryField) {
    for (const QStringView name : {u"udLoans", u"optTerm(1)", u"txtWallpaper", u"OKButton"}) {
        Open();
        Control(name).setFocus();
        Press(Qt::Key_Return);
        EXPECT_EQ(Dialog().result(), QDialog::Accepted) << name.toString().toStdString();
        EXPECT_FALSE(Dialog().isVisible());
    }
}

TEST_F(OptionsDialog, TabKeyGoesTheWayTheEyeGoes) {
    Open();
    QStringList visited;
    for (int stop = 0; stop < 7; ++stop) {
        visited.append(FocusName());
        Tab();
    }
    EXPECT_EQ(visited,
              (QStringList{u"udLoans"_s, u"optTerm(1)"_s, u"txtWallpaper"_s, u"cmdWallpaper"_s,
                           u"OKButton"_s, u"CancelButton"_s, u"udLoans"_s}));
}

} // namespace
