#include "LoanSchedule.h"
#include "Comparison.h"
#include "OverTime.h"
#include "QuendNames.h"

#include <gtest/gtest.h>

#include <array>
#include <iterator>

namespace {

ComparisonInput Sheet(const char* frequency) {
    const FrequencyCode code(QString::fromLatin1(frequency));
    ComparisonInput input;
    input.today = Date::FromCalendar(2026, 1, 31);
    input.amount = Money::FromDouble(20'000);
    input.escrowMonthly = Money::FromDouble(100);
    input.choice = PaymentChoice::Monthly;
    input.monthlyPayment = Money::FromDouble(900);
    input.offers = {{}, {.rate = Rate::FromFraction(0.06), .term = {60}, .frequency = code}};
    input.current = {.rate = Rate::FromFraction(0.08),
                     .balance = Money::FromDouble(9'000),
                     .actualPayment = Money::FromDouble(50),
                     .actualFrequency = code,
                     .nextPayment = Date::FromCalendar(2026, 2, 5)};
    return input;
}

TEST(LoanSchedule, AddsUpToTheFiguresOfTheComparison) {
    for (const char* const frequency : {"M", "B", "W", "Q"}) {
        ComparisonInput input = Sheet(frequency);
        input.years = 50;
        const ComparisonResult result = Compare(input);
        const OfferFigures& figures = *result.offers.at(1).figures;
        const std::array interest{*result.current->costByHorizon, figures.totalCost};
        const std::array balance{input.current.balance, input.amount};
        const std::array first{input.current.nextPayment, input.today};
        EXPECT_EQ(ScheduleOf(input, 2)->front().payment, figures.paymentCompared);
        for (const int place : {CurrentLoanPlace, 2}) {
            const auto at = place == CurrentLoanPlace ? 0U : 1U;
            const auto rows = ScheduleOf(input, place);
            ASSERT_TRUE(rows);
            EXPECT_EQ(rows->front().date, first.at(at));
            EXPECT_EQ(rows->back().balance, Money());
            Money left = balance.at(at);
            Money interestSoFar;
            std::int64_t number = 0;
            for (const ScheduleRow& row : *rows) {
                EXPECT_EQ(row.number, ++number);
                EXPECT_EQ(row.payment, row.interest + row.principal + row.escrow);
                EXPECT_EQ(row.balance, left - row.principal);
                EXPECT_EQ(row.interestSoFar, interestSoFar + row.interest);
                left = row.balance;
                interestSoFar = row.interestSoFar;
            }
            // The interest of the loan held today accrues from before today.
            EXPECT_GE(interestSoFar, interest.at(at));
            EXPECT_EQ(interestSoFar == interest.at(at), place != CurrentLoanPlace);
        }
    }
}

TEST(LoanSchedule, DatesOfThePayments) {
    ComparisonInput input = Sheet("M");
    input.choice = PaymentChoice::Intended;
    const auto rows = ScheduleOf(input, 2);
    const std::array days{Date::FromCalendar(2026, 1, 31), Date::FromCalendar(2026, 2, 28),
                          Date::FromCalendar(2026, 3, 28)};
    for (std::size_t i = 0; i < days.size(); ++i) {
        EXPECT_EQ(rows->at(i).date, days.at(i)) << i;
    }
    EXPECT_EQ(rows->back().date, Compare(input).offers.at(1).payoffDate.value_or(Date()));
}

TEST(LoanSchedule, ByYear) {
    for (const int place : {CurrentLoanPlace, 2}) {
        const auto rows = ScheduleOf(Sheet("W"), place).value();
        const std::vector<ScheduleRow> years = ByYear(rows);
        Money paid;
        for (const ScheduleRow& row : rows) {
            paid += row.payment;
        }
        std::int64_t year = 2026;
        auto next = rows.begin();
        for (const ScheduleRow& row : years) {
            EXPECT_EQ(row.number, year++);
            EXPECT_EQ(row.payment, row.interest + row.principal + row.escrow);
            paid -= row.payment;
            while (next != rows.end() &&
                   static_cast<int>(next->date.Calendar().year()) == row.number) {
                ++next;
            }
            const ScheduleRow& last = *std::prev(next);
            EXPECT_EQ(row.date, last.date);
            EXPECT_EQ(row.balance, last.balance);
            EXPECT_EQ(row.interestSoFar, last.interestSoFar);
        }
        EXPECT_EQ(next, rows.end());
        EXPECT_EQ(paid, Money());
    }
    EXPECT_TRUE(ByYear({}).empty());
}

TEST(OverTime, AgreesWithTheFiguresOfEveryHorizon) {
    for (const char* const frequency : {"M", "B", "W", "Q"}) {
        ComparisonInput input = Sheet(frequency);
        const int months = Compare(input).months;
        const std::vector<LoanOverTime> lines = OverTime(input, months);
        ASSERT_EQ(lines.size(), 2U);
        EXPECT_EQ(lines.front().place, 2);
        EXPECT_EQ(lines.back().place, CurrentLoanPlace);
        for (const LoanOverTime& line : lines) {
            EXPECT_EQ(line.cost.size(), static_cast<std::size_t>(months) + 1);
            EXPECT_EQ(line.balance.size(), line.cost.size());
            EXPECT_EQ(line.cost.front(), Money());
            EXPECT_EQ(line.balance.back(), Money());
        }
        for (int years = 1; years * MonthsPerYear <= months; ++years) {
            input.years = years;
            const auto month = static_cast<std::size_t>(years) * MonthsPerYear;
            const ComparisonResult result = Compare(input);
            const OfferFigures& figures = *result.offers.at(1).figures;
            EXPECT_EQ(lines.front().cost.at(month), figures.costByHorizon);
            EXPECT_EQ(lines.front().balance.at(month), figures.balanceAtHorizon);
            EXPECT_EQ(lines.back().cost.at(month), result.current->costByHorizon);
            EXPECT_EQ(lines.back().balance.at(month), result.current->balanceAtHorizon);
        }
    }
}

/// A loan that is repaid after the longest comparison.
TEST(OverTime, UpToTheLastMonth) {
    ComparisonInput input = Sheet("M");
    input.today = Date::FromCalendar(2026, 1, 15);
    input.choice = PaymentChoice::Required;
    input.offers.back().rate = Rate::FromFraction(0.01);
    input.offers.back().term = {1'300};
    ASSERT_EQ(Compare(input).months, 1'200);
    const auto rows = ScheduleOf(input, 2).value();
    const LoanOverTime line = OverTime(input, 1'200).front();
    for (const std::size_t month : {1U, 2U, 1'199U, 1'200U}) {
        EXPECT_EQ(line.cost.at(month), rows.at(month - 1).interestSoFar) << month;
        EXPECT_EQ(line.balance.at(month), rows.at(month - 1).balance) << month;
    }
}

TEST(LoanSchedule, InterestOfTheLoanHeldTodayIsCountedFromOnePeriodBeforeItsNextPayment) {
    struct Case {
        const char* frequency;
        Date next;
        Date from;
    };
    const auto day = [](int month, int ofMonth) {
        return Date::FromCalendar(2026, month, ofMonth);
    };
    const std::array cases{
        // frequency, next payment, counted from; today is 31 January
        Case{"M", day(2, 28), day(1, 31)}, Case{"M", day(3, 1), day(2, 1)},
        Case{"M", day(3, 31), day(2, 28)}, Case{"B", day(2, 15), day(1, 31)},
        Case{"B", day(2, 16), day(2, 1)},  Case{"W", day(2, 14), day(1, 31)},
        Case{"W", day(2, 15), day(2, 1)},  Case{"Q", day(2, 28), day(1, 31)},
        Case{"Q", day(3, 1), day(2, 1)},   Case{"M", day(1, 1), day(1, 31)},
        Case{"M", {}, day(1, 31)},         Case{"X", day(5, 1), day(1, 31)},
    };
    for (const Case& row : cases) {
        ComparisonInput input = Sheet(row.frequency);
        input.current.nextPayment = row.next;
        EXPECT_EQ(CurrentAccruesFrom(input), row.from) << row.frequency << row.next.Days();
    }
}

TEST(LoanSchedule, NoneWhereTheLoanTakesNoPart) {
    ComparisonInput input = Sheet("M");
    input.choice = PaymentChoice::Intended;
    for (const int place : {-1, CurrentLoanPlace, 1, 3}) { // never repaid; blank
        EXPECT_FALSE(ScheduleOf(input, place)) << place;
    }
}

} // namespace
