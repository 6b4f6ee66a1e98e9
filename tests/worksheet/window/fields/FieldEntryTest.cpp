// What a number field shows on entry and afterwards, and what can be typed into it.

#include "NumberFields.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>

#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class FieldEntry : public WindowTest, public ::testing::WithParamInterface<NumberField> {
protected:
    FieldEntry() { Open(); }

    QLineEdit& Field() const { return Edit(GetParam().name); }
    void ExpectEntered(const char* how) const {
        EXPECT_EQ(FocusName(), GetParam().name) << how;
        EXPECT_EQ(Field().text(), GetParam().entered) << how;
        EXPECT_EQ(Field().selectedText(), Field().text()) << how;
    }
};

INSTANTIATE_TEST_SUITE_P(Fields, FieldEntry, ::testing::ValuesIn(NumberFields), NameOfField);

TEST_P(FieldEntry, ShowsTheBareValueAllSelectedHoweverItIsEntered) {
    Fill(GetParam().name, GetParam().typed);
    EXPECT_EQ(Field().text(), GetParam().shown);
    BackTab();
    ExpectEntered("back by tab");
    BackTab();
    EXPECT_EQ(Field().text(), GetParam().shown);
    Tab();
    ExpectEntered("forth by tab");
    Click(u"cboLoanName");
    EXPECT_EQ(Field().text(), GetParam().shown);
    Click(Field(), {3, Field().height() / 2});
    ExpectEntered("a click at its left end");
    Click(u"cboLoanName");
    Click(Field(), {Field().width() - 6, Field().height() / 2});
    ExpectEntered("a click at its right end");
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_P(FieldEntry, ADoubleClickThatEntersItSelectsAll) {
    Fill(GetParam().name, GetParam().typed);
    Click(u"cboLoanName");
    DoubleClick(Field());
    ExpectEntered("a double click");
    Type(u"7");
    EXPECT_EQ(Field().text(), u"7");
}

TEST_P(FieldEntry, ACellIsPastedAsItsText) {
    for (const QStringView end : {u"\n", u"\r\n", u"\t", u"\t\n"}) {
        Enter(GetParam().name);
        Press(Qt::Key_A, Qt::ControlModifier);
        Paste(u"12"_s.append(end));
        EXPECT_EQ(Field().text(), u"12");
        Press(Qt::Key_Home);
        Press(Qt::Key_Right);
        Paste(u"3"_s.append(end)); // between the other digits
        EXPECT_EQ(Field().text(), u"132");
    }
    Press(Qt::Key_A, Qt::ControlModifier);
    Paste(u"1\n2\n"); // two cells are not a number, but two rows have a field for each
    const bool isInRow = GetParam().name.contains(u'(');
    Tab();
    EXPECT_EQ(FocusName() == GetParam().name, !isInRow);
    EXPECT_EQ(SettledMessages().size(), isInRow ? 0 : 1);
    Press(Qt::Key_Delete);
}

TEST_P(FieldEntry, ASecondClickPlacesTheCaret) {
    Fill(GetParam().name, GetParam().typed);
    Click(GetParam().name);
    Click(Field(), {3, Field().height() / 2});
    EXPECT_EQ(Field().selectedText(), u"");
    EXPECT_EQ(Field().text(), GetParam().entered);
}

TEST_P(FieldEntry, EmptyMeansZeroBothWays) {
    Fill(GetParam().name, GetParam().typed);
    BackTab();
    Press(Qt::Key_Delete);
    Tab();
    EXPECT_EQ(Field().text(), u"");
    BackTab();
    EXPECT_EQ(Field().text(), u"");
    Type(u"0");
    Tab();
    EXPECT_EQ(Field().text(), u"");
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_P(FieldEntry, KeysOtherThanDigitsTypeNothing) {
    Click(GetParam().name);
    Type(u"1aZ-+ e$%,()/\u00e9\u0661");
    EXPECT_EQ(Field().text(), u"1");
    Type(u"2.3");
    EXPECT_EQ(Field().text(), GetParam().separatorKey ? u"12.3" : u"123");
}

TEST_P(FieldEntry, AltAndSuperTypeNothing) {
    Click(GetParam().name);
    Type(u"1");
    struct Key {
        Qt::Key key;
        QStringView text;
        Qt::KeyboardModifiers held;
    };
    for (const Key& key :
         {Key{Qt::Key_Minus, u"-", Qt::AltModifier}, Key{Qt::Key_5, u"5", Qt::AltModifier},
          Key{Qt::Key_Minus, u"-", Qt::MetaModifier},
          Key{Qt::Key_5, u"5", Qt::MetaModifier | Qt::ShiftModifier},
          Key{Qt::Key_Minus, u"-", Qt::ControlModifier | Qt::AltModifier},
          Key{Qt::Key_Minus, u"-", Qt::ControlModifier | Qt::MetaModifier},
          Key{Qt::Key_unknown, u"12\u00e9", Qt::NoModifier},
          Key{Qt::Key_unknown, u"\u200d", Qt::NoModifier},
          Key{Qt::Key_Dead_Acute, u"\u00b4", Qt::NoModifier}}) {
        PressText(key.key, key.text, key.held);
        EXPECT_EQ(Field().text(), u"1") << key.text.toString().toStdString();
    }
    // The third level of a keyboard types valid characters.
    PressText(Qt::Key_5, u"5", Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(Field().text(), u"15");
    Press(Qt::Key_Y, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"cboLoanType") << "an access key goes on working";
}

TEST_P(FieldEntry, WhatDeadKeysComeToIsDropped) {
    Click(GetParam().name);
    Type(u"12");
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("\u00e9"));
    QApplication::sendEvent(&Field(), &composed);
    EXPECT_EQ(Field().text(), u"12");
}

TEST_P(FieldEntry, KeysThatEditPass) {
    Click(GetParam().name);
    Type(u"123");
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Field().text(), u"12");
    Press(Qt::Key_Home);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Field().text(), u"2");
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_C, Qt::ControlModifier);
    Press(Qt::Key_V, Qt::ControlModifier);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Field().text(), u"22");
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Field().text(), u"2");
}

