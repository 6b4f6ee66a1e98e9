#include "DueDates.h"
#include "QuendNames.h"

#include "Failure.h"
#include "MonthAfter.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace std::chrono_literals;
using Calendar = std::chrono::year_month_day;

Date DateOf(Calendar day) {
    return Date::FromDays(static_cast<int>(
        (std::chrono::sys_days(day) - std::chrono::sys_days(1899y / 12 / 30)).count()));
}

template <typename Dates>
std::vector<Calendar> Walk(Dates dates, std::size_t steps) {
    std::vector<Calendar> days;
    while (days.size() < steps) {
        dates.Step();
        days.push_back(dates.Current().Calendar());
    }
    return days;
}

TEST(DueDates, OfAMonthlyLoanKeepADayOnceCutShort) {
    const std::vector<std::vector<Calendar>> walks{
        {2026y / 3 / 10, 2026y / 4 / 10, 2026y / 5 / 10, 2026y / 6 / 10},
        {2026y / 1 / 31, 2026y / 2 / 28, 2026y / 3 / 28, 2026y / 4 / 28},
        {2028y / 1 / 31, 2028y / 2 / 29, 2028y / 3 / 29, 2028y / 4 / 29},
        {2000y / 1 / 30, 2000y / 2 / 29, 2000y / 3 / 29},
        {2100y / 1 / 29, 2100y / 2 / 28, 2100y / 3 / 28}, // not a leap year
        {2026y / 10 / 31, 2026y / 11 / 30, 2026y / 12 / 30, 2027y / 1 / 30, 2027y / 2 / 28},
        {1899y / 12 / 30, 1900y / 1 / 30, 1900y / 2 / 28, 1900y / 3 / 28}, // from no date
    };
    for (const auto& walk : walks) {
        const std::vector<Calendar> expected(walk.begin() + 1, walk.end());
        EXPECT_EQ(Walk(MonthlyDates(DateOf(walk.front())), expected.size()), expected);
    }
}

TEST(DueDates, TwiceAMonthComeInPairs14DaysApart) {
    const std::vector<std::vector<Calendar>> walks{
        {2026y / 3 / 10, 2026y / 3 / 24, 2026y / 4 / 10, 2026y / 4 / 24, 2026y / 5 / 10},
        {2026y / 1 / 31, 2026y / 2 / 14, 2026y / 2 / 28, 2026y / 3 / 14, 2026y / 3 / 28},
        {2028y / 1 / 31, 2028y / 2 / 14, 2028y / 2 / 29, 2028y / 3 / 14, 2028y / 3 / 29},
        {2026y / 12 / 20, 2027y / 1 / 3, 2027y / 1 / 20, 2027y / 2 / 3, 2027y / 2 / 20},
    };
    for (const auto& walk : walks) {
        const std::vector<Calendar> expected(walk.begin() + 1, walk.end());
        EXPECT_EQ(Walk(HalfMonthlyDates(DateOf(walk.front())), expected.size()), expected);
    }
}

TEST(DueDates, InDaysAreAllEquallyFarApart) {
    const std::vector<Calendar> fortnights{2028y / 2 / 29, 2028y / 3 / 14, 2028y / 3 / 28};
    const std::vector<Calendar> fourWeeks{2028y / 3 / 14, 2028y / 4 / 11};
    EXPECT_EQ(Walk(DailyDates(DateOf(2028y / 2 / 15), 14), 3), fortnights);
    EXPECT_EQ(Walk(DailyDates(DateOf(2028y / 2 / 15), 28), 2), fourWeeks);
}

/// Compares the stepping calendar with the converting one, up to the last date.
TEST(DueDates, OfAMonthlyLoanFollowTheCalendarToItsEnd) {
    for (int start = 46'050; start < 46'054; ++start) { // the last days of January
        Date expected = Date::FromDays(start);
        MonthlyDates dates(expected);
        while (expected <= Date::FromCalendar(9999, 11, 30)) {
            expected = MonthAfter(expected);
            dates.Step();
            ASSERT_EQ(dates.Current(), expected) << "from " << start;
        }
        EXPECT_THROW(dates.Step(), OverflowFailure);
    }
}

TEST(DueDates, EndWithTheLastDate) {
    const Date last = DateOf(9999y / 12 / 31);
    EXPECT_THROW(MonthlyDates(last).Step(), OverflowFailure);
    EXPECT_THROW(HalfMonthlyDates(last).Step(), OverflowFailure);
    EXPECT_THROW(DailyDates(last, 14).Step(), OverflowFailure);
    HalfMonthlyDates secondOfThePair(DateOf(9999y / 12 / 17));
    secondOfThePair.Step();
    EXPECT_EQ(secondOfThePair.Current(), last);
    EXPECT_THROW(secondOfThePair.Step(), OverflowFailure);
}

} // namespace
