#include "Date.h"
#include "QuendNames.h"

#include "Failure.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <vector>

namespace {

static_assert(Date().IsNone());
static_assert(Date::FromDays(1).Days() == 1);
static_assert(Date::Last().Days() == 2'958'465);

/// The day number of a date, or none outside the calendar.
template <typename Make>
std::optional<int> Days(Make make) {
    try {
        return make().Days();
    } catch (const OverflowFailure&) {
        return std::nullopt;
    }
}

struct CalendarCase {
    int year;
    int month;
    int day;
    std::optional<int> days;
};

TEST(Date, CountsDaysSince30December1899) {
    // clang-format off
    const std::vector<CalendarCase> cases{
        //   year  month  day          days
        {    1899,    12,  30,            0 },
        {    1899,    12,  31,            1 },
        {    1899,    12,  29,           -1 },
        {    1900,     2,  28,           60 },
        {    1900,     2,  29, std::nullopt }, // not a leap year
        {    1900,     3,   1,           61 },
        {    1970,     1,   1,       25'569 },
        {    2000,     2,  29,       36'585 },
        {    2026,     7,  21,       46'224 },
        {    9999,    12,  31,    2'958'465 },
        {       1,     1,   1,     -693'593 },
        {  10'000,     1,   1, std::nullopt },
        {       0,    12,  31, std::nullopt },
        {    2026,     4,  31, std::nullopt },
        {    2026,     0,   1, std::nullopt },
        {    2026,    13,   1, std::nullopt },
        {    2026,     1,   0, std::nullopt },
        {    2026,     1,  32, std::nullopt },
        {    2026,   257,   1, std::nullopt }, // must not become January
        {    2026,     1, 257, std::nullopt }, // nor the first
        {  67'562,     1,   1, std::nullopt }, // nor year 2026
    };
    // clang-format on
    for (const auto& [year, month, day, days] : cases) {
        SCOPED_TRACE(testing::Message() << year << "-" << month << "-" << day);
        EXPECT_EQ(Days([&, y = year, m = month, d = day] { return Date::FromCalendar(y, m, d); }),
                  days);
        if (days) {
            const auto calendar = Date::FromDays(*days).Calendar();
            EXPECT_EQ(calendar, std::chrono::year(year) / month / day);
        }
    }
}

struct StepCase {
    int from;
    int step;
    std::optional<int> to;
};

TEST(Date, StepsByDaysToTheLastDate) {
    // clang-format off
    const std::vector<StepCase> cases{
        //      from  step                                       to
        {     46'224, 14,                                    46'238 },
        {     46'224, -46'224,                                    0 },
        {          0, 28,                                        28 },
        {  2'958'464, 1,                                  2'958'465 },
        {  2'958'465, 0,                                  2'958'465 },
        {  2'958'465, 1,                               std::nullopt },
        {  2'958'465, std::numeric_limits<int>::max(), std::nullopt },
        {   -693'593, -1,                              std::nullopt },
        {   -693'593, std::numeric_limits<int>::min(), std::nullopt },
    };
    // clang-format on
    for (const auto& [from, step, to] : cases) {
        EXPECT_EQ(Days([&, f = from, s = step] { return Date::FromDays(f).PlusDays(s); }), to)
            << from << " + " << step;
    }
    EXPECT_EQ(Days([] { return Date::FromDays(2'958'466); }), std::nullopt);
    EXPECT_EQ(Days([] { return Date::FromDays(-693'594); }), std::nullopt);
}

TEST(Date, Compares) {
    EXPECT_LT(Date(), Date::FromDays(1));
    EXPECT_EQ(Date::FromDays(0), Date());
    EXPECT_FALSE(Date::FromDays(1).IsNone());
    EXPECT_FALSE(Date::FromDays(-1).IsNone());
}

} // namespace
