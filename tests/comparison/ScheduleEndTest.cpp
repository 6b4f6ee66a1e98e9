#include "ScheduleEnd.h"

#include "AccrualPeriods.h"
#include "ActuarialRate.h"
#include "Failure.h"
#include "QuendNames.h"
#include "RandomCases.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace {

constexpr std::int64_t MostCount = std::numeric_limits<std::int64_t>::max();

TEST(ScheduleEnd, AtItsLimits) {
    struct Case {
        const char* name;
        std::int64_t principal; ///< in ten-thousandths, as all amounts
        std::int64_t interest;
        std::int64_t balance;
        double rate; ///< of a period
        std::int64_t steps;
        std::int64_t soFar;
        ScheduleEnd end;
    };
    const std::array cases{
        // name              principal interest balance   rate  steps so far, end
        Case{"no interest", 100, 0, 1'099, 0.0, 10, 0, ScheduleEnd::InTime}, // one takes no step
        Case{"just not", 100, 0, 1'100, 0.0, 10, 0, ScheduleEnd::Unclear},
        Case{"slow", 1, 0, 11, 1e-9, 11, 0, ScheduleEnd::InTime},
        Case{"too slow", 1, 0, 26, 1e-9, 11, 0, ScheduleEnd::TooLate}, // 13 times 2
        Case{"perhaps", 1, 0, 24, 1e-9, 11, 0, ScheduleEnd::Unclear},
        Case{"growing", 1'000, 900, 8'487, 0.1, 5, 0, ScheduleEnd::Unclear}, // 9.487 times 1,000
        Case{"grown", 1'000, 900, 8'470, 0.1, 5, 0, ScheduleEnd::InTime},
        Case{"not grown", 1'000, 900, 8'500, 0.1, 5, 0, ScheduleEnd::TooLate},
        Case{"for ever", 1'000, 900, 1'000'000, 0.1, 1'000'000, 0, ScheduleEnd::InTime},
        Case{"a fortune", 100, MostCount / 10, 500, 0.1, 8, 0, ScheduleEnd::Unclear},
        Case{"nearly one", 100, MostCount / 11, 500, 0.1, 8, 0, ScheduleEnd::InTime},
        Case{"too near", 100, MostCount / 10 - 1'383'500'000, 500, 0.1, 8, 0, ScheduleEnd::Unclear},
        Case{"added", 100, 10, 500, 0.1, 8, MostCount - 50, ScheduleEnd::Unclear},
        Case{"lent", 100, 10, 500, 0.1, 8, -MostCount, ScheduleEnd::InTime},
    };
    for (const Case& row : cases) {
        const SchedulePeriod period{.date = Date(),
                                    .interest = Money::FromTenThousandths(row.interest),
                                    .principal = Money::FromTenThousandths(row.principal),
                                    .balance = Money::FromTenThousandths(row.balance)};
        EXPECT_EQ(EndAfter(period, row.rate, row.steps, Money::FromTenThousandths(row.soFar)),
                  row.end)
            << row.name;
    }
}

/// A schedule that is repaid about the end of the calendar, with any rate and balance.
ScheduleTerms LateSchedule(Random& random) {
    ScheduleTerms terms{.balance = Money::FromDouble(random.OfAnySize(1.0, 1e12)),
                        .rate = Rate::FromFraction(random.OfAnySize(1e-9, 0.5)),
                        .payment = Money(),
                        .escrowShare = Money(),
                        .frequency = FindFrequency(random.OneOf(Frequencies).Code()),
                        .start = Date::FromDays(Date::Last().Days() - random.Int(100, 20'000))};
    const AccrualPeriods periods({.terms = terms, .accrual = Accrual::AfterPayment});
    const std::array<CashFlows, 1> unit{
        {{.amount = 1.0,
          .count = periods.StepsUntil(Date::Last()) + random.Int(-2, 4),
          .periods = 1}}};
    terms.payment =
        Money::FromDouble(terms.balance.ToDouble() / PresentValue(unit, RateOfPeriod(terms))) +
        Money::FromTenThousandths(random.Int(-2, 2));
    return terms;
}

/// What it says of any period comes true.
TEST(ScheduleEnd, IsThatOfTheSchedule) {
    std::array<int, 3> said{};
    ForRandomCases(300, [&said](Random& random) {
        const DatedLoan loan{.terms = LateSchedule(random), .accrual = Accrual::AfterPayment};
        const double rate = RateOfPeriod(loan.terms);
        AccrualPeriods periods(loan);
        Money interest;
        std::array<int, 3> ofOne{};
        const auto watch = [&](const SchedulePeriod& period) {
            periods.Next(period.date);
            interest += period.interest;
            if (!period.balance.IsZero()) {
                const auto end = EndAfter(period, rate, periods.StepsUntil(Date::Last()), interest);
                ++ofOne.at(static_cast<std::size_t>(end));
                ++said.at(static_cast<std::size_t>(end));
            }
        };
        try {
            RunToPayoff(loan.terms, watch);
            EXPECT_EQ(ofOne.at(static_cast<std::size_t>(ScheduleEnd::TooLate)), 0);
        } catch (const OverflowFailure&) {
            EXPECT_EQ(ofOne.at(static_cast<std::size_t>(ScheduleEnd::InTime)), 0);
        }
    });
    const auto [inTime, tooLate, unclear] = said;
    EXPECT_GT(inTime, 1'000);
    EXPECT_GT(tooLate, 1'000);
    EXPECT_LT(unclear, (inTime + tooLate) / 10);
}

} // namespace
