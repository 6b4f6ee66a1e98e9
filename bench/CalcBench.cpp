#include "BareLoop.h"
#include "CLoan.h"
#include "Failure.h"
#include "HostileLoans.h"
#include "Payment.h"
#include "QuendNames.h"
#include "RecordingLoanContext.h"
#include "Schedule.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <limits>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

struct BareCase {
    const char* name;
    BarePayoff (*run)(const BareLoan&);
};

/// In the order of the table of frequencies.
constexpr std::array<BareCase, 4> BareCases{{
    {"Monthly", BareMonthly},
    {"TwiceAMonth", BareTwiceAMonth},
    {"EveryTwoWeeks", BareEveryTwoWeeks},
    {"EveryFourWeeks", BareEveryFourWeeks},
}};

double Nanoseconds(Clock::duration duration) {
    return std::chrono::duration<double, std::nano>(duration).count();
}

/// The time of one call: the mean of 100 repeated calls.
template <typename Call>
double NanosecondsOf(Call call) {
    constexpr int Calls = 100;
    const auto start = Clock::now();
    for (int i = 0; i < Calls; ++i) {
        benchmark::DoNotOptimize(call());
    }
    return Nanoseconds(Clock::now() - start) / Calls;
}

ScheduleTerms TermsFor(const Frequency& frequency) {
    const Money balance = Money::FromDouble(100'000.0);
    const Rate rate = Rate::FromFraction(0.06);
    return {.balance = balance,
            .rate = rate,
            .payment = PrincipalAndInterest(balance, rate, Months{360}, frequency.Code()),
            .escrowShare = Money(),
            .frequency = &frequency,
            .start = Date::FromCalendar(2026, 7, 21)};
}

/// The schedule compared with the bare loop of the same arithmetic, alternating, the best time of
/// each.
void SchedulePeriod(benchmark::State& state, std::size_t row) {
    const ScheduleTerms terms = TermsFor(Frequencies.at(row));
    const BareLoan bare = BareLoanOf(terms);
    double best = std::numeric_limits<double>::max();
    double bestBare = best;
    for ([[maybe_unused]] auto turn : state) {
        best = std::min(best, NanosecondsOf([&terms] { return RunToPayoff(terms); }));
        bestBare = std::min(bestBare, NanosecondsOf([&] { return BareCases.at(row).run(bare); }));
    }
    const Payoff payoff = RunToPayoff(terms);
    const BarePayoff barePayoff = BareCases.at(row).run(bare);
    if (payoff.interest.TenThousandths() != barePayoff.interest ||
        payoff.date.Days() != barePayoff.days || payoff.periods != barePayoff.periods) {
        state.SkipWithError("the bare loop has another result");
    }
    const auto periods = static_cast<double>(payoff.periods);
    state.counters["periods"] = periods;
    state.counters["ns_per_period"] = best / periods;
    state.counters["bare_ns_per_period"] = bestBare / periods;
    state.counters["ratio"] = best / bestBare;
}

/// Cost of an edit that affects every offer: up to sixteen offers, five results each.
void RecalculateOffers(benchmark::State& state, std::size_t row) {
    RecordingLoanContext context;
    context.escrowMonthly = Money::FromDouble(250.0);
    std::vector<CLoan> offers;
    for (int number = 1; number <= state.range(0); ++number) {
        offers.push_back(MakeOffer(context, {.startingAmount = Money::FromDouble(100'000.0),
                                             .points = Percent::FromPercent(1.25),
                                             .financePoints = true,
                                             .term = {360},
                                             .rate = Rate::FromFraction(0.05 + number * 0.00125),
                                             .frequency = Frequencies.at(row).Code(),
                                             .actualPayment = {}}));
    }
    for ([[maybe_unused]] auto turn : state) {
        for (CLoan& offer : offers) {
            benchmark::DoNotOptimize(offer.StartingPrinciple());
            benchmark::DoNotOptimize(offer.PandI());
            benchmark::DoNotOptimize(offer.Payment());
            benchmark::DoNotOptimize(offer.PayoffDate());
            benchmark::DoNotOptimize(offer.Interest());
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// The time of one result or failure of a loan: the best of three, so that interruptions by the
/// system do not count.
template <typename Question>
double MillisecondsOf(Question question) {
    double best = std::numeric_limits<double>::max();
    for (int attempt = 0; attempt < 3; ++attempt) {
        const auto start = Clock::now();
        try {
            benchmark::DoNotOptimize(question());
        } catch (const OverflowFailure&) {
            benchmark::ClobberMemory();
        }
        best = std::min(best, Nanoseconds(Clock::now() - start) / 1e6);
    }
    return best;
}

double SlowestAnswerTo(const HostileLoan& loan) {
    RecordingLoanContext context;
    context.escrowMonthly = loan.escrowMonthly;
    context.today = loan.start;
    CLoan offer = MakeOffer(context, loan.Offer());
    return std::max({MillisecondsOf([&loan] { return RunSchedule(loan.Terms()); }),
                     MillisecondsOf([&offer] { return offer.PayoffDate(); }),
                     MillisecondsOf([&offer] { return offer.Payment(); }),
                     MillisecondsOf([&offer] { return offer.PayoffDate(); })});
}

void WorstHostileAnswer(benchmark::State& state) {
    constexpr int LoanCount = 10'000;
    constexpr double Limit = 10.0;
    const std::vector<HostileLoan> loans = HostileLoans::Make(LoanCount);
    double slowest = 0.0;
    for ([[maybe_unused]] auto turn : state) {
        for (const HostileLoan& loan : loans) {
            slowest = std::max(slowest, SlowestAnswerTo(loan));
        }
    }
    state.counters["max_ms"] = slowest;
    if (slowest >= Limit) {
        state.SkipWithError("an answer took 10 ms or more");
    }
}

[[maybe_unused]] const bool Registered = [] {
    for (std::size_t row = 0; row < BareCases.size(); ++row) {
        const std::string name = BareCases.at(row).name;
        benchmark::RegisterBenchmark(("SchedulePeriod/" + name).c_str(), SchedulePeriod, row);
    }
    for (std::size_t row = 0; row < BareCases.size(); ++row) {
        const std::string name = BareCases.at(row).name;
        benchmark::RegisterBenchmark(("RecalculateOffers/" + name).c_str(), RecalculateOffers, row)
            ->RangeMultiplier(2)
            ->Range(1, 16)
            ->Unit(benchmark::kMicrosecond);
    }
    benchmark::RegisterBenchmark("WorstHostileAnswer", WorstHostileAnswer)
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace
