// The File menu and the loan name box, operated by a user in the real window.

#include "EnterValues.h"
#include "FileCommandsFixture.h"
#include "QuendNames.h"

#include "Colours.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

bool IsMarked(LoanNameBox& box) {
    return box.lineEdit()->palette().base().color() == Colours::Missing;
}

TEST_F(FileCommandsTest, SavingStoresTheFieldBeingEditedAndLeavesItInEntryForm) {
    TypeName(u"Our home");
    Enter(u"txtLoanAmount");
    Type(u"250000.5");
    Trigger(u"mnuFileSave");
    EXPECT_EQ("250000.5", KeptText("Our home", "LoanAmount"));
    EXPECT_EQ(FocusName(), u"txtLoanAmount");
    EXPECT_EQ(Text(u"txtLoanAmount"), u"250000.5");
    EXPECT_EQ(Edit(u"txtLoanAmount").selectedText(), u"250000.5");
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(FileCommandsTest, SavingTakesTheNameBeingTyped) {
    Fill(u"txtLoanAmount", u"7");
    TypeName(u"Typed");
    Trigger(u"mnuFileSave");
    EXPECT_EQ(Kept(), QStringList(u"Typed"_s));
    TypeName(u"Renamed");
    Trigger(u"mnuFileSave");
    EXPECT_EQ(Kept(), QStringList({u"Renamed"_s, u"Typed"_s}));
}

TEST_F(FileCommandsTest, SavingWithoutANameMarksItsBoxUntilThereIsOne) {
    for (const QString& none : {u""_s, u" "_s}) {
        SCOPED_TRACE(none.size());
        Fill(u"txtLoanAmount", u"7");
        TypeName(none);
        Trigger(u"mnuFileSave");
        EXPECT_TRUE(IsMarked(NameBox()));
        EXPECT_TRUE(SettledMessages().isEmpty());
        EXPECT_TRUE(Kept().isEmpty());
        EXPECT_TRUE(Sheet().Dirty());
        Click(u"cboLoanName");
        Tab();
        EXPECT_TRUE(IsMarked(NameBox()));
        TypeName(u"Now");
        EXPECT_TRUE(IsMarked(NameBox()));
        Tab();
        EXPECT_FALSE(IsMarked(NameBox()));
    }
}

TEST_F(FileCommandsTest, TheQuestionNamesNoBlank) {
    Fill(u"txtLoanAmount", u"7");
    TypeName(u" ");
    Messages().WillAnswer({Answer::Cancel});
    Trigger(u"mnuFileNew");
    ASSERT_EQ(Messages().Questions().size(), 1U);
    EXPECT_EQ(Messages().Questions().front().text, u"Save changes?");
}

TEST_F(FileCommandsTest, ARefusedFieldStopsEveryCommand) {
    KeepLoan(u"Home", u"7");
    for (const QStringView entry : {u"mnuFileNew", u"mnuFileSave", u"mnuFileDelete"}) {
        Enter(u"txtLoanAmount");
        Press(Qt::Key_A, Qt::ControlModifier);
        Paste(u"1.2.3");
        Messages().Clear();
        Trigger(entry);
        EXPECT_EQ(SettledMessages(), QStringList(u"Please enter a number of the form nnnn.nn"_s));
        EXPECT_TRUE(Messages().Questions().empty());
        EXPECT_EQ(FocusName(), u"txtLoanAmount");
        EXPECT_EQ("7", KeptText("Home", "LoanAmount"));
    }
}

struct RefusedName {
    QString name;
    QString message;
};

TEST_F(FileCommandsTest, NamesThatCannotBeKeptAreRefusedAndNothingIsLost) {
    const QString notPossible = u"A worksheet cannot be saved under this name. Please choose "
                                "another one, without a backslash (\\) and not too long."_s;
    for (const RefusedName& row : {
             RefusedName{u"a\\b"_s, notPossible},
             RefusedName{QString(256, u'x'), notPossible},
             RefusedName{u"a\\"_s, notPossible},
             RefusedName{u"(new loan)"_s,
                         u"This is the name of the entry that begins a new worksheet, so none can "
                         "be saved under it. Please choose another name."_s},
         }) {
        Messages().Clear();
        Window().GetWorksheet().SetLoanAmount(Money::FromDouble(7));
        Window().GetWorksheet().SetLoanName(row.name);
        Window().GetWorksheet().MarkDirty();
        Trigger(u"mnuFileSave");
        EXPECT_EQ(SettledMessages(), QStringList(row.message));
        EXPECT_TRUE(Sheet().Dirty());
        EXPECT_EQ(Sheet().LoanName(), row.name);
        EXPECT_TRUE(Kept().isEmpty());
    }
}

TEST_F(FileCommandsTest, ALenderTextThatIsTooLongIsRefused) {
    TypeName(u"Home");
    Tab();
    EnterText(Window().GetWorksheet(), {FieldId::Who, Row{2}}, QString(1024, u'x'));
    Trigger(u"mnuFileSave");
    ASSERT_EQ(SettledMessages().size(), 1);
    EXPECT_TRUE(SettledMessages().front().contains(u"the lender of offer 3 is too long"));
    EXPECT_TRUE(Kept().isEmpty());
    EXPECT_TRUE(Sheet().Dirty());
}

TEST_F(FileCommandsTest, ASaveThatFailsIsReportedAndStaysDirty) {
    Begin({}, RegistryAPI("/dev/null/no/such/place/Loan.store"));
    TypeName(u"Home");
    Fill(u"txtLoanAmount", u"7");
    Trigger(u"mnuFileSave");
    ASSERT_EQ(SettledMessages().size(), 1);
    EXPECT_EQ(SettledMessages().front(),
              u"The worksheet could not be saved. What was saved before is unchanged, and what you "
              "see stays as it is.\n\n"
              "You are not allowed to use the place where your worksheets are kept.\n"
              "errn=1001  src=  desc=Unable to create the registry key");
    EXPECT_TRUE(Sheet().Dirty());
    Messages().WillAnswer({Answer::Yes});
    EXPECT_FALSE(Window().close());
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(FileCommandsTest, TheListIsMadeAnewEachTimeItDropsDown) {
    EXPECT_EQ(NameBox().count(), 0);
    KeepLoan(u"Beta", u"7");
    EXPECT_EQ(NameBox().count(), 0);
    Pick(0);
    EXPECT_EQ(Entries(), QStringList({u"(new loan)"_s, u"Beta"_s}));
    KeepLoan(u"alpha", u"8");
    Pick(0);
    EXPECT_EQ(Entries(), QStringList({u"(new loan)"_s, u"alpha"_s, u"Beta"_s}));
}

TEST_F(FileCommandsTest, NamesLongerThanTheBoxAreSeenWholeInTheList) {
    const QString begin = u"The offer of the savings bank at the corner of our street, "_s;
    KeepLoan(begin + u"refused"_s, u"7");
    KeepLoan(begin + u"accepted"_s, u"8");
    Click(u"cboLoanName");
    Press(Qt::Key_Down);
    ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    const auto* list = NameBox().view();
    EXPECT_GE(list->viewport()->width(), list->sizeHintForColumn(0));
    EXPECT_LE(list->width(), NameBox().screen()->availableGeometry().width());
    Press(Qt::Key_Escape);
}

TEST_F(FileCommandsTest, PickingANameLoadsIt) {
    KeepLoan(u"Beta", u"70000");
    KeepLoan(u"Alpha", u"80000");
    Pick(2);
    EXPECT_EQ(Sheet().LoanName(), u"Beta");
    EXPECT_EQ(Text(u"cboLoanName"), u"Beta");
    EXPECT_EQ(Text(u"txtLoanAmount"), u"$70,000.00");
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_EQ(FocusName(), u"cboLoanName");
    EXPECT_TRUE(Messages().Questions().empty());
}

TEST_F(FileCommandsTest, PickingTheNewLoanClears) {
    KeepLoan(u"Beta", u"70000");
    Pick(0);
    EXPECT_EQ(Sheet().LoanName(), u"");
    EXPECT_EQ(Text(u"cboLoanName"), u"");
    EXPECT_EQ(Text(u"txtLoanAmount"), u"");
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_EQ(Kept(), QStringList(u"Beta"_s));
}

TEST_F(FileCommandsTest, DroppingTheListDownTakesTheNameTyped) {
    KeepLoan(u"Beta", u"70000");
    TypeName(u"Half ty");
    Press(Qt::Key_Down);
    ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    EXPECT_EQ(Sheet().LoanName(), u"Half ty");
    Press(Qt::Key_Escape);
    ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() == nullptr; }));
    ActivateAgain();
    EXPECT_EQ(Text(u"cboLoanName"), u"Half ty");
    EXPECT_EQ(Sheet().LoanName(), u"Half ty");
    EXPECT_EQ(Text(u"txtLoanAmount"), u"$70,000.00");
    EXPECT_EQ(FocusName(), u"cboLoanName");
}

