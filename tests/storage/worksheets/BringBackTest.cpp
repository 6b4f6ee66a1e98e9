// What a save or a deletion replaces can be brought back until the program ends.

#include "FileCommandsFixture.h"
#include "QuendNames.h"

using namespace Qt::StringLiterals;

namespace {

class BringBack : public FileCommandsTest {
protected:
    QAction& Entry() { return *Window().findChild<QAction*>(u"mnuFileBringBack"_s); }
    /// The text of the entry while there is something to bring back.
    QString Offered() {
        EXPECT_EQ(Entry().isVisible(), Entry().isEnabled());
        return Entry().isVisible() ? Entry().text() : QString();
    }
    void WriteElsewhere(const std::string& amount) {
        m_folder.Store().SetValue(StoreFolder::Root, StoreFolder::LoanKey("Home"), "LoanAmount",
                                  RegistryType::Text, amount);
    }
    void SaveAs(QStringView name, QStringView amount) {
        TypeName(name);
        Fill(u"txtLoanAmount", amount);
        Trigger(u"mnuFileSave");
    }
    std::string Amount(const std::string& name = "Home") const {
        return KeptText(name, "LoanAmount");
    }
};

const QString SavedOver =
    u"Saved. The earlier worksheet of this name is kept: File, Bring Back “Home”"_s;

TEST_F(BringBack, ASaveKeepsWhatItReplacesUnlessItWasOpenedOrSavedHere) {
    // clang-format off
    struct Case {
        const char* name;
        std::function<void()> before; ///< the worksheet “Home” is stored with 7 and open
        std::string kept;             ///< its amount; empty: nothing
    };
    const std::vector<Case> cases{
        {"saved again",               [] {},                                                  ""},
        {"opened and saved",          [this] { Trigger(u"mnuFileNew"); Pick(1); },            ""},
        {"another program changed it", [this] { WriteElsewhere("5"); },                       "5"},
        {"changed and opened again",  [this] { WriteElsewhere("5"); Pick(1); },               ""},
        {"another program deleted it", [this] { WorksheetStore(m_folder.Store()).Delete(u"Home"_s); }, ""},
        {"a new one of its name",     [this] { Trigger(u"mnuFileNew"); },                     "7"},
        {"a copy and back",           [this] { SaveAs(u"Copy", u"6"); },                      "7"},
        {"the file that was opened",  [this] { m_files->ForgetStored(); },                    "7"},
        {"equal to what is saved",    [this] { WriteElsewhere("8"); },                        ""},
    };
    // clang-format on
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        Begin({}, m_folder.Store());
        for (const QString& name : Kept()) {
            WorksheetStore(m_folder.Store()).Delete(name);
        }
        KeepLoan(u"Home", u"7");
        row.before();
        SaveAs(u"Home", u"8");
        EXPECT_EQ(Amount(), "8");
        EXPECT_EQ(Announced(), row.kept.empty() ? u"Saved."_s : SavedOver);
        EXPECT_EQ(Offered(), row.kept.empty() ? QString() : u"&Bring Back “Home”"_s);
        EXPECT_TRUE(SettledMessages().isEmpty());
        EXPECT_TRUE(Messages().Questions().empty());
        if (row.kept.empty()) {
            continue;
        }
        Trigger(u"mnuFileBringBack");
        EXPECT_EQ(Amount(), row.kept);
        EXPECT_EQ(Text(u"txtLoanAmount"), u"$%1.00"_s.arg(QString::fromStdString(row.kept)));
        EXPECT_EQ(Sheet().LoanName(), u"Home");
        EXPECT_FALSE(Sheet().Dirty());
        Trigger(u"mnuFileBringBack"); // what it replaced in turn
        EXPECT_EQ(Amount(), "8");
        EXPECT_EQ(Text(u"txtLoanAmount"), u"$8.00");
    }
}

