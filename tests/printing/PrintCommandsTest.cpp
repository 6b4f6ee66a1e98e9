// The entries of the File menu, with a fake printer.

#include "PrintCommands.h"
#include "EnterValues.h"
#include "QuendNames.h"

#include "DrawnItems.h"
#include "FakePrinter.h"
#include "Language.h"
#include "LoanForm.h"
#include "PrinterPlugin.h"
#include "TextNumbers.h"
#include "WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

using namespace std::chrono_literals;

class PrintCommandsTest : public WindowTest {
protected:
    void Begin(std::chrono::milliseconds shownAtLeast = 0ms, const Start& start = {}) {
        Open(start);
        m_commands = std::make_unique<PrintCommands>(
            Window(), m_printer, frmPrint::Pace{.shownAtLeast = shownAtLeast, .yield = {}});
    }
    void Print() { Window().Form().mnuFilePrint->trigger(); }
    std::array<QAction*, 4> Entries() {
        const Ui::Loan& form = Window().Form();
        return {form.mnuFilePrint, form.mnuFilePrintSetup, form.mnuFilePrintPreview,
                form.mnuFileExportPdf};
    }
    std::ptrdiff_t Enabled() { return std::ranges::count_if(Entries(), &QAction::isEnabled); }
    void SetUpPrinter() { Window().Form().mnuFilePrintSetup->trigger(); }
    FakePrinter& Printer() { return m_printer; }
    frmPrint* Job() { return Window().findChild<frmPrint*>(); }
    bool WaitForEnd() {
        return WaitFor([this] { return Job() == nullptr; });
    }
    void End() { m_commands.reset(); }

private:
    FakePrinter m_printer;
    std::unique_ptr<PrintCommands> m_commands;
};

TEST_F(PrintCommandsTest, EnableTheirEntries) {
    Open();
    EXPECT_EQ(Enabled(), 0);
    Begin();
    EXPECT_EQ(Enabled(), 4);
}

TEST_F(PrintCommandsTest, PrintFromTheKeyboard) {
    Begin();
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(WaitFor([this] { return Printer().printed.size() == 1; }));
}

TEST_F(PrintCommandsTest, PrintTheWorksheet) {
    Begin();
    Fill(u"cboLoanName", u"Our home");
    FillFirstOffer();
    Print();
    ASSERT_NE(Job(), nullptr);
    EXPECT_TRUE(Job()->isVisible());
    ASSERT_TRUE(WaitForEnd());
    ASSERT_EQ(Printer().printed.size(), 1U);
    const PrintedPages& pages = Printer().printed.front();
    EXPECT_EQ(pages.space, Printer().space);
    ASSERT_EQ(pages.pages.size(), 1U);
    const QStringList texts = TextsOf(pages.pages.front());
    for (const char* text : {"Our home", "$100,000.00", "6.000%", "11/21/2056", "P & I"}) {
        EXPECT_TRUE(texts.contains(QString::fromUtf8(text))) << text;
    }
}

