#include "LeastNumber.h"
#include "Cents.h"

#include "QuendNames.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <optional>

namespace {

TEST(Cents, NotBelow) {
    constexpr std::int64_t Last = std::numeric_limits<std::int64_t>::max();
    struct Case {
        std::int64_t amount; ///< in ten-thousandths
        std::int64_t cents;
    };
    const std::array cases{
        Case{0, 0},  Case{1, 1},   Case{99, 1},    Case{100, 1},   Case{101, 2},
        Case{-1, 0}, Case{-99, 0}, Case{-100, -1}, Case{-199, -1}, Case{Last, Cents::MostCents + 1},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(Cents::NotBelow(Money::FromTenThousandths(row.amount)), row.cents) << row.amount;
    }
}

TEST(LeastNumber, OutwardsFromAGuess) {
    constexpr std::int64_t Huge = std::numeric_limits<std::int64_t>::max() / 100;
    struct Case {
        std::int64_t low;
        std::int64_t most;
        std::int64_t guess;
        std::int64_t least; ///< that suffices
        int calls;
    };
    const std::array cases{
        // low  most  guess  least  calls
        Case{0, 100, 1, 1, 1},       Case{0, 100, 50, 50, 2},  // confirmed
        Case{0, 100, 51, 50, 4},                               // 51, 50, 48; 49
        Case{0, 100, 49, 50, 2},                               // 49, 50
        Case{0, 100, 40, 50, 8},                               // 40, 41, 43, 47, 55; 51, 49, 50
        Case{0, 100, 60, 50, 8},                               // 60, 59, 57, 53, 45; 49, 51, 50
        Case{9, 100, 12, 10, 3},                               // 12, 11; 10
        Case{0, 100, 99, 100, 2},                              // the most
        Case{0, 100, 90, 100, 7},    Case{0, 100, 90, 101, 5}, // none
        Case{0, 100, 100, 101, 1},   Case{-90, 100, -50, -40, 8},
        Case{0, Huge, 1, Huge, 113}, Case{0, Huge, Huge, 1, 111},
    };
    for (const Case& row : cases) {
        int calls = 0;
        const auto found = LeastNumber(row.low, row.most, row.guess, [&](std::int64_t number) {
            ++calls;
            EXPECT_TRUE(number > row.low && number <= row.most) << number;
            return number >= row.least;
        });
        const auto expected = row.least <= row.most ? std::optional(row.least) : std::nullopt;
        EXPECT_EQ(found, expected) << row.guess;
        EXPECT_EQ(calls, row.calls) << row.guess << " for " << row.least;
    }
}

} // namespace
