// What the user sees: the time from a key sent to the window to the end of the paint that shows the
// result. Argument: offers in the worksheet. Offscreen, or on the display with QT_QPA_PLATFORM=xcb;
// bench/measure times the same from outside.

#include "ControlMap.h"
#include "FakeMessages.h"
#include "Loan.h"
#include "LoanForm.h"
#include "QuendNames.h"
#include "WindowMain.h"

#include <benchmark/benchmark.h>

#include <QLineEdit>
#include <QTest>

namespace {

/// Counts paint events below a window.
class Paints : public QObject {
public:
    explicit Paints(QObject& window) { window.installEventFilter(this); }
    bool eventFilter(QObject* /*window*/, QEvent* event) override {
        m_count += event->type() == QEvent::UpdateRequest ? 1 : 0;
        return false;
    }
    int Count() const { return m_count; }

private:
    int m_count = 0;
};

/// The key that stores the loan amount; every offer is recalculated and repainted.
void KeyToPaintedResult(benchmark::State& state) {
    FakeMessages messages;
    Settings settings;
    settings.loansDisplayed = 15;
    Loan window(BenchWorld(messages), settings);
    FillOffers(window, static_cast<int>(state.range(0)));
    window.show();
    window.activateWindow();
    QCoreApplication::processEvents();
    QLineEdit& amount = *window.Form().txtLoanAmount;
    amount.setFocus();
    QCoreApplication::processEvents();
    const Paints paints(window);
    int turn = 0;
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        amount.selectAll();
        QTest::keyClicks(&amount, QString::number(200'000 + ++turn));
        QCoreApplication::processEvents();
        const int before = paints.Count();
        state.ResumeTiming();
        QTest::keyClick(&amount, Qt::Key_Return);
        while (paints.Count() == before) {
            QCoreApplication::processEvents();
        }
    }
}
BENCHMARK(KeyToPaintedResult)
    ->RangeMultiplier(2)
    ->Range(1, 16)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace

int main(int argc, char* argv[]) { return RunWindowBenchmarks(argc, argv); }
