// The Print command from its dialog to the printed document, with a real print server or, if none
// is installed, with a file.

#include "Language.h"
#include "LoanForm.h"
#include "PrintServerFixture.h"
#include "QuendNames.h"
#include "TablePages.h"
#include "TextNumbers.h"

#include <QAction>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>

#include <stdexcept>

namespace {

using namespace std::chrono_literals;

TEST_F(PrintServerTest, AJobArrivesAsOneDocument) {
    Begin();
    FillRows(16);
    Print();
    ASSERT_TRUE(WaitForEnd());
    ASSERT_TRUE(WaitForPaper(1));
    const QString document = Printed().front();
    EXPECT_EQ(Title(document), u"Test Job");
    ASSERT_EQ(PageCount(document), 2);
    EXPECT_EQ(PictureCount(document), 0);
    const QString first = PageText(document, 1);
    const QString second = PageText(document, 2);
    EXPECT_TRUE(first.contains(u"Our home"));
    EXPECT_TRUE(first.contains(u"Current Balance:"));
    EXPECT_TRUE(first.contains(u"Payoff Date"));
    EXPECT_FALSE(first.contains(u"Page"));
    EXPECT_TRUE(second.contains(u"Our home"));
    EXPECT_TRUE(second.contains(u"Page 2"));
    EXPECT_TRUE(second.contains(u"Payoff Date"));
    qsizetype before = -1;
    const QString all = first + second;
    for (int row = 0; row < 16; ++row) {
        const qsizetype at = all.indexOf(QStringLiteral("Bank%1 ").arg(row));
        EXPECT_GT(at, before) << row;
        before = at;
    }
    EXPECT_LT(all.indexOf(u"Bank0 "), first.size());
    EXPECT_GT(before, first.size());
    for (const QString& page : {first, second}) {
        EXPECT_TRUE(page.contains(u"Copyright 2026 Quend Halverworks."));
    }
    EXPECT_TRUE(SettledMessages().isEmpty());
    if (Server() != nullptr) {
        EXPECT_EQ(PrintServer::Jobs(), QStringList{QStringLiteral("Lab-1")});
    }
}

TEST_F(PrintServerTest, ADocumentOfAnotherWindowArrivesUnderItsTitle) {
    const PictureOnPaper chart{
        .title = QStringLiteral("Over time"),
        .paint =
            [](QPainter& painter, const QRectF& place) {
                painter.drawLine(place.topLeft(), place.bottomRight());
                painter.drawText(place, Qt::AlignCenter, QStringLiteral("Balance"));
            },
        .table = {.headings = {QStringLiteral("Year")}, .rows = {{QStringLiteral("2031")}}}};
    Begin();
    const DialogAnswer dialog(Accept);
    Commands().Print(Window(), QStringLiteral("Chart"),
                     [&](const Paper& paper) { return DrawingOf(chart, paper); });
    ASSERT_TRUE(WaitForEnd());
    ASSERT_TRUE(WaitForPaper(1));
    const QString document = Printed().front();
    EXPECT_EQ(Title(document), Server() != nullptr ? u"Over time" : u"Test Job");
    EXPECT_EQ(PageCount(document), 1);
    EXPECT_EQ(PictureCount(document), 0);
    const QString page = PageText(document, 1);
    for (const char* text : {"Over time", "Balance", "Year", "2031", "Copyright 2026"}) {
        EXPECT_TRUE(page.contains(QLatin1String(text))) << text;
    }
    EXPECT_TRUE(SettledMessages().isEmpty());
}

class CancelAt : public PrintServerTest, public testing::WithParamInterface<int> {};

// 1 to 4: in a yield; 5: while the window waits for its timer.
INSTANTIATE_TEST_SUITE_P(Moments, CancelAt, testing::Values(1, 2, 3, 4, 5));

TEST_P(CancelAt, LeavesNoTrace) {
    int yields = 0;
    const auto cancel = [&] { Job()->findChild<QPushButton*>()->click(); };
    Begin(1h, [&] {
        if (++yields == GetParam()) {
            cancel();
        }
    });
    FillRows(3);
    Print();
    if (GetParam() == 5) {
        ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
        cancel();
    }
    ASSERT_TRUE(WaitForEnd());
    ExpectNoTrace();
}

TEST_F(ServerOnlyTest, APrinterThatIsGoneDoesNotPrintOnAnother) {
    ASSERT_TRUE(BeginJob());
    AddOther();
    PrintServer::Run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("Other")});
    PrintServer::Run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), QStringLiteral("Lab")});
    HurryJob();
    EXPECT_TRUE(WaitForEnd());
    ExpectNoTrace({GetResourceText(TextNumber::PrinterGone).arg(QStringLiteral("Lab"))});
}

