// The end of the desktop's session and of the program by a signal, and the next start.

#include "SessionEnd.h"

#include "EndSignals.h"
#include "FileCommandsFixture.h"
#include "QuendNames.h"
#include "UnsavedWorksheets.h"

#include <QMessageBox>
#include <QTimer>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

class SessionEndTest : public FileCommandsTest {
protected:
    SessionEndTest() { Restart(); }
    ~SessionEndTest() override { m_ending.reset(); }

    /// As the program starts, with the wiring of the program.
    void Restart(MessageInterface* messages = nullptr) {
        m_ending.reset();
        m_printed.clear();
        m_settingsKept = 0;
        m_exited = false;
        Begin({.messages = messages}, m_folder.Store());
        Wire(m_folder.Store());
    }
    void Wire(const RegistryAPI& store) {
        m_ending = std::make_unique<SessionEnd>(
            Window(), *m_files, UnsavedWorksheets(store),
            SessionEnd::World{.print = [this](const QString& text) { m_printed.append(text); },
                              .keepSettings = [this] { ++m_settingsKept; },
                              .exit = [this] { m_exited = true; }});
        Window().OnUnload([this] {
            const bool mayClose = m_files->MayDrop();
            if (mayClose) {
                m_ending->Forget();
            }
            return mayClose;
        });
    }
    /// Answers the question of the start; its text.
    QString Offered(Answer answer) {
        Messages().Clear();
        Messages().WillAnswer({answer});
        m_ending->OfferUnsaved();
        Settle();
        const auto& asked = Messages().Questions();
        return asked.empty() ? QString() : asked.front().text;
    }
    bool KeepsUnsaved() const { return UnsavedWorksheets(m_folder.Store()).First().has_value(); }

    std::unique_ptr<SessionEnd> m_ending;
    QStringList m_printed;
    int m_settingsKept = 0;
    bool m_exited = false;
};

struct EndCase {
    const char* name;
    QString loan;
    bool dirty;
    bool hasTimeToAsk;
    Answer answer;
    bool ends;
    bool closes;
    bool keeps; ///< for the next start
    bool saves;
};

TEST_F(SessionEndTest, AsksOrKeeps) {
    // clang-format off
    for (const EndCase& row : {
        //      name                 loan       dirty  asks   answer          ends   closes keeps  saves
        EndCase{"nothing, time",     u""_s,     false, true,  Answer::Cancel, true,  true,  false, false},
        EndCase{"nothing, no time",  u""_s,     false, false, Answer::Cancel, true,  false, false, false},
        EndCase{"cancelled",         u"Home"_s, true,  true,  Answer::Cancel, false, false, false, false},
        EndCase{"saved",             u"Home"_s, true,  true,  Answer::Yes,    true,  true,  false, true},
        EndCase{"dropped",           u"Home"_s, true,  true,  Answer::No,     true,  true,  false, false},
        EndCase{"unnamed, saved",    u""_s,     true,  true,  Answer::Yes,    false, false, false, false},
        EndCase{"no time",           u"Home"_s, true,  false, Answer::Cancel, true,  false, true,  false},
        EndCase{"unnamed, no time",  u""_s,     true,  false, Answer::Cancel, true,  false, true,  false},
    }) {
        // clang-format on
        SCOPED_TRACE(row.name);
        Restart();
        TypeName(row.loan);
        if (row.dirty) {
            Enter(u"txtLoanAmount");
            Type(u"7"); // the field is still being edited
        }
        Messages().Clear();
        Messages().WillAnswer({row.answer});
        EXPECT_EQ(m_ending->MayEnd(row.hasTimeToAsk), row.ends);
        EXPECT_EQ(Messages().Questions().size(), row.dirty && row.hasTimeToAsk ? 1U : 0U);
        EXPECT_EQ(Window().isVisible(), !row.closes);
        EXPECT_EQ(KeepsUnsaved(), row.keeps);
        EXPECT_EQ(!Kept().isEmpty(), row.saves);
        WorksheetStore(m_folder.Store()).Delete(row.loan);
        if (row.keeps) { // the session goes on after all, and the user saves
            Messages().WillAnswer({Answer::No});
            EXPECT_TRUE(Window().close());
            EXPECT_FALSE(KeepsUnsaved());
        }
    }
}

