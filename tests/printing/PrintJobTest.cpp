// The life of a print job: how long its window stays open, where Cancel works, and when pages are
// sent.

#include "DrawnItems.h"
#include "FakePrinter.h"
#include "Language.h"
#include "QuendNames.h"
#include "Report.h"
#include "RulerMetrics.h"
#include "SampleForm.h"
#include "TextNumbers.h"
#include "WindowFixture.h"
#include "frmPrint.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

using namespace std::chrono_literals;

/// A job with one offer, beside the window it belongs to.
class PrintJobTest : public WindowTest {
protected:
    void SetUp() override { Open(); }

    void Start(std::chrono::milliseconds shownAtLeast, std::function<void()> yield = {},
               const QString& loanName = QStringLiteral("Home")) {
        m_job = std::make_unique<frmPrint>(
            Window(),
            frmPrint::Job{
                .message = GetResourceText(TextNumber::Printing) + QStringLiteral("%1..."),
                .name = loanName,
                .drawing =
                    std::make_unique<Report>(SampleForm(1), QSizeF(20000, 20000), m_metrics)},
            m_printer, frmPrint::Pace{.shownAtLeast = shownAtLeast, .yield = std::move(yield)});
        m_ended = std::make_unique<QSignalSpy>(m_job.get(), &frmPrint::Unloaded);
        m_job->show();
    }
    frmPrint& Job() { return *m_job; }
    FakePrinter& Printer() { return m_printer; }
    QTimer& Timer() { return *m_job->findChild<QTimer*>(QStringLiteral("tmrPrint")); }
    void Cancel() { m_job->findChild<QPushButton*>(QStringLiteral("cmdCancel"))->click(); }
    bool Ended() const { return m_ended->count() == 1; }
    bool WaitForEnd() {
        return WaitFor([this] { return Ended(); });
    }
    bool WaitForFinish() {
        return WaitFor([this] { return m_job->PrintFinished(); });
    }

private:
    RulerMetrics m_metrics;
    FakePrinter m_printer;
    std::unique_ptr<frmPrint> m_job;
    std::unique_ptr<QSignalSpy> m_ended;
};

TEST_F(PrintJobTest, NamesTheLoanInTheMiddleOfTheWindow) {
    Start(1h);
    EXPECT_TRUE(WaitForFinish());
    EXPECT_EQ(Job().windowTitle(), u"Printing...");
    EXPECT_EQ(Job().findChild<QLabel*>(QStringLiteral("lblPrintingText"))->text(),
              GetResourceText(TextNumber::Printing) + QStringLiteral("Home..."));
    EXPECT_EQ(Job().findChild<QPushButton*>(QStringLiteral("cmdCancel"))->text(), u"Cancel");
    EXPECT_FALSE(Job().isModal());
    EXPECT_EQ(Job().parentWidget(), &Window());
    const QPoint apart = Job().geometry().center() - Window().geometry().center();
    EXPECT_LE(apart.manhattanLength(), 4);
}

TEST_F(PrintJobTest, WaitsForItsTimer) {
    Start(1h);
    ASSERT_TRUE(WaitForFinish());
    Settle();
    EXPECT_TRUE(Job().isVisible());
    EXPECT_TRUE(Timer().isActive());
    EXPECT_EQ(Timer().intervalAsDuration(), 1h);
    EXPECT_TRUE(Printer().printed.empty());

    Timer().setInterval(0ms);
    ASSERT_TRUE(WaitForEnd());
    EXPECT_FALSE(Job().isVisible());
    EXPECT_FALSE(Timer().isActive());
    ASSERT_EQ(Printer().printed.size(), 1U);
    const PrintedPage& page = Printer().printed.front().pages.front();
    EXPECT_EQ(TextsOf(page).count(QStringLiteral("Legal")), 1); // the last page's footer
    EXPECT_EQ(TextsOf(page).last(), u"Legal");
}

TEST_F(PrintJobTest, TakesThreeSecondsByDefault) { EXPECT_EQ(frmPrint::Pace().shownAtLeast, 3s); }

/// If drawing lasts longer than the timer, the window closes as soon as drawing is done.
TEST_F(PrintJobTest, ClosesAtOnceWhenTheTimerHasTicked) {
    int yields = 0;
    Start(0ms, [&] {
        ++yields;
        WaitFor([this] { return !Timer().isActive(); });
        EXPECT_TRUE(Job().isVisible());
        EXPECT_TRUE(Printer().printed.empty());
        EXPECT_FALSE(Job().PrintFinished());
    });
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(yields, 4);
    EXPECT_TRUE(Job().PrintFinished());
    EXPECT_EQ(Printer().printed.size(), 1U);
}

