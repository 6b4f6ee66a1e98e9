// Cost of a report: reading the window, drawing the pages, and delivering the finished document;
// without the time that the progress window stays open.

#include "EnterValues.h"
#include "FakeMessages.h"
#include "Loan.h"
#include "OfferRows.h"
#include "PagePainter.h"
#include "PdfDocument.h"
#include "QuendNames.h"
#include "Report.h"
#include "ReportInputReader.h"
#include "SystemPrinter.h"
#include "TablePages.h"
#include "Worksheet.h"

#include <QApplication>
#include <QBuffer>
#include <QLocale>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

#include <benchmark/benchmark.h>

namespace {

const QSizeF Letter(8 * TwipsPerInch, 10.5 * TwipsPerInch);

/// Fills this many offers, each with a lender's text of this many words.
void Fill(Loan& window, int offers, int words) {
    window.Rows().GrowTo(Row{offers - 1});
    Worksheet& sheet = window.GetWorksheet();
    sheet.SetLoanName(QStringLiteral("Our new home"));
    sheet.SetLoanAmount(Money::FromDouble(250'000));
    QStringList lender;
    for (int word = 0; word < words; ++word) {
        lender << QStringLiteral("lender%1").arg(word);
    }
    for (Row row{0}; row < Row{offers}; ++row.value) {
        EnterOffer(sheet, row,
                   {{FieldId::Term, Months{360}},
                    {FieldId::InterestRate, Rate::FromFraction(0.055 + 0.00125 * row.value)},
                    {FieldId::Frequency, FrequencyCode(QStringLiteral("M"))},
                    {FieldId::Who, lender.join(u' ')}});
    }
}

PrintedPages Lay(Loan& window, const TextMetrics& metrics) {
    Report report(ReadForm(window, Letter.width()), Letter, metrics);
    for (const Report::Section section : Report::Sections) {
        (report.*section)();
    }
    report.PrintPageFooter();
    return report.Pages();
}

std::size_t PrintOnce(Loan& window) {
    const FontMetrics metrics;
    const PrintedPages pages = Lay(window, metrics);
    QBuffer document;
    document.open(QIODevice::WriteOnly);
    QPdfWriter writer(&document);
    PaintPages(writer, pages);
    benchmark::DoNotOptimize(document.size());
    return pages.pages.size();
}

/// A window with the worksheet to print.
class Office {
public:
    Office(int offers, int words) {
        Fill(m_window, offers, words);
        m_window.show();
        QCoreApplication::processEvents();
    }
    Loan& Window() { return m_window; }

private:
    FakeMessages m_messages;
    Loan m_window{{.messages = &m_messages,
                   .locale = QLocale(QLocale::English, QLocale::UnitedStates),
                   .today = [] { return Date::FromCalendar(2026, 11, 21); }},
                  {}};
};

void PrintedReport(benchmark::State& state) {
    Office office(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    std::size_t pages = 0;
    for ([[maybe_unused]] auto turn : state) {
        pages = PrintOnce(office.Window());
    }
    state.counters["pages"] = static_cast<double>(pages);
}
// Two words per lender, and lenders that fill twenty pages and more.
BENCHMARK(PrintedReport)
    ->ArgsProduct({{1, 2, 4, 8, 16}, {2}})
    ->Args({16, 180})
    ->Unit(benchmark::kMillisecond);

/// A schedule of this many payments: laid out, and as a document.
void PrintedSchedule(benchmark::State& state) {
    TableOnPaper table{.title = QStringLiteral("Schedule")};
    for (int column = 0; column < 8; ++column) {
        table.headings << QStringLiteral("Column %1").arg(column);
        table.rightAligned.push_back(true);
    }
    for (int row = 0; row < state.range(0); ++row) {
        QStringList cells;
        for (int column = 0; column < 8; ++column) {
            cells << QStringLiteral("$%1,%2.00").arg(row).arg(100 + column);
        }
        table.rows.push_back(cells);
    }
    const FontMetrics metrics;
    const QPageLayout layout = PageOfFile(QLocale::c(), QPageLayout::Portrait);
    for ([[maybe_unused]] auto turn : state) {
        const auto drawing =
            DrawingOf(table, {.space = SpaceOf(layout),
                              .metrics = &metrics,
                              .font = {.family = QStringLiteral("DejaVu Sans"), .points = 9},
                              .legalNotice = {}});
        const PrintedPages pages = DrawWhole(*drawing);
        if (state.range(1) != 0) {
            benchmark::DoNotOptimize(
                PdfOf(pages, {.title = {}, .creator = {}, .layout = layout}).size());
        }
        state.counters["pages"] = static_cast<double>(pages.pages.size());
    }
}
BENCHMARK(PrintedSchedule)->ArgsProduct({{2'600}, {0, 1}})->Unit(benchmark::kMillisecond);

/// Delivery to the print server of CUPS_SERVER; only the last step waits for it.
void HandOver(benchmark::State& state) {
    if (qEnvironmentVariableIsEmpty("CUPS_SERVER")) {
        state.SkipWithError("there is no print server");
        return;
    }
    Office office(16, 2);
    const PrintedPages pages = Lay(office.Window(), FontMetrics());
    for ([[maybe_unused]] auto turn : state) {
        state.PauseTiming();
        QPrinter printer(QPrinter::HighResolution);
        PrepareDocument(printer);
        QPainter painter(&printer);
        PaintPage(painter, pages.pages.front());
        state.ResumeTiming();
        if (!painter.end()) {
            state.SkipWithError("the print server did not take it");
        }
    }
}
BENCHMARK(HandOver)->Iterations(10)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