TEST_F(ServerOnlyTest, AStoppedQueueKeepsTheJob) {
    PrintServer::Run(QStringLiteral("cupsdisable"), {QStringLiteral("Lab")});
    Begin();
    FillRows(1);
    Print();
    EXPECT_TRUE(WaitForEnd());
    EXPECT_TRUE(SettledMessages().isEmpty());
    EXPECT_EQ(PrintServer::Jobs(), QStringList{QStringLiteral("Lab-1")});
    EXPECT_TRUE(Printed().isEmpty());
    EXPECT_EQ(Text(u"cboLoanName"), u"Our home");
    PrintServer::Run(QStringLiteral("cupsenable"), {QStringLiteral("Lab")});
    EXPECT_TRUE(WaitForPaper(1));
}

TEST_F(ServerOnlyTest, AQueueThatRejectsIsReportedAndStartsNoJob) {
    PrintServer::Run(QStringLiteral("cupsreject"), {QStringLiteral("Lab")});
    Begin();
    FillRows(1);
    Print();
    EXPECT_EQ(Job(), nullptr);
    ExpectNoTrace({GetResourceText(TextNumber::PrinterRejects).arg(QStringLiteral("Lab"))});
}

TEST_F(ServerOnlyTest, AQueueThatRejectsMeanwhileIsReported) {
    ASSERT_TRUE(BeginJob());
    PrintServer::Run(QStringLiteral("cupsreject"), {QStringLiteral("Lab")});
    HurryJob();
    EXPECT_TRUE(WaitForEnd());
    ExpectNoTrace({GetResourceText(TextNumber::PrinterRejects).arg(QStringLiteral("Lab"))});
}

TEST_F(ServerOnlyTest, AServerThatIsGoneIsReported) {
    ASSERT_TRUE(BeginJob());
    Server()->EndServer();
    HurryJob();
    EXPECT_TRUE(WaitForEnd());
    EXPECT_EQ(SettledMessages(), QStringList{GetResourceText(TextNumber::NoPrintServer)});
    EXPECT_TRUE(Printed().isEmpty());
    EXPECT_EQ(Text(u"cboLoanName"), u"Our home");
    Messages().Clear();
    Print();
    EXPECT_EQ(Job(), nullptr);
    EXPECT_EQ(SettledMessages(), QStringList{GetResourceText(TextNumber::NoPrintServer)});
}

/// Stops the server's process during its lifetime: it accepts requests and answers none.
class HungServer {
public:
    HungServer() {
        QFile file(InServerFolder(QStringLiteral("run/cupsd.pid")));
        if (!file.open(QIODevice::ReadOnly)) {
            throw std::runtime_error("the server has no process");
        }
        m_process = QString::fromLatin1(file.readAll().trimmed());
        Signal(QStringLiteral("-STOP"));
    }
    Q_DISABLE_COPY_MOVE(HungServer)
    ~HungServer() { Signal(QStringLiteral("-CONT")); }

private:
    void Signal(const QString& signal) const {
        PrintServer::Run(QStringLiteral("kill"), {signal, m_process});
    }
    QString m_process;
};

TEST_F(ServerOnlyTest, AServerThatHangsIsReportedInsteadOfAsking) {
    Begin();
    FillRows(1);
    const HungServer hung;
    QElapsedTimer clock;
    clock.start();
    const DialogAnswer answer(Accept);
    Window().Form().mnuFilePrint->trigger();
    EXPECT_LT(clock.elapsed(), 10'000) << "of two seconds";
    EXPECT_EQ(answer.Count(), 0);
    EXPECT_EQ(Job(), nullptr);
    EXPECT_EQ(SettledMessages(), QStringList{GetResourceText(TextNumber::NoPrintServer)});
}

TEST_F(ServerOnlyTest, AServerThatHangsKeepsNoPreviewWaiting) {
    Begin();
    FillRows(1);
    const HungServer hung;
    QElapsedTimer clock;
    clock.start();
    const AnswerTo<QPrintPreviewDialog> answer([](QPrintPreviewDialog& preview) {
        EXPECT_EQ(preview.findChild<QPrintPreviewWidget*>()->pageCount(), 1);
        preview.close();
    });
    Window().Form().mnuFilePrintPreview->trigger();
    EXPECT_LT(clock.elapsed(), 10'000) << "of two seconds";
    EXPECT_EQ(answer.Count(), 1);
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(ServerOnlyTest, AServerThatHangsIsWaitedFor) {
    ASSERT_TRUE(BeginJob());
    {
        const HungServer hung;
        HurryJob();
        ASSERT_TRUE(WaitFor([&] { return !JobTimer().isActive(); }));
        Settle();
        ASSERT_NE(Job(), nullptr);
        EXPECT_TRUE(Job()->isVisible());
    }
    ASSERT_TRUE(WaitForEnd());
    EXPECT_TRUE(WaitForPaper(1));
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(ServerOnlyTest, CancelLeavesNoTraceInAServerThatHangs) {
    ASSERT_TRUE(BeginJob());
    {
        const HungServer hung;
        HurryJob();
        ASSERT_TRUE(WaitFor([&] { return !JobTimer().isActive(); }));
        Job()->findChild<QPushButton*>()->click();
        ASSERT_TRUE(WaitForEnd());
    }
    ExpectNoTrace();
}

} // namespace
