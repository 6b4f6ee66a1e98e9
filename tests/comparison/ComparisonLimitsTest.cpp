#include "Comparison.h"
#include "QuendNames.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

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
        const OfferComparison offer = Compare(Sheet(row.amount, row.offer)).offers.front();
        EXPECT_EQ(offer.leftOut, row.leftOut) << row.name;
        EXPECT_EQ(offer.overflow, row.overflow) << row.name;
        EXPECT_EQ(offer.payment.has_value(), row.hasPayment) << row.name;
        EXPECT_EQ(offer.figures.has_value(), row.leftOut == LeftOut::No) << row.name;
    }
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