/// In which of the four yields Cancel is pressed.
class CancelledAt : public PrintJobTest, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Yields, CancelledAt, testing::Values(1, 2, 3, 4));

TEST_P(CancelledAt, DrawsNothingMoreAndPrintsNothing) {
    int yields = 0;
    Start(0ms, [&] {
        if (++yields == GetParam()) {
            Cancel();
            EXPECT_FALSE(Job().isVisible());
            EXPECT_FALSE(Ended()); // drawing is not finished
        }
    });
    ASSERT_TRUE(WaitForEnd());
    Settle();
    EXPECT_EQ(yields, GetParam());
    EXPECT_TRUE(Job().PrintCancelled());
    EXPECT_FALSE(Job().PrintFinished());
    EXPECT_TRUE(Printer().printed.empty());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(PrintJobTest, ACancelWaitingInTheQueueIsHandledInAYield) {
    Start(1h);
    QTimer::singleShot(0, &Job(), [this] { Cancel(); });
    ASSERT_TRUE(WaitForEnd());
    EXPECT_FALSE(Job().PrintFinished());
    EXPECT_TRUE(Printer().printed.empty());
}

struct WayOut {
    const char* name;
    void (*leave)(frmPrint& job);
};

class CancelledWhileWaiting : public PrintJobTest, public testing::WithParamInterface<WayOut> {};

INSTANTIATE_TEST_SUITE_P(
    Ways, CancelledWhileWaiting,
    testing::Values(WayOut{"Button",
                           [](frmPrint& job) {
                               QTest::mouseClick(
                                   job.findChild<QPushButton*>(QStringLiteral("cmdCancel")),
                                   Qt::LeftButton);
                           }},
                    WayOut{"Escape", [](frmPrint& job) { QTest::keyClick(&job, Qt::Key_Escape); }},
                    WayOut{"Space",
                           [](frmPrint& job) {
                               QTest::keyClick(
                                   job.findChild<QPushButton*>(QStringLiteral("cmdCancel")),
                                   Qt::Key_Space);
                           }},
                    WayOut{"CloseBox", [](frmPrint& job) { job.close(); }}),
    [](const auto& way) { return way.param.name; });

TEST_P(CancelledWhileWaiting, PrintsNothingAlthoughAllIsDrawn) {
    Start(1h);
    ASSERT_TRUE(WaitForFinish());
    GetParam().leave(Job());
    EXPECT_TRUE(Ended());
    EXPECT_TRUE(Job().PrintCancelled());
    Settle();
    EXPECT_FALSE(Job().isVisible());
    EXPECT_FALSE(Timer().isActive());
    EXPECT_TRUE(Printer().printed.empty());
}

/// A Return pressed once too often in the previous dialog goes to this window.
TEST_F(PrintJobTest, ReturnIsNotCancel) {
    Start(1h);
    ASSERT_TRUE(WaitForFinish());
    auto& button = *Job().findChild<QPushButton*>(QStringLiteral("cmdCancel"));
    button.setFocus();
    for (QWidget* target : {static_cast<QWidget*>(&Job()), static_cast<QWidget*>(&button)}) {
        QTest::keyClick(target, Qt::Key_Return);
        QTest::keyClick(target, Qt::Key_Enter);
    }
    EXPECT_FALSE(Job().PrintCancelled());
    EXPECT_TRUE(Job().isVisible());
    EXPECT_FALSE(button.autoDefault() || button.isDefault());
}

TEST_F(PrintJobTest, ALongNameShowsBothItsEnds) {
    for (const QString& piece : {QStringLiteral("long"), QStringLiteral("long name ")}) {
        Start(1h, {}, QStringLiteral("Begin") + piece.repeated(60) + QStringLiteral("End"));
        ASSERT_TRUE(WaitForFinish());
        const auto& label = *Job().findChild<QLabel*>(QStringLiteral("lblPrintingText"));
        const QString name = label.text().mid(GetResourceText(TextNumber::Printing).size());
        EXPECT_TRUE(name.startsWith(u"Begin")) << name.toStdString();
        EXPECT_TRUE(name.endsWith(u"End...")) << name.toStdString();
        EXPECT_GE(label.width(), label.fontMetrics().horizontalAdvance(name));
        EXPECT_LE(Job().width(), Window().width());
        Cancel();
    }
}

TEST_F(PrintJobTest, TheWindowLivesWhileADocumentIsHandedOver) {
    Printer().whileHandingOver = Hang;
    Start(0ms);
    ASSERT_TRUE(WaitForFinish());
    ASSERT_TRUE(WaitFor([this] { return !Timer().isActive(); }));
    Settle();
    EXPECT_FALSE(Ended());
    EXPECT_TRUE(Job().isVisible());
    Cancel();
    EXPECT_FALSE(Job().isVisible());
    ASSERT_TRUE(WaitForEnd());
    EXPECT_TRUE(Job().PrintCancelled());
    EXPECT_TRUE(Printer().printed.empty());
    EXPECT_EQ(Job().Outcome().fault, PrintFault::None);
}

TEST_F(PrintJobTest, EveryFaultIsItsOutcome) {
    for (const PrintFault fault : {PrintFault::None, PrintFault::NoPrinter, PrintFault::NoServer,
                                   PrintFault::Gone, PrintFault::Rejects, PrintFault::Failed}) {
        Printer().outcome = {fault, QStringLiteral("Lab")};
        Start(0ms);
        ASSERT_TRUE(WaitForEnd());
        EXPECT_EQ(Job().Outcome().fault, fault);
        EXPECT_FALSE(Job().PrintCancelled());
    }
    EXPECT_EQ(Printer().printed.size(), 1U);
}

TEST_F(PrintJobTest, AnExceptionIsAFault) {
    const auto tear = [] { throw std::runtime_error("torn"); };
    for (const bool drawing : {true, false}) {
        Printer().whileHandingOver = [&](const std::stop_token&) { tear(); };
        Start(0ms, drawing ? std::function<void()>(tear) : nullptr);
        ASSERT_TRUE(WaitForEnd());
        EXPECT_EQ(Job().Outcome().fault, PrintFault::Failed);
        EXPECT_EQ(Job().Outcome().detail, u"torn");
        EXPECT_TRUE(Printer().printed.empty());
    }
}

TEST_F(PrintJobTest, CancelAfterTheEndChangesNothing) {
    Start(0ms);
    ASSERT_TRUE(WaitForEnd());
    Cancel();
    Job().close();
    EXPECT_TRUE(Ended());
    EXPECT_FALSE(Job().PrintCancelled());
    EXPECT_EQ(Printer().printed.size(), 1U);
}

TEST_F(PrintJobTest, ShowsTheHourglassWhileDrawing) {
    bool busy = true;
    Start(1h, [&] {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        busy = busy && cursor != nullptr && cursor->shape() == Qt::WaitCursor;
    });
    ASSERT_TRUE(WaitForFinish());
    EXPECT_TRUE(busy);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(PrintJobTest, DrawsOnceHoweverOftenItsWindowIsActivated) {
    int yields = 0;
    Start(1h, [&] { ++yields; });
    ASSERT_TRUE(WaitForFinish());
    ActivateAgain();
    Job().activateWindow();
    Settle();
    EXPECT_EQ(yields, 4);
}

TEST_F(PrintJobTest, CancelledBeforeItsFirstLineDrawsNone) {
    int yields = 0;
    Start(1h, [&] { ++yields; });
    Cancel();
    EXPECT_TRUE(Ended());
    Settle();
    EXPECT_EQ(yields, 0);
    EXPECT_TRUE(Printer().printed.empty());
}

TEST_F(PrintJobTest, TheEndOfTheProgramPrintsWhatIsFinished) {
    Start(1h);
    ASSERT_TRUE(WaitForFinish());
    Job().EndSoon();
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(Printer().printed.size(), 1U);
}

TEST_F(PrintJobTest, TheEndOfTheProgramDrawsToTheEndFirst) {
    int yields = 0;
    Start(1h, [&] {
        ++yields;
        Job().EndSoon();
    });
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(yields, 4);
    EXPECT_EQ(Printer().printed.size(), 1U);
}

TEST_F(PrintJobTest, TheEndOfTheProgramMayComeBeforeTheFirstLine) {
    Start(1h);
    Job().EndSoon();
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(Printer().printed.size(), 1U);
}

} // namespace
