// The date of the next payment: typed, stepped, picked or refused.

#include "DatePicker.h"
#include "QuendNames.h"
#include "QuietQt.h"
#include "WindowFixture.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QLineEdit>

#include <set>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class DateField : public WindowTest {
protected:
    DatePicker& Picker() const { return Get<DatePicker>(u"dtNextPayment"); }
    QString Shown() const { return Picker().text(); }
    QDate Stored() const {
        const auto day = Sheet().CurrentNextPayment().Calendar();
        return {int(day.year()), int(unsigned(day.month())), int(unsigned(day.day()))};
    }
    void EnterByTab() {
        Click(u"cboActPaymentFrequency");
        Press(Qt::Key_Escape);
        ActivateAgain();
        Tab();
    }
    static QString Refusal(QStringView typed) {
        return u"There is no such date: “%1”. Please enter one such as 11/21/2026, in the years "
               "from 1753 to 9999."_s.arg(typed);
    }
};

TEST_F(DateField, TypedAsItIsShownItReadsBackInEveryLocale) {
    const QuietQt quiet; // Qt warns of missing letters in some scripts
    const QDate day(2027, 3, 1);
    std::set<QString> tried;
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        const DisplayFormats formats(locale);
        const QString shown = formats.ShortDate(Date::FromCalendar(2027, 3, 1));
        if (!tried.insert(shown).second) {
            continue;
        }
        SCOPED_TRACE(locale.name().toStdString() + ": " + shown.toStdString());
        Open({.locale = locale});
        Click(u"dtNextPayment");
        for (const char32_t letter : shown.toUcs4()) { // some digits are two QChars
            PressText(Qt::Key_unknown, QString::fromUcs4(&letter, 1), Qt::NoModifier);
        }
        EXPECT_EQ(Shown(), shown);
        Tab();
        EXPECT_EQ(FocusName(), u"txtCurrentBalance");
        EXPECT_EQ(Stored(), day);
        EXPECT_EQ(Shown(), shown);
        EXPECT_EQ(Text(u"txtCurrentBalance"), u"");
        EXPECT_TRUE(SettledMessages().isEmpty()) << Messages().Texts().join(u'\n').toStdString();
        Shut();
    }
    EXPECT_GT(tried.size(), 20U);
}

TEST_F(DateField, IsEnteredWholeAndTypingStartsAtItsFirstPart) {
    struct Way {
        const char* name;
        std::function<void()> enter;
    };
    const std::vector<Way> ways = {
        {"Tab", [this] { EnterByTab(); }},
        {"Shift+Tab", [this] { Click(u"txtCurrentBalance"), BackTab(); }},
        {"its access key", [this] { Press(Qt::Key_E, Qt::AltModifier); }},
        {"a click at its left",
         [this] {
             Click(Picker(), {4, Picker().height() / 2});
         }},
        {"a click in the middle", [this] { Click(u"dtNextPayment"); }},
        {"a double click", [this] { DoubleClick(Picker()); }},
    };
    Open();
    for (const Way& way : ways) {
        SCOPED_TRACE(way.name);
        Click(u"txtLoanAmount");
        way.enter();
        EXPECT_EQ(FocusName(), u"dtNextPayment");
        EXPECT_EQ(Picker().Edit().selectedText(), Shown());
        Type(u"4/5/2027");
        Tab();
        EXPECT_EQ(Stored(), QDate(2027, 4, 5));
        SheetToWrite().SetCurrentNextPayment(Date::FromCalendar(2026, 3, 1));
    }
}

TEST_F(DateField, TypingTodayOverItselfChangesNothing) {
    Open();
    Click(u"dtNextPayment");
    Type(u"11/21/2026");
    Tab();
    EXPECT_EQ(Shown(), u"11/21/2026");
    EXPECT_FALSE(Sheet().Dirty());
}

TEST_F(DateField, IsStoredWhenItIsLeftOrByReturn) {
    Open();
    EnterByTab();
    Type(u"3/1/27");
    EXPECT_FALSE(Sheet().Dirty());
    Press(Qt::Key_Return);
    EXPECT_EQ(Stored(), QDate(2027, 3, 1));
    EXPECT_EQ(Picker().Edit().selectedText(), u"3/1/2027");
    Type(u"030228");
    Click(u"txtLoanAmount");
    EXPECT_EQ(Shown(), u"3/2/2028");
    EXPECT_EQ(Stored(), QDate(2028, 3, 2));
}

TEST_F(DateField, WhatIsNoDateIsReportedAndKeepsTheFocus) {
    Open();
    for (const QStringView typed : {u"2/31/2026", u"1/1/1700", u"3/1", u"7", u"1/1/12345"}) {
        Messages().Clear();
        Enter(u"dtNextPayment");
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(typed);
        Tab();
        EXPECT_EQ(SettledMessages(), QStringList{Refusal(typed)});
        EXPECT_EQ(FocusName(), u"dtNextPayment");
        EXPECT_EQ(Picker().Edit().selectedText(), typed);
        EXPECT_EQ(Stored(), QDate(2026, 11, 21));
        Click(u"cboLoanType");
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_FALSE(Window().close());
        Settle();
    }
    Press(Qt::Key_Delete);
    Tab();
    EXPECT_EQ(Messages().Texts().last(), Refusal(u""));
    Type(u"3/1/2027");
    Tab();
    EXPECT_EQ(FocusName(), u"txtCurrentBalance");
}

