// The File menu and the box of the loan's name, worked by a user in the real window.

#include "FileCommands.h"

#include "Colours.h"
#include "LoanNameBox.h"
#include "StoreFolder.h"
#include "StoreNotice.h"
#include "WindowFixture.h"

#include <QAbstractItemView>
#include <QAction>
#include <QLineEdit>
#include <QScreen>
#include <QTest>

#include <sqlite3.h>

#include <fstream>

using namespace Qt::StringLiterals;

namespace {

class FileCommandsTest : public WindowTest {
protected:
    FileCommandsTest() { Begin({}, m_folder.Store()); }
    ~FileCommandsTest() override { m_files.reset(); }

    void Begin(const Start& start, const RegistryAPI& store) {
        m_files.reset();
        Open(start);
        Take(store);
    }
    /// Goes on with this store.
    void Take(const RegistryAPI& store) {
        m_files.reset();
        m_files = std::make_unique<FileCommands>(Window(), LoanStore(store));
        Window().OnUnload([this] { return m_files->MayDrop(); });
    }

    /// Writes over the first page of a store.
    static void Damage(const std::filesystem::path& file) {
        sqlite3* connection = nullptr;
        ASSERT_EQ(sqlite3_open(file.c_str(), &connection), SQLITE_OK);
        sqlite3_exec(connection, "PRAGMA wal_checkpoint(TRUNCATE)", nullptr, nullptr, nullptr);
        sqlite3_close(connection);
        std::fstream store(file, std::ios::in | std::ios::out | std::ios::binary);
        store << std::string(4'096, '?');
    }

    void Trigger(QStringView entry) {
        Window().findChild<QAction*>(entry.toString())->trigger();
        Settle();
    }
    void TypeName(QStringView name) {
        Click(u"cboLoanName");
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(name);
    }
    void KeepLoan(QStringView name, QStringView amount) {
        TypeName(name);
        Fill(u"txtLoanAmount", amount);
        Trigger(u"mnuFileSave");
        ASSERT_FALSE(Sheet().Dirty());
    }
    /// Opens the list of names by its key and takes an entry.
    void Pick(int index) {
        Click(u"cboLoanName");
        Press(Qt::Key_Down);
        ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        Settle();
        Press(Qt::Key_Home);
        for (int entry = 0; entry < index; ++entry) {
            Press(Qt::Key_Down);
        }
        Press(Qt::Key_Return);
        ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() == nullptr; }));
        ActivateAgain();
        Settle();
    }
    LoanNameBox& NameBox() { return Get<LoanNameBox>(u"cboLoanName"); }
    bool IsMarked() { return NameBox().lineEdit()->palette().base().color() == Colours::Missing; }
    QStringList Kept() const { return LoanStore(m_folder.Store()).Names(); }
    std::string KeptText(const std::string& loan, const std::string& value) const {
        return m_folder.Text(StoreFolder::LoanKey(loan), value);
    }
    QStringList Entries() {
        QStringList entries;
        for (int i = 0; i < NameBox().count(); ++i) {
            entries.append(NameBox().itemText(i));
        }
        return entries;
    }

    StoreFolder m_folder;
    std::unique_ptr<FileCommands> m_files;
};

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
    Fill(u"txtLoanAmount", u"7");
    Trigger(u"mnuFileSave");
    EXPECT_TRUE(IsMarked());
    EXPECT_TRUE(SettledMessages().isEmpty());
    EXPECT_TRUE(Kept().isEmpty());
    EXPECT_TRUE(Sheet().Dirty());
    Click(u"cboLoanName");
    Tab();
    EXPECT_TRUE(IsMarked());
    TypeName(u"Now");
    EXPECT_TRUE(IsMarked());
    Tab();
    EXPECT_FALSE(IsMarked());
}

TEST_F(FileCommandsTest, ARefusedFieldStopsEveryCommand) {
    KeepLoan(u"Home", u"7");
    for (const QStringView entry : {u"mnuFileNew", u"mnuFileSave", u"mnuFileDelete"}) {
        Enter(u"txtLoanAmount");
        Press(Qt::Key_A, Qt::ControlModifier);
        Paste(u"1.2.3");
        Door().Clear();
        Trigger(entry);
        EXPECT_EQ(SettledMessages(), QStringList(u"Please enter a number of the form nnnn.nn"_s));
        EXPECT_TRUE(Door().Questions().empty());
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
             RefusedName{u"(new loan)"_s, notPossible},
             RefusedName{u" "_s, u"Please give the loan a name before you save it."_s},
         }) {
        Door().Clear();
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
    Window().GetWorksheet().StoreWho(Row{2}, QString(1024, u'x'));
    Trigger(u"mnuFileSave");
    ASSERT_EQ(SettledMessages().size(), 1);
    EXPECT_TRUE(SettledMessages().front().contains(u"the lender of offer 3 is too long"));
    EXPECT_TRUE(Kept().isEmpty());
    EXPECT_TRUE(Sheet().Dirty());
}

