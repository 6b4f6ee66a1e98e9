#include "Solving.h"
#include "ComparedOffer.h"
#include "Comparison.h"
#include "Frequency.h"
#include "LoanSchedule.h"
#include "QuendNames.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace {

Money Cents(std::int64_t count) { return Money::FromTenThousandths(count * 100); }

constexpr Money OneCent = Money::FromTenThousandths(100);
constexpr Money GreatestAmount =
    Money::FromTenThousandths(std::numeric_limits<std::int64_t>::max());

FrequencyCode Code(const char* code) { return FrequencyCode(QString::fromLatin1(code)); }

/// One offer of 200,000 over 30 years, and a loan held today.
ComparisonInput Sheet() {
    ComparisonInput input;
    input.today = Date::FromCalendar(2026, 11, 22);
    input.amount = Cents(20'000'000);
    input.escrowMonthly = Cents(40'000);
    input.offers = {{.rate = Rate::FromFraction(0.06), .term = {360}, .frequency = Code("M")}};
    input.current = {.rate = Rate::FromFraction(0.07),
                     .balance = Cents(15'000'000),
                     .actualPayment = Cents(180'000),
                     .actualFrequency = Code("M"),
                     .nextPayment = Date::FromCalendar(2026, 12, 1)};
    return input;
}

/// What the offer requires, as the comparison says it.
Money Required(const ComparisonInput& input) {
    return Compare(input).offers.front().payment.value_or(GreatestAmount);
}

TEST(Solving, PlacesOfOffers) {
    const ComparisonInput input = Sheet();
    EXPECT_EQ(OfferAt(input, 1), &input.offers.front());
    for (const int place : {-1, CurrentLoanPlace, 2}) {
        EXPECT_EQ(OfferAt(input, place), nullptr) << place;
    }
}

TEST(Solving, LeastPaymentEndsByTheDayAndACentLessDoesNot) {
    for (const Frequency& frequency : Frequencies) {
        for (const int years : {3, 10, 29}) {
            ComparisonInput input = Sheet();
            input.years = years;
            input.offers.front().frequency = frequency.Code();
            input.current.actualFrequency = frequency.Code();
            const Date day = Date::FromCalendar(2026 + years, 11, 22);
            for (const int place : {CurrentLoanPlace, 1}) {
                const auto payment = LeastPaymentBy(input, place, day);
                ASSERT_TRUE(payment) << years;
                const auto owedWith = [&](Money tried) {
                    input.offers.front().actualPayment = tried;
                    input.current.actualPayment = tried;
                    const ComparisonResult result = Compare(input);
                    return place == CurrentLoanPlace
                               ? result.current->balanceAtHorizon
                               : result.offers.front().figures->balanceAtHorizon;
                };
                EXPECT_EQ(owedWith(*payment), Money()) << years;
                EXPECT_GT(owedWith(*payment - OneCent), Money()) << years;
            }
        }
    }
}

TEST(Solving, LeastPaymentWhereTheLoanTakesNoPart) {
    const Date day = Date::FromCalendar(2036, 11, 22);
    ComparisonInput endless = Sheet();
    endless.current.actualPayment = Cents(100);
    endless.offers.front().term = {100'000}; // its rounded payment never repays it
    ASSERT_EQ(Compare(endless).offers.front().leftOut, LeftOut::NeverEnds);
    EXPECT_TRUE(LeastPaymentBy(endless, CurrentLoanPlace, day));
    EXPECT_TRUE(LeastPaymentBy(endless, 1, day));

    ComparisonInput unpaid = Sheet();
    unpaid.current.actualPayment = Money();
    EXPECT_EQ(LeastPaymentBy(unpaid, CurrentLoanPlace, day),
              LeastPaymentBy(Sheet(), CurrentLoanPlace, day));

    ComparisonInput incomplete = Sheet();
    incomplete.current.balance = Money();
    incomplete.offers.front().frequency = {};
    for (const int place : {-1, CurrentLoanPlace, 1, 2}) {
        EXPECT_FALSE(LeastPaymentBy(incomplete, place, day)) << place;
    }
    ComparisonInput costly = Sheet();
    costly.offers.front().costs = GreatestAmount;
    costly.offers.front().points = Percent::FromPercent(1.0);
    EXPECT_FALSE(LeastPaymentBy(costly, 1, day));            // its costs are beyond the range
    EXPECT_FALSE(LeastPaymentBy(Sheet(), 1, Sheet().today)); // its first period has not ended
}

TEST(Solving, LargestAmountIsAffordableAndACentMoreIsNot) {
    for (const Frequency& frequency : Frequencies) {
        for (const bool financed : {false, true}) {
            for (const int units : {401, 500, 2'000, 1'000'000}) {
                ComparisonInput input = Sheet();
                input.offers.front().frequency = frequency.Code();
                input.offers.front().points = Percent::FromPercent(1.375);
                input.offers.front().pointsFinanced = financed;
                input.offers.front().actualPayment = GreatestAmount; // has no influence
                const Money payment = Cents(std::int64_t{units} * 100);
                const auto amount = LargestAmount(input, 1, payment);
                ASSERT_TRUE(amount);
                input.offers.front().actualPayment = Money();
                input.amount = *amount;
                EXPECT_LE(Required(input), payment);
                input.amount = *amount + OneCent;
                EXPECT_GT(Required(input), payment);
            }
        }
    }
}

TEST(Solving, HighestRateIsAffordableAndAThousandthMoreIsNot) {
    for (const Frequency& frequency : Frequencies) {
        for (const int units : {1'100, 1'500, 20'000}) {
            ComparisonInput input = Sheet();
            input.offers.front().frequency = frequency.Code();
            const Money payment = Cents(std::int64_t{units} * 100);
            const auto rate = HighestRate(input, 1, payment);
            ASSERT_TRUE(rate);
            input.offers.front().rate = *rate;
            EXPECT_LE(Required(input), payment);
            input.offers.front().rate = Rate::FromFraction(rate->Fraction() + 1e-5);
            EXPECT_GT(Required(input), payment);
        }
    }
}

TEST(Solving, WithoutAnAnswer) {
    struct Case {
        const char* name;
        Rate rate;
        Months term;
        const char* frequency;
        Money payment;
        bool hasAmount;
        bool hasRate;
    };
    const Rate six = Rate::FromFraction(0.06);
    const std::array cases{
        // name                     rate    term   code payment        amount, rate
        Case{"complete", six, {360}, "M", Cents(200'000), true, true},
        Case{"without a rate", {}, {360}, "M", Cents(200'000), false, true},
        Case{"without a frequency", six, {360}, "", Cents(200'000), false, false},
        Case{"unknown frequency", six, {360}, "X", Cents(200'000), false, false},
        Case{"without a term", six, {}, "M", Cents(200'000), false, false},
        Case{"the escrow alone", six, {360}, "M", Cents(40'000), false, false},
        Case{"less than the escrow", six, {360}, "M", Cents(39'999), false, false},
        Case{"a cent more than it", six, {360}, "M", Cents(40'001), true, false},
        Case{"without interest", six, {360}, "M", Cents(95'555), true, false},
        Case{"negative", six, {360}, "M", Cents(-1), false, false},
        Case{"the most there is", six, {360}, "M", GreatestAmount, true, true},
    };
    for (const Case& row : cases) {
        ComparisonInput input = Sheet();
        input.offers = {{.rate = row.rate, .term = row.term, .frequency = Code(row.frequency)}};
        EXPECT_EQ(LargestAmount(input, 1, row.payment).has_value(), row.hasAmount) << row.name;
        EXPECT_EQ(HighestRate(input, 1, row.payment).has_value(), row.hasRate) << row.name;
    }
    for (const int place : {-1, CurrentLoanPlace, 2}) {
        EXPECT_FALSE(LargestAmount(Sheet(), place, GreatestAmount)) << place;
        EXPECT_FALSE(HighestRate(Sheet(), place, GreatestAmount)) << place;
    }
    EXPECT_EQ(HighestRate(Sheet(), 1, Cents(95'564)), Rate::FromFraction(0.00001)); // 555.639
    EXPECT_FALSE(HighestRate(Sheet(), 1, Cents(95'563)));
    EXPECT_EQ(HighestRate(Sheet(), 1, GreatestAmount),
              Rate::FromFraction(100.0)); // as far as it searches
}

} // namespace
