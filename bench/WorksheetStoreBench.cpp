// What the user waits for with stored worksheets: saving and loading a full one of sixteen offers,
// listing ten thousand, and opening their list in the window. Per save, "flushes" counts the system
// calls that wait for the disk, "flush_ms" is their time and "rest_ms" the remaining time. A figure
// that misses its target is an error.

#include "EnterValues.h"
#include "FileCommands.h"
#include "FlushCount.h"
#include "Frequency.h"
#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "LoanNameBox.h"
#include "MessageQueue.h"
#include "QuendNames.h"
#include "SampleSheet.h"
#include "Sheet.h"
#include "StoreCheck.h"
#include "StoreFolder.h"
#include "WindowMain.h"
#include "Worksheet.h"
#include "WorksheetStore.h"

#include <benchmark/benchmark.h>

#include <QAbstractItemView>

#include <array>
#include <chrono>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int Rows = 16;
constexpr int ManyWorksheets = 10'000;

/// Sets every stored value of a worksheet with this many offers.
void FillSheet(Worksheet& worksheet, int offers = Rows) {
    FillSampleLoans(worksheet);
    worksheet.SetCurrentActualFrequency(FrequencyCodeToText(FrequencyCode(QStringLiteral("M"))));
    for (Row row{0}; row.value < offers; ++row.value) {
        EnterOffer(
            worksheet, row,
            {{FieldId::FinancePoints, true},
             {FieldId::Points, Percent::FromPercent(1.125)},
             {FieldId::Term, Months{360}},
             {FieldId::InterestRate, Rate::FromFraction(SampleRate(row))},
             {FieldId::Frequency, FrequencyCode(QStringLiteral("M"))},
             {FieldId::ActualPayment, Money::FromDouble(5'000)},
             {FieldId::Who, QStringLiteral("First Prairie Bank, office %1").arg(row.value)}});
    }
}

/// The mean of the rounds is compared with the target.
class Rounds {
public:
    explicit Rounds(benchmark::State& state) : m_state(&state) {}

    void Add(Clock::time_point start) {
        const Milliseconds time = Clock::now() - start;
        m_state->SetIterationTime(time.count() / 1'000);
        m_sum += time.count();
        ++m_count;
    }
    void ExpectBelow(double aim) {
        m_state->counters["aim_ms"] = aim;
        if (m_sum / m_count >= aim) {
            m_state->SkipWithError("misses its aim");
        }
    }

private:
    benchmark::State* m_state;
    double m_sum = 0;
    int m_count = 0;
};

WorksheetStore OpenStoreOf(const StoreFolder& folder, int worksheets, int offers) {
    const RegistryAPI store = folder.Store();
    Sheet sheet(QLocale::c(), offers);
    FillSheet(sheet.worksheet, offers);
    const WorksheetStore loans(store);
    for (int i = 0; i < worksheets; ++i) {
        sheet.worksheet.SetLoanName(QStringLiteral("Loan %1").arg(i));
        loans.Save(sheet.worksheet);
    }
    TidyStore(folder.File());
    return loans;
}

void MeasureSaves(benchmark::State& state, const WorksheetStore& loans, int offers) {
    Sheet sheet(QLocale::c(), offers);
    FillSheet(sheet.worksheet, offers);
    loans.Save(sheet.worksheet);
    const int flushes = FlushCount();
    const auto flushTime = FlushTime();
    const auto begin = Clock::now();
    Rounds rounds(state);
    for ([[maybe_unused]] auto round : state) {
        const auto start = Clock::now();
        loans.Save(sheet.worksheet);
        rounds.Add(start);
    }
    constexpr auto perRound = benchmark::Counter::kAvgIterations;
    const double waited = Milliseconds(FlushTime() - flushTime).count();
    const double all = Milliseconds(Clock::now() - begin).count();
    state.counters["flushes"] = benchmark::Counter(FlushCount() - flushes, perRound);
    state.counters["flush_ms"] = benchmark::Counter(waited, perRound);
    state.counters["rest_ms"] = benchmark::Counter(all - waited, perRound);
    rounds.ExpectBelow(20);
}

void SaveOfAWorksheet(benchmark::State& state) {
    const auto offers = static_cast<int>(state.range(0));
    const StoreFolder folder;
    MeasureSaves(state, OpenStoreOf(folder, 100, offers), offers);
}
BENCHMARK(SaveOfAWorksheet)
    ->RangeMultiplier(2)
    ->Range(1, Rows)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(50)
    ->UseManualTime();

void MeasureLoads(benchmark::State& state, const WorksheetStore& loans, const QString& name,
                  int offers) {
    Sheet sheet(QLocale::c(), offers);
    Rounds rounds(state);
    for ([[maybe_unused]] auto round : state) {
        const auto start = Clock::now();
        const LoadOutcome outcome = loans.Load(sheet.worksheet, name, [](Row /*last*/) {});
        rounds.Add(start);
        if (!outcome.exists || !outcome.failures.empty() ||
            sheet.worksheet.OfferOfRow(Row{offers - 1}).Who().isEmpty()) {
            state.SkipWithError("not all of it");
        }
    }
    rounds.ExpectBelow(10);
}

void LoadOfAWorksheet(benchmark::State& state) {
    const auto offers = static_cast<int>(state.range(0));
    const StoreFolder folder;
    MeasureLoads(state, OpenStoreOf(folder, 100, offers), QStringLiteral("Loan 50"), offers);
}
BENCHMARK(LoadOfAWorksheet)
    ->RangeMultiplier(2)
    ->Range(1, Rows)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();

/// Ten thousand worksheets with a name only: other values affect neither their list nor the saving
/// or loading of another worksheet.
void MakeMany(const RegistryAPI& store) {
    store.InTransaction([](const RegistryAPI& step) {
        for (int i = 0; i < ManyWorksheets; ++i) {
            const std::string key = StoreFolder::LoanKey("Our home, offer " + std::to_string(i));
            step.CreateKey(StoreFolder::Root, key);
            step.SetValue(StoreFolder::Root, key, "LoanName", RegistryType::Text, "Our home");
        }
    });
}

void SaveAmongTenThousandWorksheets(benchmark::State& state) {
    const StoreFolder folder;
    MakeMany(folder.Store());
    MeasureSaves(state, WorksheetStore(folder.Store()), Rows);
}
BENCHMARK(SaveAmongTenThousandWorksheets)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(50)
    ->UseManualTime();

void LoadAmongTenThousandWorksheets(benchmark::State& state) {
    const StoreFolder folder;
    MakeMany(folder.Store());
    MeasureLoads(state, OpenStoreOf(folder, 1, Rows), QStringLiteral("Loan 0"), Rows);
}
BENCHMARK(LoadAmongTenThousandWorksheets)->Unit(benchmark::kMillisecond)->UseManualTime();

void ListOfTenThousandWorksheets(benchmark::State& state) {
    const StoreFolder folder;
    MakeMany(folder.Store());
    const WorksheetStore loans(folder.Store());
    Rounds rounds(state);
    for ([[maybe_unused]] auto round : state) {
        const auto start = Clock::now();
        const QStringList names = loans.Names();
        rounds.Add(start);
        if (names.size() != ManyWorksheets) {
            state.SkipWithError("not all of them");
        }
    }
    rounds.ExpectBelow(50);
}
BENCHMARK(ListOfTenThousandWorksheets)->Unit(benchmark::kMillisecond)->UseManualTime();

class NoMessages : public MessageInterface {
public:
    void Show(const QString& /*text*/) override {}
    Answer Ask(const Question& /*question*/) override { return Answer::No; }
};

/// From the key that opens the list to the painted list.
void DropDownOfTenThousandWorksheets(benchmark::State& state) {
    const StoreFolder folder;
    MakeMany(folder.Store());
    NoMessages messages;
    Language::Instance().SetCurrentLanguage(1);
    Loan window({.messages = &messages,
                 .locale = QLocale::c(),
                 .today = [] { return Date::FromCalendar(2026, 11, 21); }},
                Settings{});
    const FileCommands files(window, WorksheetStore(folder.Store()));
    window.show();
    QCoreApplication::processEvents();
    LoanNameBox& box = *window.Form().cboLoanName;
    Rounds rounds(state);
    for ([[maybe_unused]] auto round : state) {
        const auto start = Clock::now();
        box.showPopup();
        QCoreApplication::processEvents();
        rounds.Add(start);
        if (box.count() != ManyWorksheets + 1 || !box.view()->isVisible()) {
            state.SkipWithError("the list is not there");
        }
        box.hidePopup();
        QCoreApplication::processEvents();
    }
    rounds.ExpectBelow(50);
}
BENCHMARK(DropDownOfTenThousandWorksheets)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(30)
    ->UseManualTime();

} // namespace

int main(int argc, char* argv[]) { return RunWindowBenchmarks(argc, argv); }
