// What the user waits for when the offers are compared: from the command to the window painted.
// Argument: offers in the worksheet. Offscreen, or on the display with QT_QPA_PLATFORM=xcb.

#include "CompareCommands.h"
#include "LoanForm.h"
#include "WindowMain.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

quend::compare::CompareWorld NoWorld() {
    return {.print = [](QWidget&, const QString&, const quend::printing::DrawDocument&) {},
            .exportPdf = [](const QString&, const QString&,
                            const quend::printing::DrawDocument&) { return QString(); },
            .askForFile = [](QWidget&, const QString&,
                             const QStringList&) { return quend::window::ExportFile(); },
            .restoreGeometry = [](QWidget&) {},
            .saveGeometry = [](const QWidget&) {},
            .restoreColumns = [] { return QByteArray(); },
            .saveColumns = [](const QByteArray&) {}};
}

/// Every round opens it for the first time.
void OpenComparison(benchmark::State& state) {
    FakeMessages messages;
    Loan window(BenchWorld(messages), Settings());
    FillOffers(window, static_cast<int>(state.range(0)));
    window.show();
    QCoreApplication::processEvents();
    for ([[maybe_unused]] auto round : state) {
        const quend::compare::CompareCommands commands(window, NoWorld());
        window.Form().mnuToolsCompare->trigger();
        QCoreApplication::processEvents();
        benchmark::DoNotOptimize(QApplication::topLevelWidgets().size());
    }
}
BENCHMARK(OpenComparison)
    ->RangeMultiplier(2)
    ->Range(1, 16)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace

int main(int argc, char* argv[]) { return RunWindowBenchmarks(argc, argv); }
