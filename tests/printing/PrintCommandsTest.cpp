// The entries of the File menu, before a stand-in for the printer.

#include "PrintCommands.h"

#include "DrawnItems.h"
#include "FakePrinter.h"
#include "Language.h"
#include "LoanForm.h"
#include "WindowFixture.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

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
    void SetUpPrinter() { Window().Form().mnuFilePrintSetup->trigger(); }
    FakePrinter& Printer() { return m_printer; }
    frmPrint* Job() const { return m_commands->Job(); }
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
    EXPECT_FALSE(Window().Form().mnuFilePrint->isEnabled());
    EXPECT_FALSE(Window().Form().mnuFilePrintSetup->isEnabled());
    Begin();
    EXPECT_TRUE(Window().Form().mnuFilePrint->isEnabled());
    EXPECT_TRUE(Window().Form().mnuFilePrintSetup->isEnabled());
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
    EXPECT_FALSE(Window().Form().mnuFilePrint->isEnabled());
    EXPECT_FALSE(Window().Form().mnuFilePrintSetup->isEnabled());
    ASSERT_TRUE(WaitFor([&] { return job->PrintFinished(); }));
    Job()->reject();
    ASSERT_TRUE(WaitForEnd());
    EXPECT_TRUE(Window().Form().mnuFilePrint->isEnabled());
    EXPECT_TRUE(Window().Form().mnuFilePrintSetup->isEnabled());
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

TEST_F(PrintCommandsTest, SpeakTheLanguageInUse) {
    Begin(1h, {.language = Spanish});
    Fill(u"cboLoanName", u"Casa");
    Print();
    ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
    EXPECT_EQ(Job()->windowTitle(), GetResourceText(100));
    EXPECT_EQ(Job()->windowTitle(), u"Imprimiendo...");
    EXPECT_EQ(Job()->findChild<QPushButton*>()->text(), u"Cancelar");
    EXPECT_EQ(Job()->findChild<QLabel*>(QStringLiteral("lblPrintingText"))->text(),
              GetResourceText(101) + QStringLiteral("Casa..."));
}

} // namespace
