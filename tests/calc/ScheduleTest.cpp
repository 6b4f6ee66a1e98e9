#include "Schedule.h"
#include "QuendNames.h"

#include "Failure.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <vector>

namespace {

constexpr std::int64_t Largest = std::numeric_limits<std::int64_t>::max();

struct TotalsCase {
    const char* what;
    std::int64_t balance; ///< all amounts in ten-thousandths
    double rate;
    std::int64_t payment;
    std::int64_t escrowShare;
    char16_t code; ///< a blank means no frequency
    Date start;
    std::optional<ScheduleTotals> totals; ///< none means OverflowFailure
};

ScheduleTerms TermsOf(const TotalsCase& row) {
    return {.balance = Money::FromTenThousandths(row.balance),
            .rate = Rate::FromFraction(row.rate),
            .payment = Money::FromTenThousandths(row.payment),
            .escrowShare = Money::FromTenThousandths(row.escrowShare),
            .frequency = FindFrequency(FrequencyCode(QChar(row.code))),
            .start = row.start};
}

ScheduleTotals Totals(Date payoff, std::int64_t interest, std::int64_t paid, std::int64_t periods) {
    return {payoff, Money::FromTenThousandths(interest), Money::FromTenThousandths(paid), periods};
}

void Check(const TotalsCase& row) {
    SCOPED_TRACE(row.what);
    if (!row.totals) {
        EXPECT_THROW(RunSchedule(TermsOf(row)), OverflowFailure);
        return;
    }
    const ScheduleTotals totals = RunSchedule(TermsOf(row));
    EXPECT_EQ(totals.payoff.Days(), row.totals->payoff.Days());
    EXPECT_EQ(totals.interest.TenThousandths(), row.totals->interest.TenThousandths());
    EXPECT_EQ(totals.paid.TenThousandths(), row.totals->paid.TenThousandths());
    EXPECT_EQ(totals.periods, row.totals->periods);
}

Date Day(int year, int month, int day) { return Date::FromCalendar(year, month, day); }

TEST(Schedule, EndsWithThePayoff) {
    const Date march = Day(2026, 3, 1);
    const Date may = Day(2026, 5, 10);
    const Date none;
    // clang-format off
    const std::vector<TotalsCase> cases{
        // what                                      balance  rate      payment  escrowShare  code  start  totals
        {  "eleven payments, the last partial",  100'000'000, 0.06,  10'000'000,           0, u'M', march, Totals(Day(2027, 1, 1), 2'847'917, 102'847'917, 11) },
        {  "an overpaying last payment",          10'000'000, 0.12,   6'000'000,           0, u'M', may,   Totals(Day(2026, 6, 10), 141'000, 10'141'000, 2) },
        {  "the escrow in every payment",         10'000'000, 0.12,   8'500'000,   2'500'000, u'M', may,   Totals(Day(2026, 6, 10), 141'000, 15'141'000, 2) },
        {  "one payment that exactly clears it",  10'000'000, 0.12,  10'100'000,           0, u'M', may,   Totals(Day(2026, 6, 10), 100'000, 10'100'000, 1) },
        {  "one payment a hair too large",        10'000'000, 0.12,  10'100'001,           0, u'M', may,   Totals(may, 100'000, 10'100'000, 1) },
        {  "one payment a hair too small",        10'000'000, 0.12,  10'099'999,           0, u'M', may,   Totals(Day(2026, 6, 10), 100'000, 10'100'000, 2) },
        {  "two weeks bear 14 of 365 days",       36'500'000,  0.1,  36'640'000,           0, u'W', may,   Totals(Day(2026, 5, 24), 140'000, 36'640'000, 1) },
        {  "four weeks bear 28 of 365 days",      36'500'000,  0.1,  36'780'000,           0, u'Q', may,   Totals(Day(2026, 6, 7), 280'000, 36'780'000, 1) },
        {  "half a month bears a 24th",           24'000'000,  0.1,  24'100'000,           0, u'B', may,   Totals(Day(2026, 5, 24), 100'000, 24'100'000, 1) },
        {  "half a ten-thousandth to even",                2,  3.0,           2,           0, u'M', may,   Totals(Day(2026, 6, 10), 0, 2, 1) },
        {  "without interest",                        30'000,  0.0,      10'000,           0, u'M', may,   Totals(Day(2026, 8, 10), 0, 30'000, 3) },
        {  "from no date",                            30'000,  0.0,      10'000,           0, u'W', none,  Totals(Date::FromDays(42), 0, 30'000, 3) },
        {  "nothing owed",                                 0, 0.06,      10'000,       5'000, u'M', may,   Totals(none, 0, 0, 0) },
        {  "no frequency, nothing owed",                   0, 0.06,     -10'000,           0, u' ', may,   Totals(none, 0, 0, 0) },
        {  "no frequency, a part left",               25'000, 0.06,      11'000,       1'000, u' ', may,   Totals(may, 0, 28'000, 3) },
        {  "no frequency, no part left",              30'000, 0.06,      11'000,       1'000, u' ', may,   Totals(may, 0, 33'000, 3) },
        {  "no frequency, at once",                    5'000, 0.06,      11'000,       1'000, u' ', may,   Totals(may, 0, 6'000, 1) },
        {  "no frequency, a hair each time",         Largest, 0.06,           1,           0, u' ', may,   Totals(may, 0, Largest, Largest) },
        {  "no frequency, a negative balance",       -25'000, 0.06,     -25'000,           0, u' ', may,   Totals(may, 0, -25'000, 1) },
        {  "a negative balance is cut at once",  -10'000'000, 0.12,   6'000'000,           0, u'M', may,   Totals(may, -100'000, -10'100'000, 1) },
        {  "a negative balance exactly cleared", -10'000'000, 0.12, -10'100'000,           0, u'M', may,   Totals(Day(2026, 6, 10), -100'000, -10'100'000, 1) },
    };
    // clang-format on
    for (const TotalsCase& row : cases) {
        Check(row);
    }
}

TEST(Schedule, EndsInOverflowWhereNoPayoffCanCome) {
    const Date may = Day(2026, 5, 10);
    const Date last = Day(9999, 12, 31);
    const double noNumber = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    // clang-format off
    const std::vector<TotalsCase> cases{
        // what                                                 balance  rate          payment  escrowShare       code  start              totals
        {  "taken out faster than repaid",                   10'000'000, -0.12,       -100'001, 0,                u'Q', may,               {} },
        {  "no frequency, below a negative balance",                 -5, 0.12,              -6, 0,                u' ', may,               {} },
        {  "below a negative balance",                      -10'000'000, 0.12,     -10'100'001, 0,                u'M', may,               {} },
        {  "a cent a month on a billion",            10'000'000'000'000, 0.0,              100, 0,                u'M', may,               {} },
        {  "one payment too many",                               20'000, 0.0,           10'000, 0,                u'M', Day(9999, 11, 30), {} },
        {  "no day after the last",                              10'000, 0.0,           10'000, 0,                u'W', last,              {} },
        {  "a rate that is no number",                       10'000'000, noNumber,     100'000, 0,                u'M', may,               {} },
        {  "an endless rate",                                10'000'000, infinity,     100'000, 0,                u'M', may,               {} },
        {  "interest out of range",                             Largest, 13.0,         Largest, 0,                u'M', may,               {} },
        {  "a payment out of range",                         10'000'000, 0.12,         Largest, -1,               u'M', may,               {} },
        {  "a sum of payments out of range",                     20'000, 0.0,          Largest, Largest - 10'000, u'M', may,               {} },
        {  "no frequency, a sum out of range",                  Largest, 0.0,           20'000, 10'000,           u' ', may,               {} },
    };
    // clang-format on
    for (const TotalsCase& row : cases) {
        Check(row);
    }
}

/// A balance that can never fall again fails in its first period, not after thousands of years.
TEST(Schedule, FailsAtOnceWhereTheBalanceCanNeverFall) {
    const Date may = Day(2026, 5, 10);
    // clang-format off
    const std::vector<TotalsCase> cases{
        // what                              balance   rate   payment  escrowShare  code  start  totals
        {  "exactly the interest",        10'000'000,  0.12,  100'000,           0, u'M', may,   {} },
        {  "less than the interest",      10'000'000,  0.12,   49'999,           0, u'B', may,   {} },
        {  "all for the escrow",          10'000'000,  0.12,  100'000,     100'000, u'W', may,   {} },
        {  "nothing, without interest",   10'000'000,   0.0,        0,           0, u'M', may,   {} },
        {  "taken out, without interest", 10'000'000,   0.0,       -1,           0, u'M', may,   {} },
        {  "taken out, at minus nothing", 10'000'000,  -0.0,       -1,           0, u'M', may,   {} },
        {  "taken out as fast as repaid", 10'000'000, -0.12, -100'000,           0, u'M', may,   {} },
        {  "no frequency and no payment", 10'000'000,  0.12,        0,           0, u' ', may,   {} },
        {  "no frequency, taken out",     10'000'000,  0.12,       -1,           0, u' ', may,   {} },
    };
    // clang-format on
    for (const TotalsCase& row : cases) {
        SCOPED_TRACE(row.what);
        int periods = 0;
        EXPECT_THROW(RunToPayoff(TermsOf(row), [&periods](const SchedulePeriod&) { ++periods; }),
                     OverflowFailure);
        EXPECT_EQ(periods, 0);
    }
}

TEST(Schedule, OfNothingHasNoPeriod) {
    const ScheduleTerms nothing;
    EXPECT_TRUE(nothing.rate.IsZero());
    EXPECT_EQ(nothing.frequency, nullptr);
    EXPECT_EQ(RunToPayoff(nothing).periods, 0);
    EXPECT_EQ(RunSchedule(nothing).periods, 0);
    EXPECT_TRUE(RunSchedule(nothing).payoff.IsNone());
    EXPECT_EQ(SchedulePeriod().repeats, 1);
}

/// The last date is allowed; only a step past it fails. A cut last payment takes no step.
TEST(Schedule, MayUseTheLastDate) {
    const Date last = Day(9999, 12, 31);
    Check({"cut", 10'000, 0.0, 10'001, 0, u'M', last, Totals(last, 0, 10'000, 1)});
    Check({"on it", 10'000, 0.0, 10'000, 0, u'W', Day(9999, 12, 17), Totals(last, 0, 10'000, 1)});
}

/// A negative rate repays by itself, and may overtake the amount taken out.
TEST(Schedule, RunsOnWhileANegativeRateMayStillRepay) {
    const auto termsAt = [](double rate, std::int64_t balance, std::int64_t payment) {
        return ScheduleTerms{.balance = Money::FromTenThousandths(balance),
                             .rate = Rate::FromFraction(rate),
                             .payment = Money::FromTenThousandths(payment),
                             .escrowShare = Money(),
                             .frequency = FindFrequency(FrequencyCode(QStringLiteral("M"))),
                             .start = Day(2026, 5, 10)};
    };
    // At -120 % the balance falls by a tenth each month; a payment of 0.0001 clears the rest.
    const ScheduleTotals alone = RunSchedule(termsAt(-1.2, 10'000'000, 1));
    EXPECT_EQ(alone.paid.TenThousandths(), alone.periods);
    EXPECT_EQ(alone.interest.TenThousandths(), alone.periods - 10'000'000);
    EXPECT_LT(alone.periods, 200);
    // At -2,400 % a balance of 1.00 earns 2.00. When 2.50 is taken out 1.50 remains, which earns
    // 3.00, more than is taken out: the balance is 1.00 again, and so on until the last date.
    std::int64_t periods = 0;
    EXPECT_THROW(RunSchedule(termsAt(-24.0, 10'000, -25'000),
                             [&periods](const SchedulePeriod&) { ++periods; }),
                 OverflowFailure);
    EXPECT_EQ(periods, 12 * (9999 - 2026) + 7);
    // At -3,600 % it earns 3.00. When 4.00 is taken out 2.00 remains, which earns 6.00: repaid.
    const ScheduleTotals overtaken = RunSchedule(termsAt(-36.0, 10'000, -40'000));
    EXPECT_EQ(overtaken.periods, 2);
    EXPECT_EQ(overtaken.interest.TenThousandths(), -90'000);
    EXPECT_EQ(overtaken.paid.TenThousandths(), -80'000);
}

TEST(Schedule, EndsEarlyWhereTheWatchReturnsFalse) {
    struct Case {
        const char* what;
        TotalsCase loan; ///< the payoff, interest and periods until the end; nothing was paid
        int wanted;      ///< the watch returns false from this call on
        int calls;
    };
    const Date may = Day(2026, 5, 10);
    const Date july = Day(2026, 7, 10);
    const Date late = Day(9999, 11, 30);
    const Date none;
    // clang-format off
    const std::vector<Case> cases{
        // what                        balance  rate    payment  escrow code   start  until there                     wanted calls
        {  "the first",           {"", 10'000'000, 0.12, 4'000'000, 0, u'M', may,  Totals(none, 100'000, 0, 1)},      1, 1 },
        {  "the second",          {"", 10'000'000, 0.12, 4'000'000, 0, u'M', may,  Totals(none, 161'000, 0, 2)},      2, 2 },
        {  "the last is no end",  {"", 10'000'000, 0.12, 4'000'000, 0, u'M', may,  Totals(july, 182'610, 0, 3)},      3, 3 },
        {  "more than there are", {"", 10'000'000, 0.12, 4'000'000, 0, u'M', may,  Totals(july, 182'610, 0, 3)},      4, 3 },
        {  "half a month",        {"", 10'000'000, 0.12, 4'000'000, 0, u'B', may,  Totals(none, 50'000, 0, 1)},       1, 1 },
        {  "two weeks",           {"", 10'000'000, 0.12, 4'000'000, 0, u'W', may,  Totals(none, 46'027, 0, 1)},       1, 1 },
        {  "before a date fails", {"", 10'000'000, 0.12, 4'000'000, 0, u'M', late, Totals(none, 100'000, 0, 1)},      1, 1 },
        {  "no frequency",        {"", 25'000,     0.12,    10'000, 0, u' ', may,  Totals(may, 0, 0, 3)},             1, 2 },
    };
    // clang-format on
    for (const Case& row : cases) {
        SCOPED_TRACE(row.what);
        int calls = 0;
        const auto watch = [&](const SchedulePeriod&) { return ++calls < row.wanted; };
        const Payoff payoff = RunToPayoff(TermsOf(row.loan), watch);
        EXPECT_EQ(payoff.date.Days(), row.loan.totals->payoff.Days());
        EXPECT_EQ(payoff.interest.TenThousandths(), row.loan.totals->interest.TenThousandths());
        EXPECT_EQ(payoff.periods, row.loan.totals->periods);
        EXPECT_EQ(calls, row.calls);
    }
}

TEST(Schedule, ReportsEveryPeriodToTheObserver) {
    std::vector<SchedulePeriod> periods;
    const auto watch = [&periods](const SchedulePeriod& period) { periods.push_back(period); };
    const TotalsCase twoPayments{"",   10'000'000,       0.12, 8'500'000, 2'500'000,
                                 u'M', Day(2026, 5, 10), {}};
    RunSchedule(TermsOf(twoPayments), watch);
    ASSERT_EQ(periods.size(), 2U);
    const auto expect = [&periods](std::size_t at, Date date, std::vector<std::int64_t> amounts) {
        EXPECT_EQ(periods[at].date, date);
        EXPECT_EQ(periods[at].interest.TenThousandths(), amounts[0]);
        EXPECT_EQ(periods[at].principal.TenThousandths(), amounts[1]);
        EXPECT_EQ(periods[at].balance.TenThousandths(), amounts[2]);
        EXPECT_EQ(periods[at].repeats, amounts[3]);
    };
    expect(0, Day(2026, 6, 10), {100'000, 5'900'000, 4'100'000, 1});
    expect(1, Day(2026, 6, 10), {41'000, 4'100'000, 0, 1});

    periods.clear();
    const TotalsCase divided{"", 35'000, 0.12, 12'000, 2'000, u' ', Day(2026, 5, 10), {}};
    RunSchedule(TermsOf(divided), watch);
    ASSERT_EQ(periods.size(), 2U);
    expect(0, Day(2026, 5, 10), {0, 10'000, 5'000, 3});
    expect(1, Day(2026, 5, 10), {0, 5'000, 0, 1});

    periods.clear();
    const TotalsCase atOnce{"", 5'000, 0.12, 12'000, 2'000, u' ', Day(2026, 5, 10), {}};
    RunSchedule(TermsOf(atOnce), watch);
    ASSERT_EQ(periods.size(), 1U);
    expect(0, Day(2026, 5, 10), {0, 5'000, 0, 1});
}

/// An offer needs only the payoff, so the sum of its payments may exceed the range.
TEST(Schedule, ToThePayoffSumsNoPayments) {
    const TotalsCase enormous{"",   20'000,           0.0, Largest, Largest - 10'000,
                              u'M', Day(2026, 5, 10), {}};
    EXPECT_THROW(RunSchedule(TermsOf(enormous)), OverflowFailure);
    const Payoff payoff = RunToPayoff(TermsOf(enormous));
    EXPECT_EQ(payoff.date, Day(2026, 7, 10));
    EXPECT_EQ(payoff.periods, 2);
}

} // namespace