/// A copy under a new name; another worksheet is selected before the copy is saved.
TEST_F(FileCommandsTest, TheNameTypedIsAskedAboutAndSavedUnder) {
    KeepLoan(u"AA", u"1000");
    KeepLoan(u"BB", u"2000");
    for (const bool opensByKey : {true, false}) {
        SCOPED_TRACE(opensByKey);
        Pick(1);
        Fill(u"txtLoanAmount", u"3000");
        TypeName(u"Copy");
        Messages().Clear();
        Messages().WillAnswer({Answer::Yes});
        if (opensByKey) {
            Press(Qt::Key_Down);
        } else {
            QTest::mouseClick(Window().windowHandle(), Qt::LeftButton, {},
                              NameBox().mapTo(&Window(), NameBox().rect().center() +
                                                             QPoint(NameBox().width() / 2 - 6, 0)));
        }
        ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        Settle();
        Press(Qt::Key_End);
        Press(Qt::Key_Return);
        ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() == nullptr; }));
        ActivateAgain();
        Settle();
        ASSERT_EQ(Messages().Questions().size(), 1U);
        EXPECT_EQ(Messages().Questions().front().text,
                  u"Do you want to save the changes to “Copy”?");
        EXPECT_EQ("1000", KeptText("AA", "LoanAmount"));
        EXPECT_EQ("3000", KeptText("Copy", "LoanAmount"));
        WorksheetStore(m_folder.Store()).Delete(u"Copy"_s);
        EXPECT_EQ(SettledMessages(), QStringList());
    }
}