TEST_P(FieldEntry, ASignCanBePasted) {
    struct Case {
        QStringView pasted;
        QStringView entered;
    };
    const std::vector<Case> rows = {{u"-5", u"-5"}, {u"+7", u"7"}, {u"-0", u""}, {u"+0", u""}};
    for (const auto& row : rows) {
        Enter(GetParam().name);
        Press(Qt::Key_A, Qt::ControlModifier);
        Paste(row.pasted);
        Tab();
        BackTab();
        EXPECT_EQ(FocusName(), GetParam().name);
        EXPECT_EQ(Field().text(), row.entered) << row.pasted.toString().toStdString();
    }
    EXPECT_TRUE(SettledMessages().isEmpty()) << Messages().Texts().join(u'\n').toStdString();
}

TEST_P(FieldEntry, TakesNoComposedCharacters) {
    EXPECT_FALSE(Field().testAttribute(Qt::WA_InputMethodEnabled));
}

class FieldEntryWithComma : public WindowTest, public ::testing::WithParamInterface<NumberField> {};

INSTANTIATE_TEST_SUITE_P(Fields, FieldEntryWithComma, ::testing::ValuesIn(NumberFields),
                         NameOfField);

TEST_P(FieldEntryWithComma, OnlyTheSymbolOfTheCountryIsTyped) {
    Open({.locale = Germany});
    Click(GetParam().name);
    Type(u"1.2,3");
    EXPECT_EQ(Text(GetParam().name), GetParam().separatorKey ? u"12,3" : u"123");
}

TEST_P(FieldEntryWithComma, TheDecimalKeyOfTheNumberPadTypesIt) {
    Open({.locale = Germany});
    Click(GetParam().name);
    Type(u"12");
    PressText(Qt::Key_Period, u".", Qt::KeypadModifier);
    PressText(Qt::Key_Comma, u",", Qt::KeypadModifier);
    PressText(Qt::Key_3, u"3", Qt::KeypadModifier);
    EXPECT_EQ(Text(GetParam().name), GetParam().separatorKey ? u"12,,3" : u"123");
    Press(Qt::Key_A, Qt::ControlModifier);
    PressText(Qt::Key_4, u"4", Qt::KeypadModifier);
}

class TermEntry : public WindowTest, public ::testing::WithParamInterface<bool> {};

INSTANTIATE_TEST_SUITE_P(Units, TermEntry, ::testing::Bool(),
                         [](const auto& unit) { return unit.param ? "Months" : "Years"; });