TEST_F(SessionEndTest, TheEndThatFollowsAsksOnlyIfTheUserWasAsked) {
    TypeName(u"Home"_s);
    Fill(u"txtLoanAmount", u"7");
    for (const bool hasTimeToAsk : {false, true, false}) {
        SCOPED_TRACE(hasTimeToAsk);
        Messages().Clear();
        Messages().WillAnswer({Answer::Cancel, Answer::Cancel});
        EXPECT_EQ(m_ending->MayEnd(hasTimeToAsk), !hasTimeToAsk);
        m_exited = false;
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &quit);
        EXPECT_EQ(m_exited, !hasTimeToAsk);
        EXPECT_EQ(Messages().Questions().size(), hasTimeToAsk ? 2U : 0U);
        EXPECT_TRUE(Window().isVisible());
        EXPECT_TRUE(KeepsUnsaved());
    }
}

TEST_F(SessionEndTest, TheNextStartOffersWhatASignalEnded) {
    struct Case {
        QString loan;
        Answer answer;
        QString question;
        bool opens;
        QString bringsBack;
    };
    const QString ofHome = u"Quend Loan was closed while “Home” was not saved. Open it again?"_s;
    const QString ofNone =
        u"Quend Loan was closed while a worksheet without a name was not saved. Open it again?"_s;
    for (const Case& row :
         {Case{u"Home"_s, Answer::Yes, ofHome, true, {}},
          Case{u"Home"_s, Answer::No, ofHome, false, u"&Bring Back “Home”"_s},
          Case{u""_s, Answer::Yes, ofNone, true, {}},
          Case{u""_s, Answer::No, ofNone, false, u"&Bring Back “without a name”"_s}}) {
        SCOPED_TRACE(row.question.toStdString());
        Restart();
        KeepLoan(u"Home", u"5");
        Trigger(u"mnuFileNew");
        TypeName(row.loan);
        FillFirstOffer();
        m_ending->EndNow();
        EXPECT_EQ(m_settingsKept, 1);
        EXPECT_TRUE(m_exited);
        EXPECT_EQ(m_printed, QStringList());
        for (const Answer answer : {Answer::Cancel, row.answer}) { // first asked again later
            Restart();
            EXPECT_EQ(Offered(answer), row.question);
            EXPECT_EQ(KeepsUnsaved(), answer == Answer::Cancel);
        }
        auto* const entry = Window().findChild<QAction*>(u"mnuFileBringBack"_s);
        EXPECT_EQ(entry->isVisible() ? entry->text() : QString(), row.bringsBack);
        if (!row.opens) {
            EXPECT_EQ(Text(u"txtLoanAmount"), u"");
            Trigger(u"mnuFileBringBack");
            EXPECT_FALSE(entry->isVisible());
        }
        EXPECT_EQ(Sheet().LoanName(), row.loan);
        EXPECT_EQ(Text(u"txtPandI(0)"), u"$599.55");
        EXPECT_TRUE(Sheet().Dirty());
        EXPECT_TRUE(Window().isWindowModified());
        EXPECT_EQ(KeptText("Home", "LoanAmount"), "5");
        EXPECT_EQ(Offered(Answer::Yes), u""); // only once
        Fill(u"txtAnnualTaxes", u"5");
        Trigger(u"mnuEditUndo");
        EXPECT_EQ(Text(u"txtMonthlyEscrow"), u"");
        EXPECT_TRUE(Sheet().Dirty()); // what was opened is not saved either
    }
}