TEST_F(BringBack, RestoresADeletedWorksheetWhole) {
    FillFirstOffer();
    SaveAs(u"Home & garden", u"7");
    const auto key = StoreFolder::LoanKey("Home & garden");
    m_folder.Store().SetValue(StoreFolder::Root, key, "Of a later version", RegistryType::Number,
                              std::int32_t{5});
    const auto stored = m_folder.Store().GetValues(StoreFolder::Root, key);
    Messages().WillAnswer({Answer::Yes});
    Trigger(u"mnuFileDelete");
    ASSERT_TRUE(Kept().isEmpty());
    EXPECT_EQ(Announced(),
              u"Deleted. It is kept until you leave the program: File, Bring Back “Home & garden”");
    EXPECT_EQ(Offered(), u"&Bring Back “Home && garden”");
    Trigger(u"mnuFileBringBack");
    EXPECT_EQ(Announced(), u"Brought back.");
    EXPECT_EQ(m_folder.Store().GetValues(StoreFolder::Root, key), stored);
    EXPECT_EQ(Sheet().LoanName(), u"Home & garden");
    EXPECT_EQ(Text(u"txtPandI(0)"), u"$0.04");
    EXPECT_EQ(Offered(), u"");
}

TEST_F(BringBack, KeepsTheNameAsItWasStored) {
    KeepLoan(u"Home", u"7");
    TypeName(u"HOME");
    Messages().WillAnswer({Answer::Yes});
    Trigger(u"mnuFileDelete");
    Trigger(u"mnuFileBringBack");
    EXPECT_EQ(Kept(), QStringList(u"Home"_s));
    EXPECT_EQ(Sheet().LoanName(), u"Home");
}

TEST_F(BringBack, TheLastOneKeptComesFirst) {
    for (const QStringView name : {u"One", u"Two"}) {
        SaveAs(name, u"7");
        Messages().WillAnswer({Answer::Yes});
        Trigger(u"mnuFileDelete");
    }
    EXPECT_EQ(Offered(), u"&Bring Back “Two”");
    SwitchLanguage(Spanish);
    EXPECT_EQ(Offered(), u"Rec&uperar «Two»");
    SwitchLanguage(English);
    Window().ApplySettings(Window().GetSettings());
    Trigger(u"mnuFileBringBack");
    EXPECT_EQ(Offered(), u"&Bring Back “One”");
    Trigger(u"mnuFileBringBack");
    EXPECT_EQ(Offered(), u"");
    EXPECT_EQ(Kept(), QStringList({u"One"_s, u"Two"_s}));
}

TEST_F(BringBack, AsksBeforeUnsavedChangesAreDropped) {
    struct Case {
        Answer answer;
        bool done;
        std::string amount;
    };
    for (const Case& row : {Case{Answer::Cancel, false, "(missing)"}, Case{Answer::No, true, "7"},
                            Case{Answer::Yes, true, "7"}}) {
        Begin({}, m_folder.Store());
        KeepLoan(u"Home", u"7");
        Messages().WillAnswer({Answer::Yes});
        Trigger(u"mnuFileDelete");
        TypeName(u"Home"); // answered with Yes, the deleted one's name is saved under
        Fill(u"txtLoanAmount", u"9");
        Messages().Clear();
        Messages().WillAnswer({row.answer});
        Trigger(u"mnuFileBringBack");
        ASSERT_EQ(Messages().Questions().size(), 1U);
        EXPECT_EQ(Amount(), row.amount);
        EXPECT_EQ(Text(u"txtLoanAmount"), row.done ? u"$7.00"_s : u"$9.00"_s);
        EXPECT_EQ(Offered().isEmpty(), row.answer == Answer::No); // the saved one was replaced
    }
}

TEST_F(BringBack, AStoreThatCannotBeWrittenIsReported) {
    KeepLoan(u"Home", u"7");
    Messages().WillAnswer({Answer::Yes});
    Trigger(u"mnuFileDelete");
    {
        const StoreOutOfReach away(m_folder.File());
        Trigger(u"mnuFileBringBack");
        ASSERT_EQ(SettledMessages().size(), 1);
        EXPECT_TRUE(SettledMessages().front().startsWith(
            u"The worksheet could not be brought back. What was saved before is unchanged"_s));
    }
    EXPECT_EQ(Offered(), u"&Bring Back “Home”");
    Trigger(u"mnuFileBringBack");
    EXPECT_EQ(Amount(), "7");
}

} // namespace
