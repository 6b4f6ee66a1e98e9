// What is being typed is stored before any action that would lose it.

#include "Language.h"
#include "NumberFields.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QAction>
#include <QLineEdit>

#include <functional>
#include <vector>

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

TEST_F(CommitOfOthers, ADateIsTakenBeforeClosing) {
    Open();
    Click(u"dtNextPayment");
    Type(u"11/9/2026");
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(Sheet().CurrentNextPayment(), Date::FromCalendar(2026, 11, 9));
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

using LeavingUntouched = WindowTest;

TEST_F(LeavingUntouched, ARateGivesAMissingTermTheDefaultOne) {
    struct Case {
        const char* name;
        std::function<void()> pass;
    };
    const std::vector<Case> ways = {
        {"passed through", [this] { Tab(); }},
        {"typed again", [this] { Type(u"6.5"), Tab(); }},
        {"in another spelling", [this] { Type(u"6.50"), Tab(); }},
        {"by Return", [this] { Press(Qt::Key_Return); }},
    };
    for (const Case& way : ways) {
        SCOPED_TRACE(way.name);
        Open();
        Fill(u"txtInterestRate(0)", u"6.5");
        EXPECT_EQ(Text(u"txtTerm(0)"), u"");
        Fill(u"txtLoanTerm", u"30");
        Enter(u"txtInterestRate(0)");
        way.pass();
        EXPECT_EQ(Text(u"txtTerm(0)"), u"30");
        EXPECT_EQ(Sheet().OfferOfRow(Row{0}).Term(), Months{360});
        Shut();
    }
}

TEST_F(LeavingUntouched, ChangesNoValueAndSavesNothing) {
    Open({.termInMonths = false});
    FillFirstOffer();
    SheetToWrite().Store({FieldId::Term, Row{0}}, Months{30}); // shown as 2.5 years
    SheetToWrite().SetLoanTerm(Months{30});
    SheetToWrite().ClearDirty();
    Click(u"cboLoanName");
    for (int stop = 0; stop < 40; ++stop) {
        Tab();
    }
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_EQ(Sheet().LoanTerm(), Months{30});
    EXPECT_EQ(Sheet().OfferOfRow(Row{0}).Term(), Months{30});
    EXPECT_TRUE(SettledMessages().isEmpty()) << Messages().Texts().join(u'\n').toStdString();
}

TEST_F(LeavingUntouched, AScheduleThatNeverEndsIsReportedOnce) {
    Open();
    Fill(u"txtCurrentBalance", u"10000");
    Fill(u"txtCurInterestRate", u"12");
    Choose(u"cboCurPaymentFrequency", 0);
    Choose(u"cboActPaymentFrequency", 0);
    Fill(u"txtCurActualPayment", u"100");
    EXPECT_EQ(SettledMessages().size(), 1);
    Click(u"txtCurLoanAmount");
    for (int stop = 0; stop < 12; ++stop) {
        Tab();
    }
    EXPECT_EQ(SettledMessages().size(), 1) << "passed, not computed from anything new";
    Fill(u"txtCurActualPayment", u"99");
    EXPECT_EQ(SettledMessages().size(), 2);
}

TEST_F(LeavingUntouched, OneEditOfARowIsReportedOnce) {
    Open();
    Fill(u"txtLoanAmount", u"900000000000000");
    Fill(u"txtPoints(0)", u"900000");
    Fill(u"txtInterestRate(0)", u"6");
    Fill(u"txtTerm(0)", u"30");
    Choose(u"cboFrequency(0)", 0);
    Messages().Clear();
    Click(u"chkPoints(0)"); // no amount can hold the principal with its points
    const QStringList told = SettledMessages();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.front().startsWith(u"This number is too large.\nerrn=6  src="));
    for (int stop = 0; stop < 8; ++stop) {
        Tab();
    }
    EXPECT_EQ(SettledMessages().size(), 1);
}

} // namespace
