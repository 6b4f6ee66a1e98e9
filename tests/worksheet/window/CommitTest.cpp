// What is being typed is stored before anything that would lose it.

#include "Language.h"
#include "NumberFields.h"
#include "WindowFixture.h"

#include <QAction>
#include <QDateEdit>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

class Commit : public WindowTest, public ::testing::WithParamInterface<NumberField> {
protected:
    Commit() { Open(); }
};

INSTANTIATE_TEST_SUITE_P(Fields, Commit, ::testing::ValuesIn(NumberFields), NameOfField);

TEST_P(Commit, ReturnStoresAndStaysInEntryForm) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Enter(GetParam().name);
        Type(GetParam().typed);
        Press(key);
        EXPECT_EQ(FocusName(), GetParam().name);
        EXPECT_EQ(Text(GetParam().name), GetParam().entered);
        EXPECT_EQ(Edit(GetParam().name).selectedText(), GetParam().entered);
        EXPECT_TRUE(Sheet().Dirty());
        Tab();
        EXPECT_EQ(Text(GetParam().name), GetParam().shown);
    }
}

TEST_P(Commit, AnotherLanguageStoresFirst) {
    Enter(GetParam().name);
    Type(GetParam().typed);
    SwitchLanguage(Spanish);
    EXPECT_EQ(Language::Instance().CurrentLanguage(), Spanish);
    EXPECT_TRUE(Sheet().Dirty());
    EXPECT_EQ(Text(GetParam().name), GetParam().entered);
    Tab();
    EXPECT_EQ(Text(GetParam().name), GetParam().shown);
}

TEST_P(Commit, ClosingStoresFirst) {
    Enter(GetParam().name);
    Type(GetParam().typed);
    EXPECT_TRUE(Window().close());
    EXPECT_TRUE(Sheet().Dirty());
}

TEST_P(Commit, ARefusedFieldKeepsTheLanguage) {
    Enter(GetParam().name);
    Paste(u"12abc");
    SwitchLanguage(Spanish);
    EXPECT_EQ(Language::Instance().CurrentLanguage(), English);
    EXPECT_TRUE(Window().findChild<QAction*>(u"mnuToolsLanguageOpt(1)"_s)->isChecked());
    EXPECT_EQ(Text(u"lblLoanName"), u"Loan &Name:");
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_EQ(FocusName(), GetParam().name);
    EXPECT_EQ(Edit(GetParam().name).selectedText(), u"12abc");
}

TEST_P(Commit, ARefusedFieldKeepsTheWindowOpen) {
    Enter(GetParam().name);
    Paste(u"12abc");
    EXPECT_FALSE(Window().close());
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_EQ(FocusName(), GetParam().name);
    Press(Qt::Key_Delete);
    EXPECT_TRUE(Window().close());
}

using CommitOfOthers = WindowTest;

TEST_F(CommitOfOthers, ReturnRecalculates) {
    Open();
    FillFirstOffer();
    Click(u"txtInterestRate(0)");
    Type(u"7");
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(u"txtPandI(0)"), u"$665.30");
}

TEST_F(CommitOfOthers, LenderAndNameAreStoredBeforeClosing) {
    Open();
    Fill(u"cboLoanName", u"House");
    Click(u"txtWho(2)");
    Type(u"Bank");
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(Sheet().LoanName(), u"House");
    EXPECT_EQ(Sheet().OfferOfRow(Row{2}).Who(), u"Bank");
}

TEST_F(CommitOfOthers, ADateHalfTypedIsTakenBeforeClosing) {
    Open();
    auto& picker = Get<QDateEdit>(u"dtNextPayment");
    Click(picker, {8, picker.height() / 2});
    picker.setSelectedSection(QDateTimeEdit::DaySection);
    Type(u"9");
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(Sheet().CurrentNextPayment(), Date::FromCalendar(2026, 11, 9));
}

// Each digit is an input of its own, which must not take back the part being typed.
TEST_F(CommitOfOthers, ADateIsTypedWithoutItsSeparators) {
    Open();
    auto& picker = Get<QDateEdit>(u"dtNextPayment");
    Click(picker, {8, picker.height() / 2});
    picker.setSelectedSection(QDateTimeEdit::MonthSection);
    Type(u"03012027");
    Tab();
    EXPECT_EQ(picker.date(), QDate(2027, 3, 1));
    EXPECT_EQ(Sheet().CurrentNextPayment(), Date::FromCalendar(2027, 3, 1));
}

TEST_F(CommitOfOthers, ExitOfTheMenuStopsOnARefusedField) {
    Open();
    Click(u"txtLoanAmount");
    Paste(u"12abc");
    Window().findChild<QAction*>(u"mnuFileExit"_s)->trigger();
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(SettledMessages().size(), 1);
    Press(Qt::Key_Delete);
    Window().findChild<QAction*>(u"mnuFileExit"_s)->trigger();
    EXPECT_FALSE(Window().isVisible());
}

} // namespace
