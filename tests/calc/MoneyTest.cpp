#include "Money.h"
#include "QuendNames.h"

#include "Failure.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <type_traits>
#include <vector>

namespace {

static_assert(!std::is_constructible_v<Money, double>);
static_assert(!std::is_constructible_v<Money, std::int64_t>);
static_assert(!std::is_constructible_v<double, Money>);
static_assert(!std::is_constructible_v<bool, Money>);
template <typename Left, typename Right>
concept Multiplies = requires(Left left, Right right) {
    left* right;
};
template <typename Left, typename Right>
concept Adds = requires(Left left, Right right) {
    left + right;
};
static_assert(!Multiplies<Money, Money>);
static_assert(!Multiplies<Money, double>);
static_assert(!Multiplies<int, Money>);
static_assert(!Adds<Money, int>);
static_assert(!Adds<double, Money>);
static_assert(Money::FromTenThousandths(3) - Money::FromTenThousandths(5) ==
              Money::FromTenThousandths(-2));

constexpr std::int64_t Largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t Smallest = std::numeric_limits<std::int64_t>::min();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

/// The count of an amount, or none where it leaves the range of money.
template <typename Make>
std::optional<std::int64_t> Count(Make make) {
    try {
        return make().TenThousandths();
    } catch (const OverflowFailure&) {
        return std::nullopt;
    }
}

struct FromDoubleCase {
    double units;
    std::optional<std::int64_t> tenThousandths;
    std::optional<std::int64_t> inCents;
};

TEST(Money, TakesTheNearestTenThousandthOrCentOfADouble) {
    // clang-format off
    const std::vector<FromDoubleCase> cases{
        // units                                tenThousandths                     inCents
        {  0.0,                                              0,                          0 },
        {  -0.0,                                             0,                          0 },
        {  1.0,                                         10'000,                     10'000 },
        {  0.03125,                                        312,                        300 }, // halves to even
        {  0.09375,                                        938,                        900 },
        {  0.15625,                                      1'562,                      1'600 },
        {  -0.03125,                                      -312,                       -300 },
        {  -0.09375,                                      -938,                       -900 },
        {  0.00005,                                          0,                          0 }, // as ten-thousandths exactly the half
        {  0.0000501,                                        1,                          0 },
        {  0.125,                                        1'250,                      1'200 },
        {  0.135,                                        1'350,                      1'400 },
        {  0.375,                                        3'750,                      3'800 },
        {  -0.125,                                      -1'250,                     -1'200 },
        {  -0.375,                                      -3'750,                     -3'800 },
        {  0.12500000000001,                             1'250,                      1'300 }, // 0.12 if rounded to ten-thousandths first
        {  0.13499999999999,                             1'350,                      1'300 }, // and this would be 0.14
        {  599.5505251527569,                        5'995'505,                  5'995'500 },
        {  922'337'203'685'477.5,    9'223'372'036'854'774'784,  9'223'372'036'854'774'400 },
        {  922'337'203'685'477.625,               std::nullopt,               std::nullopt },
        {  -922'337'203'685'477.5,  -9'223'372'036'854'774'784, -9'223'372'036'854'774'400 },
        {  -922'337'203'685'477.625,                  Smallest,               std::nullopt }, // out of range in whole cents
        {  1e300,                                 std::nullopt,               std::nullopt },
        {  -1e15,                                 std::nullopt,               std::nullopt },
        {  Infinity,                              std::nullopt,               std::nullopt },
        {  -Infinity,                             std::nullopt,               std::nullopt },
        {  NoNumber,                              std::nullopt,               std::nullopt },
    };
    // clang-format on
    for (const FromDoubleCase& row : cases) {
        EXPECT_EQ(Count([&] { return Money::FromDouble(row.units); }), row.tenThousandths)
            << row.units;
        EXPECT_EQ(Count([&] { return Money::FromDoubleInCents(row.units); }), row.inCents)
            << row.units;
    }
}

struct CentsCase {
    std::int64_t tenThousandths;
    std::int64_t cents;
};

TEST(Money, RoundsHalfACentToTheEvenCent) {
    // clang-format off
    const std::vector<CentsCase> cases{
        // tenThousandths                       cents
        {               0,                          0 },
        {              49,                          0 },
        {              50,                          0 },
        {              51,                        100 },
        {             149,                        100 },
        {             150,                        200 },
        {             151,                        200 },
        {             250,                        200 },
        {             -49,                          0 },
        {             -50,                          0 },
        {             -51,                       -100 },
        {            -150,                       -200 },
        {            -250,                       -200 },
        {       1'234'567,                  1'234'600 },
        {             100,                        100 },
        {            -100,                       -100 },
        {         Largest,  9'223'372'036'854'775'800 },
        {        Smallest, -9'223'372'036'854'775'800 },
    };
    // clang-format on
    for (const auto& [tenThousandths, cents] : cases) {
        EXPECT_EQ(Money::FromTenThousandths(tenThousandths).RoundedToCents().TenThousandths(),
                  cents)
            << tenThousandths;
    }
}

struct SumCase {
    std::int64_t left;
    std::int64_t right;
    std::optional<std::int64_t> sum;
    std::optional<std::int64_t> difference;
};

TEST(Money, AddsAndSubtractsWithinItsRange) {
    // clang-format off
    const std::vector<SumCase> cases{
        //     left     right  sum           difference
        {         0,        0, 0,            0 },
        {    12'345,      678, 13'023,       11'667 },
        {        -5,        7, 2,            -12 },
        {   Largest,        0, Largest,      Largest },
        {   Largest,        1, std::nullopt, Largest - 1 },
        {   Largest,       -1, Largest - 1,  std::nullopt },
        {  Smallest,        1, Smallest + 1, std::nullopt },
        {  Smallest,       -1, std::nullopt, Smallest + 1 },
        {  Smallest,  Largest, -1,           std::nullopt },
        {         0, Smallest, Smallest,     std::nullopt },
    };
    // clang-format on
    for (const auto& row : cases) {
        const Money left = Money::FromTenThousandths(row.left);
        const Money right = Money::FromTenThousandths(row.right);
        SCOPED_TRACE(testing::Message() << row.left << " and " << row.right);
        EXPECT_EQ(Count([&] { return left + right; }), row.sum);
        EXPECT_EQ(Count([&] { return left - right; }), row.difference);
        EXPECT_EQ(Count([&] { return Money(left) += right; }), row.sum);
        EXPECT_EQ(Count([&] { return Money(left) -= right; }), row.difference);
    }
}

TEST(Money, TurnsItsSignExceptAtTheEndOfTheRange) {
    EXPECT_EQ(-Money::FromTenThousandths(7), Money::FromTenThousandths(-7));
    EXPECT_EQ(-Money::FromTenThousandths(Largest), Money::FromTenThousandths(-Largest));
    EXPECT_THROW(-Money::FromTenThousandths(Smallest), OverflowFailure);
}

TEST(Money, KeepsItsValueWhenASumFails) {
    Money amount = Money::FromTenThousandths(Largest);
    EXPECT_THROW(amount += Money::FromTenThousandths(1), OverflowFailure);
    EXPECT_EQ(amount, Money::FromTenThousandths(Largest));
}

TEST(Money, ComparesAndConvertsBack) {
    EXPECT_LT(Money::FromTenThousandths(-1), Money());
    EXPECT_GT(Money::FromTenThousandths(1), Money());
    EXPECT_TRUE(Money().IsZero());
    EXPECT_FALSE(Money::FromTenThousandths(1).IsZero());
    EXPECT_EQ(Money::FromTenThousandths(5'995'500).ToDouble(), 599.55);
    EXPECT_EQ(Money::FromTenThousandths(-1).ToDouble(), -0.0001);
}

} // namespace