TEST_F(FileCommandsTest, ASaveThatFailsIsToldAndStaysDirty) {
    Begin({}, RegistryAPI("/proc/no/such/place/Loan.store"));
    TypeName(u"Home");
    Fill(u"txtLoanAmount", u"7");
    Trigger(u"mnuFileSave");
    ASSERT_EQ(SettledMessages().size(), 1);
    EXPECT_EQ(SettledMessages().front(),
              u"The worksheet could not be saved. What was saved before is unchanged, and what you "
              "see stays as it is.\n\n"
              "errn=1001  src=  desc=Unable to create the registry key");
    EXPECT_TRUE(Sheet().Dirty());
    Door().WillAnswer({Answer::Yes});
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
    EXPECT_TRUE(Door().Questions().empty());
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

/// A list that drops down takes the keyboard for a while; what is typed in its box is not yet
/// meant.
TEST_F(FileCommandsTest, DroppingTheListDownIsNotLeavingTheBox) {
    KeepLoan(u"Beta", u"70000");
    TypeName(u"Half ty");
    Press(Qt::Key_Down);
    ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    EXPECT_EQ(Sheet().LoanName(), u"Beta");
    Press(Qt::Key_Escape);
    ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() == nullptr; }));
    ActivateAgain();
    EXPECT_EQ(Text(u"cboLoanName"), u"Half ty");
    EXPECT_EQ(Sheet().LoanName(), u"Beta");
    Tab();
    EXPECT_EQ(Sheet().LoanName(), u"Half ty");
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
    LoanStore(m_folder.Store()).Delete(u"Beta"_s);
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

/// What asks before it drops unsaved changes.
enum class Leaving { ByPick, ByNew, ByClosing };

class Unsaved : public FileCommandsTest, public testing::WithParamInterface<Leaving> {
protected:
    void Change(bool named) {
        KeepLoan(u"Other", u"9");
        Trigger(u"mnuFileNew");
        TypeName(named ? u"Mine"_s : QString());
        Fill(u"txtLoanAmount", u"123");
        Door().Clear();
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
        Door().WillAnswer({row.answer});
        Leave();
        ASSERT_EQ(Door().Questions().size(), 1U);
        const Question& asked = Door().Questions().front();
        EXPECT_EQ(asked.title, u"Save changes?");
        EXPECT_EQ(asked.text,
                  row.named ? u"Do you want to save the changes to “Mine”?"_s : u"Save changes?"_s);
        EXPECT_TRUE(asked.mayCancel);
        EXPECT_EQ(Kept().contains(u"Mine"_s), row.saved);
        const bool stays = Sheet().LoanAmount() == Money::FromDouble(123) && Window().isVisible();
        EXPECT_EQ(stays, !row.goesOn);
        if (!row.goesOn) {
            EXPECT_EQ(Text(u"cboLoanName"), row.named ? u"Mine"_s : QString());
            EXPECT_EQ(IsMarked(), row.answer == Answer::Yes);
            EXPECT_TRUE(Sheet().Dirty());
        }
        EXPECT_TRUE(SettledMessages().isEmpty());
        LoanStore(m_folder.Store()).Delete(u"Mine"_s);
    }
}

TEST_F(FileCommandsTest, WithoutChangesNothingIsAsked) {
    KeepLoan(u"Beta", u"70000");
    Trigger(u"mnuFileNew");
    EXPECT_TRUE(Door().Questions().empty());
    EXPECT_EQ(FocusName(), u"cboLoanName");
    EXPECT_TRUE(Window().close());
    EXPECT_TRUE(Door().Questions().empty());
}

