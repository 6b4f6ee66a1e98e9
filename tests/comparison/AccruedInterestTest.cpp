#include "AccruedInterest.h"
#include "Failure.h"
#include "QuendNames.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <optional>

namespace {

constexpr Money Greatest = Money::FromTenThousandths(std::numeric_limits<std::int64_t>::max());

Date On(int year, int month, int day) { return Date::FromCalendar(year, month, day); }

Money Amount(double units) { return Money::FromDouble(units); }

/// At 1 % a month.
DatedLoan LoanOf(Money balance, Date start, Accrual accrual = Accrual::AfterPayment) {
    return {.terms = {.balance = balance,
                      .rate = Rate::FromFraction(0.12),
                      .payment = Money(),
                      .escrowShare = Money(),
                      .frequency = &Frequencies.front(),
                      .start = start},
            .accrual = accrual};
}

/// A search may stop before the end of a schedule, but must not miss that it has none, or that it
/// costs more than money can count.
TEST(CostByDay, IsNoneExactlyWhereTheScheduleNeverEnds) {
    const Date today = On(9985, 12, 31);
    constexpr Money Closing = Money::FromTenThousandths(1'234);
    for (const Frequency& frequency : Frequencies) {
        int endless = 0;
        for (int cents = 20'000; cents < 200'000; cents += 997) {
            DatedLoan loan = LoanOf(Amount(100'000), today);
            loan.terms.frequency = &frequency;
            loan.terms.payment = Money::FromTenThousandths(cents * 100);
            const auto cost = CostByDay(loan, Closing, today, On(9987, 1, 1));
            const auto all = CostByDay(loan, Closing, today, Date::Last());
            try {
                const Money interest = RunToPayoff(loan.terms).interest;
                EXPECT_TRUE(cost) << cents;
                EXPECT_EQ(all, Closing + interest) << cents;
                EXPECT_TRUE(CostByDay(loan, Greatest - interest, today, On(9987, 1, 1)));
                EXPECT_FALSE(CostByDay(loan, Greatest - interest + Closing, today, On(9987, 1, 1)));
            } catch (const OverflowFailure&) {
                ++endless;
                EXPECT_FALSE(cost || all) << cents;
            }
        }
        EXPECT_GT(endless, 3);
        EXPECT_LT(endless, 178);
    }
}

/// One payment repays 1,000.00 with 1,010.00, two with 10.201 / 0.0201 each; the escrow share
/// is 5.00.
TEST(EstimatePaymentUntil, RepaysInThePeriodsThatHaveEnded) {
    struct Case {
        Accrual accrual;
        Date start;
        Date day;
        std::optional<Money> expected;
        Money balance = Amount(1'000.0);
    };
    constexpr auto Offer = Accrual::AfterPayment;
    constexpr auto Held = Accrual::BeforePayment;
    const Date january = On(2026, 1, 15);
    const std::array cases{
        // accrual, start, day                   payment
        Case{Offer, january, On(2026, 2, 15), Amount(1'015.0)},
        Case{Offer, january, On(2026, 3, 14), Amount(1'015.0)},
        Case{Offer, january, On(2026, 3, 15), Amount(512.5124)},
        Case{Offer, Date::Last(), Date::Last(), Amount(1'015.0)}, // takes no date step
        Case{Held, january, january, Amount(1'015.0)},
        Case{Held, january, On(2026, 2, 15), Amount(512.5124)},
        Case{Held, january, january, std::nullopt, Greatest},
    };
    for (const Case& row : cases) {
        DatedLoan loan = LoanOf(row.balance, row.start, row.accrual);
        loan.terms.escrowShare = Amount(5.0);
        EXPECT_EQ(EstimatePaymentUntil(loan, row.day), row.expected) << row.day.Days();
    }
}

/// Begins on the last of January: its periods end on the 28th of the months that follow.
TEST(LeastPaymentUntil, AtItsLimits) {
    constexpr Money MostCents = Money::FromTenThousandths(Greatest.TenThousandths() / 100 * 100);
    struct Case {
        const char* name;
        Money balance;
        Money atLeast;
        Date day;
        std::optional<Money> expected;
    };
    const Date one = On(2026, 2, 28);
    const Date two = On(2026, 3, 28);
    const Money owed = Amount(1'000.0);
    const std::array cases{
        // name                balance at least day payment
        Case{"no period", owed, Amount(1.0), On(2026, 2, 27), std::nullopt},
        Case{"one payment", owed, Amount(1.0), one, Amount(1'010.0)},
        Case{"also then", owed, Amount(1.0), On(2026, 3, 27), Amount(1'010.0)},
        Case{"two payments", owed, Amount(1.0), two, Amount(507.52)}, // of 507.5124
        Case{"no more than it", owed, Amount(507.51), two, Amount(507.52)},
        Case{"it is enough", owed, Amount(507.52), two, Amount(507.52)},
        Case{"a greater one", owed, Amount(600.01), two, Amount(600.01)},
        Case{"raised to a cent", owed, Amount(600.0001), two, Amount(600.01)},
        Case{"nothing owed", Money(), Amount(1.0), one, Amount(1.0)},
        Case{"the most cents", owed, MostCents, one, MostCents},
        Case{"above them", owed, Greatest, one, std::nullopt},
        Case{"too much owed", Greatest, Amount(1.0), one, std::nullopt},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(LeastPaymentUntil(LoanOf(row.balance, On(2026, 1, 31)), row.day, row.atLeast),
                  row.expected)
            << row.name;
    }
}

} // namespace