TEST_F(SessionEndTest, EachWindowKeepsItsOwn) {
    for (const QStringView name : {u"One", u"Two"}) {
        Restart();
        TypeName(name);
        Fill(u"txtLoanAmount", u"7");
        m_ending->MayEnd(false);
        m_ending->EndNow(); // replaces what it has kept
    }
    Restart();
    EXPECT_TRUE(Offered(Answer::Yes).contains(u"“One”"_s));
    Restart();
    EXPECT_TRUE(Offered(Answer::Yes).contains(u"“Two”"_s));
    EXPECT_FALSE(KeepsUnsaved());
}

TEST_F(SessionEndTest, UnsavedChangesOfTheWindowAreNotDropped) {
    TypeName(u"Home");
    Fill(u"txtLoanAmount", u"7");
    m_ending->EndNow();
    Restart();
    Fill(u"txtLoanAmount", u"9");
    Messages().Clear();
    Messages().WillAnswer({Answer::Yes, Answer::Cancel});
    m_ending->OfferUnsaved();
    EXPECT_EQ(Messages().Questions().size(), 2U);
    EXPECT_EQ(Text(u"txtLoanAmount"), u"$9.00");
    Messages().WillAnswer({Answer::No});
    Trigger(u"mnuFileBringBack");
    EXPECT_EQ(Text(u"txtLoanAmount"), u"$7.00");
}

TEST_F(SessionEndTest, PrintsWhatNobodyHasRead) {
    Window().GetMessages().Post(u"a report"_s);
    TypeName(u"Home");
    Enter(u"txtLoanAmount");
    Press(Qt::Key_A, Qt::ControlModifier);
    Paste(u"1.2.3"); // cannot be kept
    Messages().Clear();
    Window().GetMessages().Post(u"another"_s);
    m_ending->EndNow();
    Settle();
    EXPECT_EQ(m_printed,
              QStringList({u"another"_s, u"Please enter a number of the form nnnn.nn"_s}));
    EXPECT_TRUE(Messages().Texts().isEmpty());
}

TEST_F(SessionEndTest, AStoreThatCannotBeWrittenIsReported) {
    m_ending.reset();
    Wire(RegistryAPI("/dev/null/no/such/place/Loan.store"));
    Fill(u"txtLoanAmount", u"7");
    m_ending->EndNow();
    ASSERT_EQ(m_printed.size(), 1);
    EXPECT_TRUE(m_printed.front().startsWith(
        u"The unsaved worksheet could not be kept for the next start.\n\n"_s));
}

TEST_F(SessionEndTest, ADialogThatIsOpenIsNotCoveredByAQuestion) {
    Fill(u"txtLoanAmount", u"7");
    Messages().Clear();
    QTimer::singleShot(0, [this] {
        EXPECT_TRUE(m_ending->MayEnd(true));
        QApplication::activeModalWidget()->close();
    });
    QMessageBox(QMessageBox::NoIcon, {}, u"open"_s, QMessageBox::Ok, &Window()).exec();
    EXPECT_TRUE(Messages().Questions().empty());
    EXPECT_TRUE(Window().isVisible());
    EXPECT_TRUE(KeepsUnsaved());
}

TEST_F(SessionEndTest, EverySignalEndsOnce) {
    for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
        int ends = 0;
        const EndSignals signals([&] { ++ends; });
        std::raise(number);
        EXPECT_EQ(ends, 0); // not in the handler
        EXPECT_TRUE(WaitFor([&] { return ends > 0; }));
        EXPECT_EQ(ends, 1);
    }
}

TEST_F(SessionEndTest, AnIgnoredSignalStaysIgnored) {
    const auto before = std::signal(SIGHUP, SIG_IGN);
    {
        int ends = 0;
        const EndSignals signals([&] { ++ends; });
        std::raise(SIGHUP);
        std::raise(SIGTERM);
        EXPECT_TRUE(WaitFor([&] { return ends == 1; }));
        std::raise(SIGHUP); // the others end the program now
    }
    EXPECT_EQ(std::signal(SIGHUP, before), SIG_IGN);
}

} // namespace