TEST_F(FileCommandsTest, DeletingAsksAndStartsAnew) {
    KeepLoan(u"Beta", u"70000");
    Door().WillAnswer({Answer::No, Answer::Yes});
    Trigger(u"mnuFileDelete");
    EXPECT_EQ(Kept(), QStringList(u"Beta"_s));
    EXPECT_EQ(Sheet().LoanName(), u"Beta");
    Trigger(u"mnuFileDelete");
    EXPECT_TRUE(Kept().isEmpty());
    EXPECT_EQ(Sheet().LoanName(), u"");
    EXPECT_EQ(Sheet().LoanAmount(), Money());
    EXPECT_EQ(FocusName(), u"cboLoanName");
    EXPECT_EQ(Entries(), QStringList(u"(new loan)"_s));
    ASSERT_EQ(Door().Questions().size(), 2U);
    EXPECT_EQ(Door().Questions()[0].text, u"Do you want to delete the worksheet “Beta”?");
    EXPECT_EQ(Door().Questions()[0].title, u"Delete worksheet");
    EXPECT_FALSE(Door().Questions()[0].mayCancel);
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(FileCommandsTest, DeletingAnUnnamedWorksheet) {
    Fill(u"txtLoanAmount", u"7");
    Trigger(u"mnuFileDelete"); // with changes: cleared, without a question
    EXPECT_TRUE(Door().Questions().empty());
    EXPECT_EQ(Sheet().LoanAmount(), Money());
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_EQ(FocusName(), u"cboLoanName");
    Door().WillAnswer({Answer::Yes});
    Trigger(u"mnuFileDelete"); // without changes: asked, then told
    ASSERT_EQ(Door().Questions().size(), 1U);
    EXPECT_EQ(SettledMessages(),
              QStringList(u"There is no worksheet to delete: the loan has no name."_s));
}

TEST_F(FileCommandsTest, BadValuesAreToldInOneMessage) {
    KeepLoan(u"Beta", u"70000");
    const RegistryAPI store = m_folder.Store();
    const std::string key = StoreFolder::LoanKey("Beta");
    for (const char* value :
         {"LoanTerm", "EscrowTaxes", "CurrentTerm", "CurrentBalance", "CurrentPayment",
          "CurrentLoanAmount", "CurrentNextPayment", "CurrentFrequency", "CurrentActualFrequency",
          "EscrowInsurance", "CurrentActualPayment"}) {
        store.SetValue(StoreFolder::Root, key, value, RegistryType::Text, std::string("bad"));
    }
    Pick(1);
    const QStringList told = SettledMessages();
    ASSERT_EQ(told.size(), 1) << told.join(u'|').toStdString();
    EXPECT_TRUE(told.front().startsWith(
        u"Some values of this worksheet could not be read. The rest has been loaded.\n\n"
        "errn=13  src=LoanTerm  desc=Type mismatch\nerrn=13  src=EscrowTaxes"))
        << told.front().toStdString();
    EXPECT_TRUE(told.front().endsWith(u"… (11)"));
    EXPECT_EQ(Text(u"txtLoanAmount"), u"$70,000.00");
}

/// The store is damaged while the program runs; the next save repairs it and is made.
TEST_F(FileCommandsTest, ARepairInTheMiddleOfASaveIsToldOnce) {
    struct {
        int language;
        QStringView told;
    } const table[]{
        {English,
         u"The file with your saved worksheets was damaged. What could be read is in a new file: "
         u"%2 worksheets. The damaged file has been kept as %1"},
        {Spanish, u"El archivo con sus hojas de trabajo guardadas estaba dañado. Lo que se pudo "
                  u"leer está en un archivo nuevo: %2 hojas de trabajo. El archivo dañado se "
                  u"conservó como %1"},
    };
    for (const auto& row : table) {
        const StoreFolder folder;
        Begin({.language = row.language}, folder.Store());
        Take(StoreThatTells(folder.File(), Window().GetMessages(),
                            [] { return std::string("2026-11-21"); }));
        KeepLoan(u"Alpha", u"1000");
        Damage(folder.File());
        KeepLoan(u"Beta", u"2000");
        const QString kept =
            QString::fromStdString(folder.File().string()) + QStringLiteral(".damaged-2026-11-21");
        EXPECT_EQ(SettledMessages(), QStringList(row.told.toString().arg(kept).arg(1)));
        EXPECT_TRUE(QFile::exists(kept));
        KeepLoan(u"Gamma", u"3000");
        EXPECT_EQ(SettledMessages().size(), 1);
        EXPECT_EQ(LoanStore(folder.Store()).Names(),
                  (QStringList{u"Alpha"_s, u"Beta"_s, u"Gamma"_s}));
        Door().Clear();
    }
}

TEST_F(FileCommandsTest, EverythingIsAskedInSpanish) {
    Begin({.locale = Spain, .language = Spanish}, m_folder.Store());
    TypeName(u"Casa");
    Fill(u"txtLoanAmount", u"7");
    Trigger(u"mnuFileDelete");
    Trigger(u"mnuFileNew");
    ASSERT_EQ(Door().Questions().size(), 2U);
    EXPECT_EQ(Door().Questions()[0].text, u"¿Desea eliminar la hoja de trabajo «Casa»?");
    EXPECT_EQ(Door().Questions()[1].text, u"¿Desea guardar los cambios en «Casa»?");
    EXPECT_EQ(Door().Questions()[1].title, u"¿Guardar los cambios?");
    EXPECT_EQ(NameBox().itemText(0), u"(préstamo nuevo)");
}

} // namespace