TEST_F(PrintCommandsTest, ACancelledDialogPrintsNothingAndSaysNothing) {
    Begin();
    Printer().answer = false;
    Print();
    Settle();
    EXPECT_EQ(Printer().asked, 1);
    EXPECT_EQ(Job(), nullptr);
    EXPECT_TRUE(Printer().printed.empty());
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(PrintCommandsTest, SetUpNeverStartsAJob) {
    Begin();
    SetUpPrinter();
    Settle();
    EXPECT_EQ(Printer().setUp, 1);
    EXPECT_EQ(Printer().asked, 0);
    EXPECT_EQ(Job(), nullptr);
    EXPECT_TRUE(Printer().printed.empty());
}

TEST_F(PrintCommandsTest, AFailureOfTheDialogIsNotTold) {
    Begin();
    Printer().whileAsking = [] { throw std::runtime_error("no printing system"); };
    Print();
    EXPECT_EQ(Job(), nullptr);
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(PrintCommandsTest, StoreTheFieldBeingEditedFirst) {
    Begin();
    Enter(u"txtLoanAmount");
    Type(u"2500");
    Print();
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(Sheet().LoanAmount(), Money::FromDouble(2500));
    EXPECT_TRUE(TextsOf(Printer().printed.at(0).pages.at(0)).contains(u"$2,500.00"));
    EXPECT_EQ(Text(u"txtLoanAmount"), u"2500");
}

TEST_F(PrintCommandsTest, ARefusedFieldStopsThem) {
    Begin();
    Enter(u"txtInterestRate(0)");
    Type(u"1.2.3");
    Print();
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_EQ(Printer().asked, 0);
    EXPECT_EQ(Job(), nullptr);
    EXPECT_EQ(Text(u"txtInterestRate(0)"), u"1.2.3");
}

TEST_F(PrintCommandsTest, OneJobAtATime) {
    Begin(1h);
    Print();
    const frmPrint* job = Job();
    ASSERT_NE(job, nullptr);
    EXPECT_EQ(Enabled(), 0);
    ASSERT_TRUE(WaitFor([&] { return job->PrintFinished(); }));
    Job()->reject();
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(Enabled(), 4);
    EXPECT_TRUE(Printer().printed.empty());
}

TEST_F(PrintCommandsTest, WhatIsEditedMeanwhileIsNotPrinted) {
    Begin(1h);
    Fill(u"txtLoanAmount", u"1000");
    Print();
    ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
    SheetToWrite().SetLoanAmount(Money::FromDouble(9));
    Job()->findChild<QTimer*>(QStringLiteral("tmrPrint"))->setInterval(0ms);
    ASSERT_TRUE(WaitForEnd());
    EXPECT_TRUE(TextsOf(Printer().printed.at(0).pages.at(0)).contains(u"$1,000.00"));
}

TEST_F(PrintCommandsTest, PrintingLeavesTheWorksheetAlone) {
    Begin();
    FillFirstOffer();
    SheetToWrite().ClearDirty();
    Enter(u"txtPoints(0)");
    Print();
    ASSERT_TRUE(WaitForEnd());
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_EQ(Text(u"txtPayment(0)"), u"$599.55");
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(PrintCommandsTest, TheProgramEndsWithAFinishedReportOnItsWay) {
    Begin(1h);
    Print();
    ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
    EXPECT_TRUE(Window().close());
    End();
    EXPECT_EQ(Printer().printed.size(), 1U);
}

struct EndOfProgram {
    const char* name;
    void (*end)(Loan& window);
};

void PrintTo(const EndOfProgram& end, std::ostream* out) { *out << end.name; }

/// The program as it really runs: quitting closes every open window, the progress window, too.
class EndsOfProgram : public PrintCommandsTest, public testing::WithParamInterface<EndOfProgram> {
protected:
    /// Runs until the program has ended by itself.
    void RunProgram() {
        QTimer::singleShot(0, &Window(), [this] { GetParam().end(Window()); });
        QApplication::exec();
    }
};

INSTANTIATE_TEST_SUITE_P(
    Ways, EndsOfProgram,
    testing::Values(EndOfProgram{"Closed", [](Loan& window) { window.close(); }},
                    EndOfProgram{"FileExit",
                                 [](Loan& window) { window.Form().mnuFileExit->trigger(); }},
                    EndOfProgram{"Quit", [](Loan&) { QCoreApplication::quit(); }},
                    EndOfProgram{"EndOfSession",
                                 [](Loan&) {
                                     QEvent quit(QEvent::Quit);
                                     QCoreApplication::sendEvent(qApp, &quit);
                                 }}),
    [](const auto& end) { return end.param.name; });

TEST_P(EndsOfProgram, PrintTheReportThatWaits) {
    Begin(1h);
    Print();
    ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
    RunProgram();
    EXPECT_EQ(Job(), nullptr);
    EXPECT_FALSE(Window().isVisible());
    EXPECT_EQ(Printer().printed.size(), 1U);
    EXPECT_TRUE(Messages().Texts().isEmpty());
}

TEST_P(EndsOfProgram, PrintTheReportThatIsNotYetDrawn) {
    Begin(1h);
    Print();
    RunProgram();
    EXPECT_EQ(Printer().printed.size(), 1U);
}

TEST_P(EndsOfProgram, TellOfAReportThatCannotBePrinted) {
    Begin(1h);
    Printer().outcome = {PrintFault::NoServer};
    Print();
    RunProgram();
    EXPECT_EQ(Messages().Texts(), QStringList{GetResourceText(TextNumber::NoPrintServer)});
}

/// Even with a hanging server the program can end.
TEST_P(EndsOfProgram, LeaveCancelAtWork) {
    Begin(1h);
    Printer().whileHandingOver = [this](const std::stop_token& stop) {
        QMetaObject::invokeMethod(
            qApp, [this] { Job()->reject(); }, Qt::QueuedConnection);
        Hang(stop);
    };
    Print();
    RunProgram();
    EXPECT_EQ(Job(), nullptr);
    EXPECT_TRUE(Printer().printed.empty());
    EXPECT_TRUE(Messages().Texts().isEmpty());
}

struct Fault {
    PrintOutcome outcome;
    int text;
    QString named;
};

const std::vector<Fault>& Faults() {
    static const std::vector<Fault> faults{
        {{PrintFault::NoPrinter}, TextNumber::NoPrinter, {}},
        {{PrintFault::NoServer}, TextNumber::NoPrintServer, {}},
        {{PrintFault::Gone, QStringLiteral("Lab")}, TextNumber::PrinterGone, QStringLiteral("Lab")},
        {{PrintFault::Rejects, QStringLiteral("Lab")},
         TextNumber::PrinterRejects,
         QStringLiteral("Lab")},
    };
    return faults;
}

QString Reported(const Fault& fault) {
    const QString text = GetResourceText(fault.text);
    return fault.named.isEmpty() ? text : text.arg(fault.named);
}

TEST_F(PrintCommandsTest, WhereNothingCanPrintNoJobStarts) {
    Begin();
    for (const Fault& fault : Faults()) {
        Printer().chance = fault.outcome;
        Print();
        EXPECT_EQ(Job(), nullptr);
        EXPECT_EQ(SettledMessages(), QStringList{Reported(fault)});
        Messages().Clear();
        SetUpPrinter();
        EXPECT_EQ(SettledMessages(), QStringList{Reported(fault)});
        Messages().Clear();
    }
    EXPECT_TRUE(Printer().printed.empty());
}

TEST_F(PrintCommandsTest, ALostDocumentIsToldOnce) {
    Begin();
    for (const Fault& fault : Faults()) {
        Printer().outcome = fault.outcome;
        Print();
        ASSERT_TRUE(WaitForEnd());
        EXPECT_EQ(SettledMessages(), QStringList{Reported(fault)});
        Messages().Clear();
    }
    Printer().outcome = {PrintFault::Failed, QStringLiteral("Too hot.")};
    Print();
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(SettledMessages(), QStringList{GetResourceText(TextNumber::NotPrinted) +
                                             QStringLiteral("\n\nToo hot.")});
}

TEST_F(PrintCommandsTest, MarginsWithoutRoomForARowAreRefused) {
    struct {
        QSizeF space; // inches
        bool prints;
    } const table[]{
        {{8, 10.5}, true},                                            // Letter
        {{10.5, 8}, true},  {{5.5, 7.9}, true},                       // A5
        {{3.8, 5.5}, true},                                           // A6
        {{8, 1}, false},                                              // no row
        {{8, 0.1}, false},  {{8, 0}, false},    {{0.5, 10.5}, false}, // no column
        {{0, 10.5}, false}, {{0, 0}, false},
    };
    Begin();
    EnterText(SheetToWrite(), {FieldId::Who, Row{0}},
              QStringLiteral("Bank of the far prairie ").repeated(40));
    for (const auto& row : table) {
        Printer().space = row.space * TwipsPerInch;
        Printer().printed.clear();
        Print();
        ASSERT_TRUE(WaitForEnd());
        const QStringList reported =
            row.prints ? QStringList() : QStringList{GetResourceText(TextNumber::MarginsTooWide)};
        EXPECT_EQ(SettledMessages(), reported) << row.space.width() << ' ' << row.space.height();
        ASSERT_EQ(Printer().printed.size(), row.prints ? 1U : 0U);
        if (row.prints) {
            EXPECT_LE(Printer().printed.front().pages.size(), 5U) << row.space.width();
        }
        Messages().Clear();
    }
}

TEST_F(PrintCommandsTest, ATickIsAsLargeAsOtherText) {
    Begin();
    FillFirstOffer();
    Get<QCheckBox>(u"chkPoints(0)").click();
    for (const double width : {8.0, 7.5, 5.3, 3.8}) {
        Printer().space.setWidth(width * TwipsPerInch);
        Printer().printed.clear();
        Print();
        ASSERT_TRUE(WaitForEnd());
        const PrintedPage& page = Printer().printed.at(0).pages.at(0);
        const PrintFont tick = TextNamed(page, QStringLiteral("x")).font;
        EXPECT_GE(tick.points, TextNamed(page, QStringLiteral("6.000%")).font.points) << width;
        EXPECT_GE(tick.points, 6) << width;
    }
}

TEST_F(PrintCommandsTest, AMissingLibraryIsNamed) {
    Open();
    PrinterOfPlugin missing; // the tests' folder has none of the program's plugins
    const PrintCommands commands(Window(), missing, {}, [](auto&...) {
        return ExportFile{.name = QStringLiteral("unused.pdf"), .filter = {}};
    });
    const QString file =
        QCoreApplication::applicationDirPath() + QStringLiteral("/Loan.Printers.so");
    for (QAction* entry : Entries()) {
        entry->trigger();
        EXPECT_EQ(SettledMessages(),
                  QStringList{GetResourceText(TextNumber::PartMissing).arg(file)});
        Messages().Clear();
    }
}

TEST_F(PrintCommandsTest, SpeakTheLanguageInUse) {
    Begin(1h, {.language = Spanish});
    Fill(u"cboLoanName", u"Casa");
    Print();
    ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
    EXPECT_EQ(Job()->windowTitle(), GetResourceText(100));
    EXPECT_EQ(Job()->windowTitle(), u"Imprimiendo...");
    EXPECT_EQ(Job()->findChild<QPushButton*>()->text(), u"Cancelar");
    EXPECT_EQ(Job()->findChild<QLabel*>(QStringLiteral("lblPrintingText"))->text(),
              GetResourceText(TextNumber::Printing) + QStringLiteral("Casa..."));
}

} // namespace
