// A whole loan repaid period by period: the schedule compared with the same arithmetic as a bare
// loop, and with a bond of the same terms in a library for quantitative finance. Argument: months
// of the loan.

#include "BareLoop.h"
#include "Payment.h"
#include "QuendNames.h"
#include "Schedule.h"

#include <benchmark/benchmark.h>

#include <ql/cashflows/coupon.hpp>
#include <ql/instruments/bonds/amortizingfixedratebond.hpp>
#include <ql/time/calendars/nullcalendar.hpp>
#include <ql/time/daycounters/simpledaycounter.hpp>

#include <cmath>

namespace {

constexpr double Amount = 100'000.0;
constexpr double Fraction = 0.06;

ScheduleTerms TermsOf(int months) {
    const Frequency& monthly = Frequencies.front();
    const Money balance = Money::FromDouble(Amount);
    const Rate rate = Rate::FromFraction(Fraction);
    return {.balance = balance,
            .rate = rate,
            .payment = PrincipalAndInterest(balance, rate, Months{months}, monthly.Code()),
            .escrowShare = Money(),
            .frequency = &monthly,
            .start = Date::FromCalendar(2026, 7, 21)};
}

void Schedule_(benchmark::State& state) {
    const ScheduleTerms terms = TermsOf(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto turn : state) {
        benchmark::DoNotOptimize(RunToPayoff(terms));
    }
    state.counters["periods"] = static_cast<double>(RunToPayoff(terms).periods);
}

void BareLoop(benchmark::State& state) {
    const ScheduleTerms terms = TermsOf(static_cast<int>(state.range(0)));
    const BareLoan bare = BareLoanOf(terms);
    for ([[maybe_unused]] auto turn : state) {
        benchmark::DoNotOptimize(BareMonthly(bare));
    }
}

/// Builds the bond and sums its interest, as the schedule does.
double InterestOfBond(int months) {
    using namespace QuantLib;
    const QuantLib::Date start(21, July, 2026);
    const Period term(months, QuantLib::Months);
    const AmortizingFixedRateBond bond(0, sinkingNotionals(term, Monthly, Fraction, Amount),
                                       sinkingSchedule(start, term, Monthly, NullCalendar()),
                                       {Fraction}, SimpleDayCounter());
    double interest = 0;
    for (const auto& flow : bond.cashflows()) {
        if (ext::dynamic_pointer_cast<Coupon>(flow)) {
            interest += flow->amount();
        }
    }
    return interest;
}

void LibraryBond(benchmark::State& state) {
    const auto months = static_cast<int>(state.range(0));
    for ([[maybe_unused]] auto turn : state) {
        benchmark::DoNotOptimize(InterestOfBond(months));
    }
    const double own =
        static_cast<double>(RunToPayoff(TermsOf(months)).interest.TenThousandths()) / 10'000;
    // Payments are whole cents here, but not in the library.
    if (std::abs(InterestOfBond(months) - own) > own / 1'000) {
        state.SkipWithError("the library has another result");
    }
}

void InMonths(benchmark::internal::Benchmark* bench) {
    for (const int months : {12, 60, 120, 360, 1'200}) {
        bench->Arg(months);
    }
    bench->Unit(benchmark::kMicrosecond);
}

BENCHMARK(Schedule_)->Name("Schedule")->Apply(InMonths);
BENCHMARK(BareLoop)->Apply(InMonths);
BENCHMARK(LibraryBond)->Apply(InMonths);

} // namespace