TEST_F(DateField, SpeaksTheLanguageOfTheUser) {
    Open({.locale = Spain, .language = Spanish});
    Click(u"dtNextPayment");
    Type(u"31/2/2026");
    Tab();
    EXPECT_EQ(SettledMessages(), QStringList{u"Esa fecha no existe: «31/2/2026». Escriba una como "
                                             "21/11/2026, de los años 1753 a 9999."_s});
}

TEST_F(DateField, TakesNoLetters) {
    Open();
    Click(u"dtNextPayment");
    Type(u"3a/1b/2027é");
    EXPECT_EQ(Shown(), u"3/1/2027");
}

TEST_F(DateField, TheArrowKeysStepThePartOfTheCaret) {
    struct Case {
        int caret;
        Qt::Key key;
        QStringView then;
        QStringView selected;
    };
    const std::vector<Case> rows = {
        {0, Qt::Key_Up, u"12/21/2026", u"12"},          {1, Qt::Key_Down, u"10/21/2026", u"10"},
        {3, Qt::Key_Up, u"11/22/2026", u"22"},          {5, Qt::Key_PageUp, u"12/1/2026", u"1"},
        {6, Qt::Key_Down, u"11/21/2025", u"2025"},      {10, Qt::Key_Up, u"11/21/2027", u"2027"},
        {10, Qt::Key_PageDown, u"11/21/2016", u"2016"},
    };
    Open();
    for (const Case& row : rows) {
        SheetToWrite().SetCurrentNextPayment(Sheet().Today());
        Enter(u"dtNextPayment");
        Press(Qt::Key_Home);
        for (int i = 0; i < row.caret; ++i) {
            Press(Qt::Key_Right);
        }
        Press(row.key);
        EXPECT_EQ(Shown(), row.then);
        EXPECT_EQ(Picker().Edit().selectedText(), row.selected);
        EXPECT_EQ(Stored().toString(u"M/d/yyyy"), row.then) << "stored at once";
    }
}

TEST_F(DateField, ASeparatorGoesToTheNextPart) {
    struct Case {
        QLocale locale;
        QStringView typed; ///< typed over the first part of today's date
        QDate date;
    };
    const QLocale slovakia(QLocale::Slovak, QLocale::Slovakia);
    const std::vector<Case> rows = {
        {UnitedStates, u"3/1/2027", {2027, 3, 1}},   {UnitedStates, u"03012027", {2027, 3, 1}},
        {UnitedStates, u"03/01/2027", {2027, 3, 1}}, {UnitedStates, u"3 1 2027", {2027, 3, 1}},
        {UnitedStates, u"3", {2026, 3, 21}},         {UnitedStates, u"/9", {2026, 11, 9}},
        {slovakia, u"1. 3. 2027", {2027, 3, 1}},     {slovakia, u"1.3.2027", {2027, 3, 1}},
        {slovakia, u"1 3 2027", {2027, 3, 1}},       {Germany, u"1.3.2027", {2027, 3, 1}},
    };
    for (const Case& row : rows) {
        SCOPED_TRACE(row.typed.toString().toStdString());
        Open({.locale = row.locale});
        Enter(u"dtNextPayment");
        Press(Qt::Key_Home);
        Press(Qt::Key_Up);
        Press(Qt::Key_Down); // the first part is selected now
        Type(row.typed);
        Tab();
        EXPECT_EQ(Stored(), row.date);
        EXPECT_TRUE(SettledMessages().isEmpty());
        Shut();
    }
}

TEST_F(DateField, IsPickedFromItsCalendar) {
    const auto calendar = [this] { return Picker().findChild<QCalendarWidget*>(); };
    Open();
    const std::vector<std::function<void()>> ways = {
        [&] { Press(Qt::Key_Down, Qt::AltModifier); },
        [&] { Press(Qt::Key_F4); },
        [&] {
            Click(Picker(), {Picker().width() - 6, Picker().height() / 2});
        },
    };
    for (const auto& open : ways) {
        SheetToWrite().SetCurrentNextPayment(Sheet().Today());
        Enter(u"dtNextPayment");
        open();
        ASSERT_TRUE(WaitFor([&] { return calendar() != nullptr && calendar()->isVisible(); }));
        EXPECT_EQ(calendar()->selectedDate(), QDate(2026, 11, 21));
        Q_EMIT calendar()->activated(QDate(2026, 12, 24));
        ASSERT_TRUE(WaitFor([&] { return calendar() == nullptr; }));
        ActivateAgain();
        EXPECT_EQ(Shown(), u"12/24/2026");
        EXPECT_EQ(Stored(), QDate(2026, 12, 24));
        EXPECT_EQ(FocusName(), u"dtNextPayment");
    }
}

TEST_F(DateField, IsAsWideAsItsDateAndButton) {
    Open({.locale = QLocale(QLocale::Croatian, QLocale::Croatia)});
    const QLineEdit& edit = Picker().Edit();
    EXPECT_GE(edit.width(), edit.fontMetrics().horizontalAdvance(u"28. 12. 2058."_s) + 4);
    EXPECT_LE(edit.width(), Picker().width() - 12);
    EXPECT_LE(edit.height(), Picker().height());
}

} // namespace
