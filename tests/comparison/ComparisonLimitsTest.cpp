#include "Comparison.h"
#include "QuendNames.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <optional>

// What the reference table does not reach: the limits of money, of terms and of the calendar.

namespace {

Money Units(std::int64_t count) { return Money::FromTenThousandths(count * 10'000); }

constexpr Money Most =
    Money::FromTenThousandths(std::numeric_limits<std::int64_t>::max() - 1'000'000);

ComparisonInput Sheet(Money amount, const OfferInput& offer) {
    ComparisonInput input;
    input.today = Date::FromCalendar(2026, 7, 21);
    input.amount = amount;
    input.offers = {offer};
    return input;
}

OfferInput Offer(double rate, int months, const char* frequency = "M") {
    OfferInput offer;
    offer.rate = Rate::FromFraction(rate);
    offer.term = {months};
    offer.frequency = FrequencyCode(QString::fromLatin1(frequency));
    return offer;
}

TEST(ComparisonLimits, BlankWorksheet) {
    const ComparisonResult result = Compare(Sheet(Money(), {}));
    EXPECT_EQ(result.months, 1);
    EXPECT_TRUE(result.cheapest.empty());
    EXPECT_FALSE(result.cheapestByHorizon || result.current);
    EXPECT_EQ(result.offers.front().leftOut, LeftOut::NoAmount);
    EXPECT_FALSE(result.offers.front().overflow);
    EXPECT_EQ(Compare({}), ComparisonResult());
}

TEST(ComparisonLimits, WhyAnOfferIsLeftOut) {
    OfferInput expensive = Offer(0.06, 360);
    expensive.points = Percent::FromPercent(1e12);
    OfferInput financed = expensive;
    financed.pointsFinanced = true;
    OfferInput costly = Offer(0.06, 360);
    costly.costs = Most;
    OfferInput credited = Offer(0.06, 360);
    credited.costs = Money() - Most;
    struct Case {
        const char* name;
        Money amount;
        OfferInput offer;
        LeftOut leftOut;
        bool overflow;
        bool hasPayment;
    };
    constexpr int Ages = std::numeric_limits<int>::max();
    const std::array cases{
        // name               amount           offer                    left out overflow, payment
        Case{"ordinary", Units(100'000), Offer(0.06, 360), LeftOut::No, false, true},
        Case{"negative", Units(-1), Offer(0.0, 0, ""), LeftOut::NoAmount, false, true},
        Case{"no rate", Units(1), Offer(0.0, 0, ""), LeftOut::NoRate, false, true},
        Case{"no frequency", Units(1), Offer(0.06, 0, ""), LeftOut::NoFrequency, false, true},
        Case{"unknown", Units(1), Offer(0.06, 360, "X"), LeftOut::NoFrequency, false, true},
        Case{"no term", Units(1), Offer(0.06, 0), LeftOut::NoTerm, false, true},
        Case{"no payment", Units(1), Offer(0.001, 360), LeftOut::NoPayment, false, true},
        Case{"principal", Units(100'000), financed, LeftOut::NeverEnds, true, false},
        Case{"points in cash", Units(100'000), expensive, LeftOut::NeverEnds, true, true},
        Case{"costs", Units(100'000), costly, LeftOut::NeverEnds, true, true},
        Case{"credit", Units(100'000), credited, LeftOut::NeverEnds, true, true},
        Case{"payment", Units(100'000), Offer(1e300, 360), LeftOut::NeverEnds, true, false},
        Case{"payments", Units(100'000), Offer(0.06, Ages, "B"), LeftOut::NeverEnds, true, false},
        Case{"tiny rate", Units(100'000), Offer(1e-300, 360), LeftOut::NeverEnds, true, false},
        Case{"no number", Units(100'000), Offer(std::nan(""), 9), LeftOut::NeverEnds, true, false},
    };
    for (const Case& row : cases) {
        OfferInput entered = row.offer;
        entered.actualPayment = row.hasPayment ? Money() : Units(2'000);
        const OfferComparison offer = Compare(Sheet(row.amount, entered)).offers.front();
        EXPECT_EQ(offer.leftOut, row.leftOut) << row.name;
        EXPECT_EQ(offer.overflow, row.overflow) << row.name;
        EXPECT_EQ(offer.payment.has_value(), row.hasPayment) << row.name;
        EXPECT_EQ(offer.figures.has_value(), row.leftOut == LeftOut::No) << row.name;
        if (!row.hasPayment) { // nothing is computed from the intended one
            EXPECT_EQ(offer.actualPayment, entered.actualPayment) << row.name;
            EXPECT_FALSE(offer.raised || offer.payoffDate || offer.interest) << row.name;
        }
    }
}

TEST(ComparisonLimits, WhetherTheLoanHeldTodayTakesPart) {
    struct Case {
        const char* name;
        Money balance;
        Money payment;
        const char* frequency;
        PaymentChoice choice;
        bool takesPart;
        int months;
        int due = 2026; ///< in October of the year; today is 21 July 2026
    };
    constexpr auto Intended = PaymentChoice::Intended;
    constexpr auto Monthly = PaymentChoice::Monthly; // 900
    const Money owed = Units(400);
    const std::array cases{
        // name            balance payment  frequency, choice, takes part, months
        Case{"ordinary", owed, Units(500), "M", Intended, true, 4},
        Case{"same amount", owed, Units(500), "Q", Monthly, true, 4},
        Case{"no balance", Money(), Units(500), "M", Intended, false, 1},
        Case{"in credit", Units(-400), Units(500), "M", Intended, false, 1},
        Case{"no payment", owed, Money(), "M", Intended, false, 1},
        Case{"not even then", owed, Money(), "M", Monthly, false, 1},
        Case{"negative", owed, Units(-1), "M", Monthly, false, 1},
        Case{"no frequency", owed, Units(500), "", Intended, false, 1},
        Case{"unknown", owed, Units(500), "X", Intended, false, 1},
        Case{"never repaid", owed, Units(1), "M", Intended, false, 1},
        Case{"but then", owed, Units(1), "M", Monthly, true, 4},
        Case{"too much a month", owed, Most, "W", Intended, false, 1},
        Case{"repaid before today", owed, Units(500), "M", Intended, true, 1, 2024},
    };
    for (const Case& row : cases) {
        ComparisonInput input = Sheet(Money(), {});
        input.choice = row.choice;
        input.monthlyPayment = Units(900);
        input.current = {.rate = Rate::FromFraction(0.08),
                         .balance = row.balance,
                         .actualPayment = row.payment,
                         .actualFrequency = FrequencyCode(QString::fromLatin1(row.frequency)),
                         .nextPayment = Date::FromCalendar(row.due, 10, 21)};
        const ComparisonResult result = Compare(input);
        ASSERT_TRUE(result.current) << row.name;
        EXPECT_EQ(result.current->figures.has_value(), row.takesPart) << row.name;
        EXPECT_EQ(result.current->costByHorizon.has_value(), row.takesPart) << row.name;
        EXPECT_EQ(result.months, row.months) << row.name;
    }
}

/// 1,000 at 6 % for a month: 1,005.00 repay it.
TEST(ComparisonLimits, Apr) {
    struct Case {
        std::int64_t costs; ///< in ten-thousandths
        std::optional<double> apr;
    };
    const std::array cases{
        Case{0, 0.06},
        Case{-50'000, 0.0}, // as much is received
        Case{-50'001, std::nullopt},
        Case{8'923'214, 12.0 * (1'005.0 / 107.6786 - 1.0)}, // below 10,000 %
        Case{8'923'215, std::nullopt},
        Case{10'000'000, std::nullopt}, // nothing is received
        Case{10'000'001, std::nullopt},
    };
    for (const Case& row : cases) {
        OfferInput bid = Offer(0.06, 1);
        bid.costs = Money::FromTenThousandths(row.costs);
        const auto figures = Compare(Sheet(Units(1'000), bid)).offers.front().figures;
        ASSERT_TRUE(figures);
        ASSERT_EQ(figures->apr.has_value(), row.apr.has_value()) << row.costs;
        ASSERT_EQ(figures->effectiveRate.has_value(), row.apr.has_value()) << row.costs;
        if (row.apr) {
            EXPECT_NEAR(figures->apr->Fraction(), *row.apr, 1e-10) << row.costs;
        }
    }
}

/// The sums are compared in money: in double they may differ where they are the same.
TEST(ComparisonLimits, AprWhereTheLenderReturnsTheInterest) {
    for (const int months : {1, 2, 7, 12, 60, 180, 359, 360}) {
        ComparisonInput input = Sheet(Units(123'456), Offer(0.0725, months));
        OfferInput& offer = input.offers.front();
        const auto figures = [&input] { return Compare(input).offers.front().figures.value(); };
        offer.costs = -figures().totalCost;
        EXPECT_EQ(figures().apr, Rate()) << months;
        EXPECT_EQ(figures().effectiveRate, Rate()) << months;
        offer.costs -= Money::FromTenThousandths(1);
        EXPECT_EQ(figures().apr, std::nullopt) << months;
    }
}

/// Of two offers that differ by their rates alone, except for costs.
TEST(ComparisonLimits, RateToMatch) {
    struct Case {
        const char* name;
        Money amount;
        int months;
        double cheapest;
        double own;
        std::optional<double> expected;
        Money costs{}; ///< of the other
    };
    const Money amount = Units(100'000);
    const Money cent = Money::FromTenThousandths(100);
    const std::array cases{
        // name               amount, months cheapest own  expected
        Case{"a thousandth", amount, 360, 0.06, 0.06001, 0.06},
        Case{"half of one", amount, 360, 0.06, 0.060005, 0.06},
        // At 6.015 % a cent more is required, which saves more than half a thousandth costs.
        Case{"not above its own", Units(1'000), 360, 0.0601425, 0.060145, 0.06014},
        Case{"half its own", amount, 360, 0.03, 0.06, 0.03},
        Case{"less than half", amount, 360, 0.02999, 0.06, std::nullopt},
        Case{"the least", amount, 360, 0.00001, 0.00002, 0.00001},
        Case{"not even that", amount, 360, 0.00002, 0.00002, std::nullopt, Units(100)},
        // One payment of a cent and a rest: interest of 5 ten-thousandths is cheapest, and that of
        // 5.5 is rounded to 6.
        Case{"of a cent", cent, 1, 0.6, 1.2, 0.65999},
        // A payment of less than half a cent is none: the middle, 0.3 %, is not computed.
        Case{"too small", Money::FromTenThousandths(17'000), 360, 0.005, 0.006, std::nullopt},
    };
    for (const Case& row : cases) {
        ComparisonInput input = Sheet(row.amount, Offer(row.cheapest, row.months));
        input.offers.push_back(Offer(row.own, row.months));
        input.offers.back().costs = row.costs;
        const ComparisonResult result = Compare(input);
        ASSERT_EQ(result.cheapestByHorizon, 1) << row.name;
        const auto found = result.offers.back().figures.value().rateToMatch;
        EXPECT_EQ(found ? std::optional(found->Fraction()) : std::nullopt, row.expected)
            << row.name;
    }
}

/// Steps of 0.001 % that a double counts exactly: below 10 ^ 15.
TEST(ComparisonLimits, RateToMatchOfTheHighestRates) {
    for (const double own : {9'999'999'999.999995, 1e10}) {
        ComparisonInput input = Sheet(Units(1), Offer(8e9, 12));
        input.offers.push_back(Offer(own, 12));
        for (OfferInput& offer : input.offers) {
            offer.actualPayment = Units(2'000'000'000); // repays at once
        }
        const auto figures = Compare(input).offers.back().figures;
        ASSERT_TRUE(figures);
        EXPECT_EQ(figures->rateToMatch.has_value(), own < 1e10);
    }
}

/// The main window shows no payoff date without a payment, though the escrow may pay it all.
TEST(ComparisonLimits, EscrowThatPaysAll) {
    ComparisonInput input = Sheet(Units(1'000), Offer(0.06, 12));
    input.escrowMonthly = Money::FromTenThousandths(-860'700); // what the offer requires
    const OfferComparison offer = Compare(input).offers.front();
    EXPECT_EQ(offer.payment, Money());
    EXPECT_TRUE(offer.figures);
    EXPECT_FALSE(offer.payoffDate || offer.interest);
}

TEST(ComparisonLimits, EndOfTheCalendar) {
    struct Case {
        Date today;
        int payment; ///< in units, of a loan of 1,000
        LeftOut leftOut;
    };
    const std::array cases{
        Case{Date::FromCalendar(9999, 12, 1), 2'000, LeftOut::No}, // a last payment takes no step
        Case{Date::Last(), 2'000, LeftOut::No},
        Case{Date::FromCalendar(9999, 12, 1), 700, LeftOut::NeverEnds},
    };
    for (const Case& row : cases) {
        OfferInput bid = Offer(0.06, 12);
        bid.actualPayment = Units(row.payment);
        ComparisonInput input = Sheet(Units(1'000), bid);
        input.today = row.today;
        input.current.balance = Units(1'000);
        input.current.actualPayment = Units(row.payment);
        input.current.actualFrequency = bid.frequency;
        const ComparisonResult result = Compare(input);
        const OfferComparison& offer = result.offers.front();
        EXPECT_EQ(offer.leftOut, row.leftOut);
        if (row.leftOut == LeftOut::No) {
            ASSERT_TRUE(offer.figures);
            EXPECT_EQ(offer.figures->costByHorizon, Units(5)); // a whole period
            EXPECT_EQ(offer.figures->balanceAtHorizon, Money());
            // A payment that clears the balance exactly takes a step, past the last date.
            EXPECT_EQ(offer.figures->paymentForHorizon, Money::FromTenThousandths(10'050'100));
            EXPECT_EQ(result.months, 1200); // no later day
        }
    }
}

} // namespace
