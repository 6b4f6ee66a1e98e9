#include "AccrualPeriods.h"
#include "QuendNames.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

Date Day(int year, int month, int day) { return Date::FromCalendar(year, month, day); }

TEST(AccrualPeriods, MonthAfter) {
    struct Case {
        Date day;
        int months;
        Date expected;
    };
    const std::array cases{
        Case{Day(2026, 1, 31), 1, Day(2026, 2, 28)},
        Case{Day(2026, 1, 31), 2, Day(2026, 3, 31)}, // from the first day, not by way of February
        Case{Day(2028, 2, 29), 12, Day(2029, 2, 28)},
        Case{Day(2026, 3, 31), -1, Day(2026, 2, 28)},
        Case{Day(2026, 1, 15), -1, Day(2025, 12, 15)},
        Case{Day(9999, 11, 30), 1, Day(9999, 12, 30)},
        Case{Day(9999, 12, 5), 1, Date::Last()},
        Case{Day(9990, 12, 5), 600, Date::Last()},
        Case{Day(1, 1, 5), -1, Day(1, 1, 1)},
        Case{Day(1, 3, 31), -1, Day(1, 2, 28)},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(MonthAfter(row.day, row.months), row.expected)
            << row.day.Days() << " + " << row.months;
    }
}

TEST(AccrualPeriods, OnePeriodBeforeTheFirstDates) {
    struct Case {
        std::size_t frequency;
        Date day;
        Date expected;
    };
    const std::array cases{
        Case{0, Day(1, 2, 2), Day(1, 1, 2)},  Case{0, Day(1, 1, 31), Day(1, 1, 1)},
        Case{1, Day(1, 1, 17), Day(1, 1, 2)}, Case{1, Day(1, 1, 15), Day(1, 1, 1)},
        Case{2, Day(1, 1, 16), Day(1, 1, 2)}, Case{2, Day(1, 1, 14), Day(1, 1, 1)},
        Case{3, Day(1, 1, 30), Day(1, 1, 2)}, Case{3, Day(1, 1, 28), Day(1, 1, 1)},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(OnePeriodBefore(row.day, Frequencies.at(row.frequency)), row.expected)
            << row.frequency << " " << row.day.Days();
    }
}