TEST_F(FileCommandsTest, TypingANameThatIsKeptLoadsNothing) {
    KeepLoan(u"Beta", u"70000");
    KeepLoan(u"Alpha", u"80000");
    Pick(1);
    for (const Qt::Key leave : {Qt::Key_Tab, Qt::Key_Return}) {
        TypeName(u"Beta");
        Press(leave);
        Settle();
        EXPECT_EQ(Text(u"txtLoanAmount"), u"$80,000.00");
        EXPECT_EQ(Text(u"cboLoanName"), u"Beta");
    }
}

TEST_F(FileCommandsTest, APickOfWhatAnotherProgramDeletedOnlySetsTheName) {
    KeepLoan(u"Beta", u"70000");
    Click(u"cboLoanName");
    Press(Qt::Key_Down);
    ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    WorksheetStore(m_folder.Store()).Delete(u"Beta"_s);
    Settle();
    Press(Qt::Key_End);
    Press(Qt::Key_Return);
    Settle();
    EXPECT_EQ(Sheet().LoanName(), u"Beta");
    EXPECT_EQ(Sheet().LoanAmount(), Money::FromDouble(70'000));
}

struct UnsavedCase {
    const char* name;
    bool named;
    Answer answer;
    bool goesOn;
    bool saved;
};

const std::vector<UnsavedCase> UnsavedCases{
    {"cancelled", true, Answer::Cancel, false, false},
    {"saved", true, Answer::Yes, true, true},
    {"dropped", true, Answer::No, true, false},
    {"unnamed, cancelled", false, Answer::Cancel, false, false},
    {"unnamed, to be saved", false, Answer::Yes, false, false},
    {"unnamed, dropped", false, Answer::No, true, false},
};

/// The actions that ask before unsaved changes are dropped.
enum class Leaving { ByPick, ByNew, ByClosing };

class Unsaved : public FileCommandsTest, public testing::WithParamInterface<Leaving> {
protected:
    void Change(bool named) {
        KeepLoan(u"Other", u"9");
        Trigger(u"mnuFileNew");
        TypeName(named ? u"Mine"_s : QString());
        Fill(u"txtLoanAmount", u"123");
        Messages().Clear();
    }
    void Leave() {
        switch (GetParam()) {
        case Leaving::ByPick:
            return Pick(1);
        case Leaving::ByNew:
            return Trigger(u"mnuFileNew");
        case Leaving::ByClosing:
            Window().close();
        }
    }
};

INSTANTIATE_TEST_SUITE_P(By, Unsaved,
                         testing::Values(Leaving::ByPick, Leaving::ByNew, Leaving::ByClosing));

TEST_P(Unsaved, ChangesAreNeverDroppedWithoutAQuestion) {
    for (const UnsavedCase& row : UnsavedCases) {
        SCOPED_TRACE(row.name);
        Begin({}, m_folder.Store());
        Change(row.named);
        Messages().WillAnswer({row.answer});
        Leave();
        ASSERT_EQ(Messages().Questions().size(), 1U);
        const Question& asked = Messages().Questions().front();
        EXPECT_EQ(asked.title, u"Save changes?");
        EXPECT_EQ(asked.text,
                  row.named ? u"Do you want to save the changes to “Mine”?"_s : u"Save changes?"_s);
        EXPECT_TRUE(asked.mayCancel);
        EXPECT_EQ(Kept().contains(u"Mine"_s), row.saved);
        const bool stays = Sheet().LoanAmount() == Money::FromDouble(123) && Window().isVisible();
        EXPECT_EQ(stays, !row.goesOn);
        if (!row.goesOn) {
            EXPECT_EQ(Text(u"cboLoanName"), row.named ? u"Mine"_s : QString());
            EXPECT_EQ(IsMarked(NameBox()), row.answer == Answer::Yes);
            EXPECT_TRUE(Sheet().Dirty());
        }
        EXPECT_TRUE(SettledMessages().isEmpty());
        WorksheetStore(m_folder.Store()).Delete(u"Mine"_s);
    }
}

TEST_F(FileCommandsTest, WithoutChangesNothingIsAsked) {
    KeepLoan(u"Beta", u"70000");
    Trigger(u"mnuFileNew");
    EXPECT_TRUE(Messages().Questions().empty());
    EXPECT_EQ(FocusName(), u"cboLoanName");
    EXPECT_TRUE(Window().close());
    EXPECT_TRUE(Messages().Questions().empty());
}

TEST_F(FileCommandsTest, DeletingAsksAndStartsAnew) {
    KeepLoan(u"Beta", u"70000");
    Messages().WillAnswer({Answer::No, Answer::Yes});
    Trigger(u"mnuFileDelete");
    EXPECT_EQ(Kept(), QStringList(u"Beta"_s));
    EXPECT_EQ(Sheet().LoanName(), u"Beta");
    Trigger(u"mnuFileDelete");
    EXPECT_TRUE(Kept().isEmpty());
    EXPECT_EQ(Sheet().LoanName(), u"");
    EXPECT_EQ(Sheet().LoanAmount(), Money());
    EXPECT_EQ(FocusName(), u"cboLoanName");
    EXPECT_EQ(Entries(), QStringList(u"(new loan)"_s));
    ASSERT_EQ(Messages().Questions().size(), 2U);
    EXPECT_EQ(Messages().Questions()[0].text, u"Do you want to delete the worksheet “Beta”?");
    EXPECT_EQ(Messages().Questions()[0].title, u"Delete worksheet");
    EXPECT_FALSE(Messages().Questions()[0].mayCancel);
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(FileCommandsTest, DeletingAnUnnamedWorksheet) {
    Fill(u"txtLoanAmount", u"7");
    Trigger(u"mnuFileDelete"); // with changes: cleared without a question
    EXPECT_TRUE(Messages().Questions().empty());
    EXPECT_EQ(Sheet().LoanAmount(), Money());
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_EQ(FocusName(), u"cboLoanName");
    Messages().WillAnswer({Answer::Yes});
    Trigger(u"mnuFileDelete"); // without changes: a question, then a message
    ASSERT_EQ(Messages().Questions().size(), 1U);
    EXPECT_EQ(SettledMessages(),
              QStringList(u"There is no worksheet to delete: the loan has no name."_s));
}

TEST_F(FileCommandsTest, EverythingIsAskedInSpanish) {
    Begin({.locale = Spain, .language = Spanish}, m_folder.Store());
    TypeName(u"Casa");
    Fill(u"txtLoanAmount", u"7");
    Trigger(u"mnuFileDelete");
    Trigger(u"mnuFileNew");
    ASSERT_EQ(Messages().Questions().size(), 2U);
    EXPECT_EQ(Messages().Questions()[0].text, u"¿Desea eliminar la hoja de trabajo «Casa»?");
    EXPECT_EQ(Messages().Questions()[1].text, u"¿Desea guardar los cambios en «Casa»?");
    EXPECT_EQ(Messages().Questions()[1].title, u"¿Guardar los cambios?");
    EXPECT_EQ(NameBox().itemText(0), u"(préstamo nuevo)");
}

} // namespace
