#include "CostByMonth.h"
#include "QuendNames.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <vector>

namespace {

Money Count(std::int64_t count) { return Money::FromTenThousandths(count); }

TEST(CostByMonth, ClearlyMoreAndLess) {
    struct Case {
        std::int64_t than; ///< in ten-thousandths
        std::int64_t by;
    };
    const std::array cases{
        Case{0, 10'000},          Case{9'999'999, 10'000},   Case{10'000'999, 10'000},
        Case{10'001'000, 10'001}, Case{20'019'999, 20'019},  Case{20'020'000, 20'020},
        Case{-5, 10'000},         Case{-20'019'999, 20'019}, Case{-20'020'000, 20'020},
    };
    for (const Case& row : cases) {
        EXPECT_TRUE(IsClearlyMore(Count(row.than + row.by), Count(row.than))) << row.than;
        EXPECT_FALSE(IsClearlyMore(Count(row.than + row.by - 1), Count(row.than))) << row.than;
        EXPECT_TRUE(IsClearlyLess(Count(row.than - row.by), Count(row.than))) << row.than;
        EXPECT_FALSE(IsClearlyLess(Count(row.than - row.by + 1), Count(row.than))) << row.than;
    }
    const Money most = Count(std::numeric_limits<std::int64_t>::max());
    EXPECT_FALSE(IsClearlyMore(most, most));
    EXPECT_FALSE(IsClearlyLess(-most, -most));
}

TEST(CostByMonth, CheaperStretches) {
    const auto costs = [](const std::vector<int>& units) {
        CostByMonth byMonth;
        for (const int month : units) {
            byMonth.costs.push_back(Count(month * 10'000LL));
        }
        return byMonth;
    };
    struct Case {
        std::vector<int> offer; ///< in units; the loan held today costs 10 by each month
        std::vector<CheaperStretch> cheaper;
    };
    const std::vector<Case> cases{
        {{10, 10, 10, 10}, {{1, std::nullopt}}},
        {{11, 11, 10, 10}, {{3, std::nullopt}}},
        {{11, 11, 11, 11}, {}},
        {{9, 11, 10, 9}, {{1, 2}, {4, std::nullopt}}},
        {{10, 11, 9, 11}, {{1, 2}, {3, 4}}},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(FindCheaper(costs(row.offer), costs({10, 10, 10, 10}), 4), row.cheaper);
    }
}

} // namespace