/// Payments of 1.00 without interest; the last is smaller, so the schedule takes no step after it.
DatedLoan Undated(const Frequency& frequency, Date start, int payments, Accrual accrual) {
    return {.terms = {.balance = Money::FromTenThousandths(payments * 10'000 - 1),
                      .rate = Rate(),
                      .payment = Money::FromTenThousandths(10'000),
                      .escrowShare = Money(),
                      .frequency = &frequency,
                      .start = start},
            .accrual = accrual};
}

std::vector<AccrualPeriod> PeriodsOf(const DatedLoan& loan) {
    std::vector<AccrualPeriod> found;
    AccrualPeriods periods(loan);
    RunToPayoff(loan.terms,
                [&](const SchedulePeriod& period) { found.push_back(periods.Next(period.date)); });
    return found;
}

TEST(AccrualPeriods, EachBeginsWhereTheLastEnds) {
    for (const Frequency& frequency : Frequencies) {
        for (const Date start : {Day(2026, 1, 31), Day(2028, 2, 29), Day(2027, 11, 18)}) {
            // One period more dates the end of the shorter schedule's last one.
            for (int count = 1; count < 30; ++count) {
                const auto after =
                    PeriodsOf(Undated(frequency, start, count, Accrual::AfterPayment));
                const auto longer =
                    PeriodsOf(Undated(frequency, start, count + 1, Accrual::AfterPayment));
                const auto before =
                    PeriodsOf(Undated(frequency, start, count + 1, Accrual::BeforePayment));
                ASSERT_EQ(after.size(), static_cast<std::size_t>(count));
                EXPECT_EQ(after.front().start, start);
                EXPECT_EQ(before.front().end, start);
                EXPECT_EQ(after.back().end, longer.back().start);
                EXPECT_EQ(after.back().start, before.back().start);
                EXPECT_EQ(after.back().end, before.back().end);
            }
        }
    }
}

TEST(AccrualPeriods, FirstOfTheLoanHeldToday) {
    const std::array<Date, 4> starts{Day(2026, 2, 28), Day(2026, 3, 16), Day(2026, 3, 17),
                                     Day(2026, 3, 3)}; // a month, 15, 14, 28 days
    for (std::size_t i = 0; i < Frequencies.size(); ++i) {
        const auto periods =
            PeriodsOf(Undated(Frequencies.at(i), Day(2026, 3, 31), 1, Accrual::BeforePayment));
        EXPECT_EQ(periods.front().start, starts.at(i)) << i;
    }
}

TEST(AccrualPeriods, InterestOfAPart) {
    struct Case {
        int from;
        int until;
        int expected;
    };
    const AccrualPeriod period{Date::FromDays(100), Date::FromDays(130)};
    const std::array cases{
        Case{100, 130, 1'001}, Case{90, 140, 1'001}, // all of it
        Case{100, 115, 500},   Case{115, 130, 500},  // 500.5: to even
        Case{110, 120, 334},   Case{90, 101, 33},    Case{90, 100, 0},
        Case{80, 90, 0},       Case{130, 140, 0},    Case{140, 150, 0},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(AccruedBetween(Date::FromDays(row.from), Date::FromDays(row.until), period,
                                 Money::FromTenThousandths(1'001))
                      .TenThousandths(),
                  row.expected)
            << row.from << " to " << row.until;
    }
}

/// The steps from each due date on, counted one by one. Days of the month beyond 28 would be cut.
TEST(AccrualPeriods, StepsUntil) {
    for (const Frequency& frequency : Frequencies) {
        for (const Date start : {Day(2026, 1, 15), Day(2028, 2, 28), Day(9998, 12, 18)}) {
            const std::vector<AccrualPeriod> dates =
                PeriodsOf(Undated(frequency, start, 13, Accrual::AfterPayment));
            AccrualPeriods periods(Undated(frequency, start, 13, Accrual::AfterPayment));
            for (std::size_t due = 0; due < dates.size(); ++due) {
                for (std::size_t last = due; last + 1 < dates.size(); ++last) {
                    const auto steps = static_cast<std::int64_t>(last - due);
                    EXPECT_EQ(periods.StepsUntil(dates[last].start), steps);
                    EXPECT_EQ(periods.StepsUntil(Date::FromDays(dates[last].end.Days() - 1)),
                              steps);
                }
                periods.Next(dates[due].end);
            }
        }
    }
}

TEST(AccrualPeriods, StepsUntilTheLastDate) {
    struct Case {
        std::size_t frequency;
        Date due;
        std::int64_t steps;
    };
    const std::array cases{
        Case{0, Day(9999, 12, 1), 0},  Case{0, Day(9999, 11, 30), 1}, Case{0, Day(9998, 1, 31), 23},
        Case{1, Day(9999, 12, 18), 0}, Case{1, Day(9999, 12, 17), 1}, Case{1, Day(9999, 10, 31), 4},
        Case{2, Day(9999, 12, 18), 0}, Case{2, Day(9999, 12, 17), 1}, Case{2, Day(9999, 12, 3), 2},
        Case{3, Day(9999, 12, 4), 0},  Case{3, Day(9999, 12, 3), 1},  Case{3, Day(9999, 11, 5), 2},
    };
    for (const Case& row : cases) {
        const AccrualPeriods periods(
            Undated(Frequencies.at(row.frequency), row.due, 1, Accrual::AfterPayment));
        EXPECT_EQ(periods.StepsUntil(Date::Last()), row.steps) << row.due.Days();
    }
}

} // namespace
