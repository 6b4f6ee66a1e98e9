#include "ActuarialRate.h"
#include "QuendNames.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace {

struct KnownRate {
    const char* name;
    double advance;
    std::vector<CashFlows> payments; // amount, count, whole periods and fraction before the first
    int periodsPerYear;
    double percent; // to two decimals
};

TEST(ActuarialRate, OfKnownLoans) {
    const std::vector<KnownRate> loans{
        {"24 months", 5'000.0, {{230.0, 24, 1, 0.0}}, 12, 9.69},
        {"40 quarters, a long first one", 10'000.0, {{385.0, 40, 1, 39.0 / 90.0}}, 4, 8.97},
        {"12 times four weeks, the first payment greater",
         400.0,
         {{39.50, 1, 1, 5.0 / 28.0}, {38.31, 11, 2, 5.0 / 28.0}},
         13,
         28.50},
    };
    for (const KnownRate& loan : loans) {
        const std::vector<CashFlows> advances{{.amount = loan.advance}};
        const auto rate = ActuarialRate(advances, loan.payments, 10.0);
        ASSERT_TRUE(rate) << loan.name;
        EXPECT_EQ(std::round(*rate * loan.periodsPerYear * 10'000.0) / 100.0, loan.percent)
            << loan.name;
        EXPECT_NEAR(PresentValue(loan.payments, *rate), loan.advance, 1e-9) << loan.name;
    }
}

TEST(ActuarialRate, AtItsLimits) {
    constexpr double Huge = 1e18;
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    struct Case {
        double advance;
        CashFlows payments;
        std::optional<double> rate;
        double highest = 8.0;
    };
    const std::vector<Case> cases{
        // advance  amount  count     periods fraction   rate
        {100.0, {100.0, 1, 1, 0.0}, 0.0},
        {100.0, {99.0, 1, 1, 0.0}, std::nullopt}, // less is repaid
        {100.0, {200.0, 1, 1, 0.0}, 1.0},
        {100.0, {200.0, 1, 0, 0.5}, 2.0},
        {100.0, {200.0, 1, 0, 0.5}, 2.0, 2.0},     // exactly the highest
        {100.0, {900.0, 1, 1, 0.0}, 8.0},          // the highest
        {100.0, {901.0, 1, 1, 0.0}, std::nullopt}, // above it
        {100.0, {100.0, 0, 1, 0.0}, std::nullopt}, // no payment
        {100.0, {101.0, 1, 1, 0.0}, 0.01},
        {100.0, {1.0, 9'999'999, 1, 0.0}, 0.01}, // for ever, nearly
        {Huge, {2 * Huge, 1, 1, 0.0}, 1.0},
        {NaN, {100.0, 1, 1, 0.0}, std::nullopt},
    };
    for (const Case& row : cases) {
        const std::vector<CashFlows> advances{{.amount = row.advance}};
        const auto rate = ActuarialRate(advances, std::vector{row.payments}, row.highest);
        ASSERT_EQ(rate.has_value(), row.rate.has_value()) << row.payments.amount;
        if (rate) {
            EXPECT_NEAR(*rate, *row.rate, *row.rate * 1e-12) << row.payments.amount;
        }
    }
}

TEST(ActuarialRate, OfSeveralAdvances) {
    const std::vector<CashFlows> advances{{1'000.0, 3, 0, 0.0}};
    const std::vector<CashFlows> payments{{1'010.0, 3, 1, 0.0}};
    EXPECT_NEAR(ActuarialRate(advances, payments, 1.0).value_or(-1.0), 0.01, 1e-12);
}

} // namespace
