// What a report costs: reading the window, drawing the pages, and handing them over as a finished
// document; without the time that the progress window stays up.

#include "FakeMessages.h"
#include "FormReader.h"
#include "Loan.h"
#include "PagePainter.h"
#include "Report.h"

#include <QApplication>
#include <QBuffer>
#include <QPdfWriter>

#include <benchmark/benchmark.h>

namespace {

const QSizeF Letter(8 * TwipsPerInch, 10.5 * TwipsPerInch);

/// Sixteen offers, each with a lender's text of so many words.
void Fill(Loan& window, int words) {
    window.Rows().GrowTo(Row{15});
    Worksheet& sheet = window.GetWorksheet();
    sheet.SetLoanName(QStringLiteral("Our new home"));
    sheet.SetLoanAmount(Money::FromDouble(250'000));
    QStringList lender;
    for (int word = 0; word < words; ++word) {
        lender << QStringLiteral("lender%1").arg(word);
    }
    for (Row row{0}; row <= Row{15}; ++row.value) {
        CLoan& offer = sheet.OfferOfRow(row);
        offer.SetTerm(360);
        offer.SetInterestRate(0.055 + 0.00125 * row.value);
        offer.SetFrequencyCode(QStringLiteral("M"));
        offer.SetWho(lender.join(u' '));
        sheet.ShowOffer(row);
    }
}

std::size_t PrintOnce(Loan& window) {
    const FontMetrics metrics;
    Report report(ReadForm(window, Letter.width()), Letter, metrics);
    for (const Report::Section section : Report::Sections) {
        (report.*section)();
    }
    report.PrintPageFooter();
    QBuffer document;
    document.open(QIODevice::WriteOnly);
    QPdfWriter writer(&document);
    PaintPages(writer, report.Pages());
    benchmark::DoNotOptimize(document.size());
    return report.Pages().pages.size();
}

void PrintedReport(benchmark::State& state) {
    FakeMessages messages;
    Loan window({.messages = &messages,
                 .locale = QLocale(QLocale::English, QLocale::UnitedStates),
                 .today = [] { return Date::FromCalendar(2026, 11, 21); }},
                {});
    Fill(window, static_cast<int>(state.range(0)));
    window.show();
    QCoreApplication::processEvents();
    std::size_t pages = 0;
    for (auto _ : state) {
        pages = PrintOnce(window);
    }
    state.counters["pages"] = static_cast<double>(pages);
}
// Two words a lender, and lenders that fill twenty pages and more.
BENCHMARK(PrintedReport)->Arg(2)->Arg(180)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