// Only whole years can be typed, but a saved worksheet may contain any number of months.
TEST_P(TermEntry, PassingThroughAFieldKeepsItsMonths) {
    const bool inMonths = GetParam();
    Open({.termInMonths = inMonths});
    const QStringView shown = inMonths ? u"30" : u"2.5";
    SheetToWrite().SetLoanTerm(Months{30});
    SheetToWrite().SetCurrentTerm(Months{30});
    Fill(u"txtInterestRate(0)", u"6"); // an offer without a term takes the default term
    for (const QStringView field : {u"txtLoanTerm", u"txtCurLoanTerm", u"txtTerm(0)"}) {
        EXPECT_EQ(Text(field), shown);
        Click(field);
        EXPECT_EQ(Text(field), shown);
        Press(Qt::Key_Return);
        Tab();
        EXPECT_EQ(Text(field), shown);
    }
    EXPECT_EQ(Sheet().LoanTerm(), Months{30});
    EXPECT_EQ(Sheet().CurrentTerm(), Months{30});
    EXPECT_EQ(Sheet().OfferOfRow(Row{0}).Term(), Months{30});
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_P(TermEntry, ReadsTermsInTheUnitOfTheUser) {
    Open({.termInMonths = GetParam()});
    const int perUnit = GetParam() ? 1 : 12;
    Fill(u"txtLoanTerm", u"30");
    Fill(u"txtCurLoanTerm", u"15");
    Fill(u"txtTerm(0)", u"20");
    Click(u"txtTerm(1)");
    Paste(u"30.5"); // halves go to the even number
    Tab();
    EXPECT_EQ(Sheet().LoanTerm(), Months{30 * perUnit});
    EXPECT_EQ(Sheet().CurrentTerm(), Months{15 * perUnit});
    EXPECT_EQ(Sheet().OfferOfRow(Row{0}).Term(), Months{20 * perUnit});
    EXPECT_EQ(Sheet().OfferOfRow(Row{1}).Term(), Months{30 * perUnit});
}

using LenderField = WindowTest;

TEST_F(LenderField, TakesAnyTextAsTyped) {
    Open();
    Fill(u"txtWho(0)", u"Bank & Co. -1,5%");
    EXPECT_EQ(Text(u"txtWho(0)"), u"Bank & Co. -1,5%");
    EXPECT_EQ(Sheet().OfferOfRow(Row{0}).Who(), u"Bank & Co. -1,5%");
}

TEST_F(LenderField, AClickPlacesTheCaretAndSelectsNothing) {
    Open();
    Fill(u"txtWho(0)", u"Bank");
    Click(u"txtLoanAmount");
    Click(u"txtWho(0)");
    EXPECT_EQ(Edit(u"txtWho(0)").selectedText(), u"");
}

TEST_F(LenderField, EnteredByAKeyItsCaretIsWhereItWasLeft) {
    Open();
    Enter(u"txtWho(0)");
    Type(u"First Bank");
    Press(Qt::Key_Left);
    struct Way {
        const char* name;
        std::function<void()> there;
        std::function<void()> back;
    };
    const std::vector<Way> ways = {
        {"Tab", [this] { BackTab(); }, [this] { Tab(); }},
        {"Shift+Tab", [this] { Tab(); }, [this] { BackTab(); }},
        {"arrows", [this] { Press(Qt::Key_Down); }, [this] { Press(Qt::Key_Up); }},
    };
    const QLineEdit& lender = Edit(u"txtWho(0)");
    for (const Way& way : ways) {
        SCOPED_TRACE(way.name);
        way.there();
        EXPECT_NE(FocusName(), u"txtWho(0)");
        EXPECT_EQ(lender.cursorPosition(), 0) << "shows its beginning meanwhile";
        way.back();
        EXPECT_EQ(FocusName(), u"txtWho(0)");
        EXPECT_EQ(lender.selectedText(), u"");
        EXPECT_EQ(lender.cursorPosition(), 9);
    }
    Press(Qt::Key_Up); // there is no row above the first; the caret stays
    EXPECT_EQ(lender.cursorPosition(), 9);
    Press(Qt::Key_Left, Qt::ShiftModifier);
    OpenContextMenu(u"txtWho(0)");
    EXPECT_EQ(lender.selectedText(), u"n") << "a menu is not leaving";
}

TEST_F(LenderField, PastedLinesEndAsDroppedOnes) {
    Open();
    struct Case {
        QStringView pasted;
        QStringView stored;
    };
    for (const Case& row : {Case{u"First\nNational", u"First\r\nNational"},
                            Case{u"First\rNational\r", u"First\r\nNational\r\n"},
                            Case{u"First National\n", u"First National"},
                            Case{u"First National\t", u"First National"}}) {
        Enter(u"txtWho(0)");
        Press(Qt::Key_A, Qt::ControlModifier);
        Paste(row.pasted);
        Tab();
        EXPECT_EQ(Sheet().OfferOfRow(Row{0}).Who(), row.stored);
        BackTab();
    }
}

} // namespace
