// Cost of one edit: recomputing everything that a full window of sixteen offers shows, including
// texts, without painting.

#include "EnterValues.h"
#include "Frequency.h"
#include "QuendNames.h"
#include "Worksheet.h"

#include <benchmark/benchmark.h>

namespace {

class NoDisplay : public WorksheetDisplay {
public:
    void ShowText(Field, const QString& text) override { benchmark::DoNotOptimize(text.size()); }
    void ShowTicked(Field, bool) override {}
    void ShowDate(Field, Date) override {}
    void ShowMark(Field, Mark) override {}
    void ShowToolTip(Field, bool) override {}
    void ShowSortOrder(SortOrder) override {}
    void PaymentRaised() override {}
    void PaymentRefused() override {}
};

/// Fills this many offers over thirty years, with the four frequencies in turn, and a current loan.
void Fill(Worksheet& worksheet, int offers = 16) {
    worksheet.GrowOfferArrays(Row{-1}, Row{offers - 1});
    worksheet.SetLoanAmount(Money::FromDouble(250'000));
    for (Row row{0}; row < Row{offers}; ++row.value) {
        const auto frequency = static_cast<std::size_t>(row.value) % Frequencies.size();
        EnterText(worksheet, {FieldId::Term, row}, QStringLiteral("30"));
        EnterText(worksheet, {FieldId::InterestRate, row},
                  QString::number(5.5 + 0.125 * row.value));
        EnterText(worksheet, {FieldId::Frequency, row},
                  FrequencyCodeToText(Frequencies.at(frequency).Code()));
    }
    EnterText(worksheet, {FieldId::CurLoanAmount}, QStringLiteral("230000"));
    EnterText(worksheet, {FieldId::CurLoanTerm}, QStringLiteral("30"));
    EnterText(worksheet, {FieldId::CurInterestRate}, QStringLiteral("7.25"));
    EnterText(worksheet, {FieldId::CurrentBalance}, QStringLiteral("198450.75"));
    EnterText(worksheet, {FieldId::CurActualPayment}, QStringLiteral("2050"));
    EnterText(worksheet, {FieldId::ActPaymentFrequency},
              FrequencyCodeToText(FrequencyCode(QStringLiteral("M"))));
}

/// Changes the annual taxes back and forth: the escrow, every offer and the current loan change.
void EverythingTheWindowShows(benchmark::State& state) {
    NoDisplay display;
    const QLocale locale(QLocale::English, QLocale::UnitedStates);
    Worksheet worksheet(display, FieldFormats(DisplayFormats(locale), false),
                        [] { return Date::FromCalendar(2026, 11, 21); });
    Fill(worksheet, static_cast<int>(state.range(0)));
    bool more = false;
    for (auto _ : state) {
        more = !more;
        worksheet.SetEscrowTaxes(Money::FromDouble(more ? 3'600 : 3'000));
    }
}
BENCHMARK(EverythingTheWindowShows)
    ->RangeMultiplier(2)
    ->Range(1, 16)
    ->Unit(benchmark::kMicrosecond);

/// Sorts by each heading in turn: every row is updated each time.
void BothSorts(benchmark::State& state) {
    NoDisplay display;
    const QLocale locale(QLocale::English, QLocale::UnitedStates);
    Worksheet worksheet(display, FieldFormats(DisplayFormats(locale), false),
                        [] { return Date::FromCalendar(2026, 11, 21); });
    Fill(worksheet);
    for (auto _ : state) {
        worksheet.SortByPayoffDate();
        worksheet.ShowOffers();
        worksheet.SortByInterest();
        worksheet.ShowOffers();
    }
}
BENCHMARK(BothSorts)->Unit(benchmark::kMicrosecond);

} // namespace
