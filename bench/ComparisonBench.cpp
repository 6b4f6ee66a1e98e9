// Cost of a comparison: every figure of a worksheet, of a usual one and of the one that costs most.

#include "Comparison.h"
#include "Frequency.h"
#include "Payment.h"
#include "QuendNames.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>

namespace {

Money Units(std::int64_t units) { return Money::FromTenThousandths(units * 10'000); }

/// The current loan: thirty years, a fifth of it paid.
CurrentLoanInput UsualCurrent() {
    return {.amount = Units(230'000),
            .term = {360},
            .rate = Rate::FromFraction(0.0725),
            .frequency = Frequencies.front().Code(),
            .balance = Money::FromTenThousandths(1'984'507'500),
            .actualPayment = Units(2'050),
            .actualFrequency = Frequencies.front().Code(),
            .nextPayment = Date::FromCalendar(2026, 12, 1)};
}

/// The frequencies in turn, 15 to 30 years, every third with an intended payment.
OfferInput UsualOffer(std::size_t place) {
    constexpr std::array Terms{360, 300, 240, 180};
    constexpr std::array Intended{1'900, 950, 900, 1'800}; // by frequency
    const std::size_t row = place % Frequencies.size();
    const auto number = static_cast<int>(place);
    return {.points = Percent::FromPercent(0.25 * (number % 5)),
            .pointsFinanced = number % 2 == 0,
            .costs = Units(500 + 150 * (number % 7)),
            .rate = Rate::FromFraction(0.055 + 0.00125 * (number * 5 % 16)),
            .term = {Terms.at((place + place / 4) % Terms.size())},
            .frequency = Frequencies.at(row).Code(),
            .actualPayment = number % 3 == 0 ? Units(Intended.at(row)) : Money()};
}

ComparisonInput UsualWorksheet(std::size_t offers) {
    ComparisonInput input{.today = Date::FromCalendar(2026, 11, 21),
                          .amount = Units(210'000),
                          .term = {360},
                          .escrowMonthly = Units(400),
                          .current = UsualCurrent()};
    for (std::size_t place = 0; place < offers; ++place) {
        input.offers.push_back(UsualOffer(place));
    }
    return input;
}

/// All figures of a usual worksheet.
void CompareUsualOffers(benchmark::State& state) {
    const ComparisonInput input = UsualWorksheet(static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] auto turn : state) {
        benchmark::DoNotOptimize(Compare(input));
    }
}
BENCHMARK(CompareUsualOffers)
    ->Arg(1)
    ->Arg(2)
    ->Arg(4)
    ->Arg(6)
    ->Arg(8)
    ->Arg(16)
    ->Unit(benchmark::kMillisecond);

/// Sixteen offers and a loan held today that nearly never end: from the first date to the last,
/// with three different payments each. The worst that a random search found.
ComparisonInput EndlessWorksheet() {
    constexpr int Months = 119'597;
    constexpr Money Cent = Money::FromTenThousandths(100);
    constexpr Money FourCents = Money::FromTenThousandths(400); // nearly two a payment
    const Frequency& everyTwoWeeks = Frequencies.at(2);
    const Money amount = Units(195'395'796'967);
    const Rate rate = Rate::FromFraction(7.677e-6);
    const Money required = PrincipalAndInterest(amount, rate, {Months}, everyTwoWeeks.Code());
    ComparisonInput input{.today = Date::FromCalendar(1, 1, 1),
                          .years = 50,
                          .choice = PaymentChoice::Monthly,
                          .monthlyPayment = Money::FromDouble(required.ToDouble() * 26 / 12) +
                                            Cent + Cent + Cent + Cent,
                          .amount = amount};
    input.offers.assign(16, {.costs = Units(1'000),
                             .rate = rate,
                             .term = {Months},
                             .frequency = everyTwoWeeks.Code(),
                             .actualPayment = required + Cent});
    input.offers.front().costs = Money();
    input.current = {.rate = rate,
                     .balance = amount,
                     .actualPayment = required,
                     .actualFrequency = everyTwoWeeks.Code()};
    return input;
}

/// All figures, and how many of the offers take part.
void CompareEndlessOffers(benchmark::State& state) {
    const ComparisonInput input = EndlessWorksheet();
    for ([[maybe_unused]] auto turn : state) {
        benchmark::DoNotOptimize(Compare(input));
    }
    const ComparisonResult result = Compare(input);
    state.counters["compared"] = static_cast<double>(std::ranges::count_if(
        result.offers, [](const OfferComparison& offer) { return offer.figures.has_value(); }));
}
BENCHMARK(CompareEndlessOffers)->Unit(benchmark::kMillisecond);

} // namespace
