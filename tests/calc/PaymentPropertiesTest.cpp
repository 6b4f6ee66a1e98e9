// The payment over random loans, beside a slow computation that double precision has no part in.

#include "Payment.h"

#include "PreciseLoan.h"
#include "RandomLoan.h"

#include <gtest/gtest.h>

namespace {

/// To the cent, unless the true payment lies so close to half a cent that double precision cannot
/// tell the side; then it is one of the two neighbours. Not one payment in a hundred is so close.
TEST(PaymentProperties, AgreesToTheCentWithThePrecisePayment) {
    int cases = 0;
    int undecided = 0;
    ForRandomCases(4'000, [&](Random& random) {
        const RandomLoan loan = RandomLoan::Make(random);
        SCOPED_TRACE(loan);
        const Money payment = PrincipalAndInterest(loan.amount, loan.rate, loan.term, loan.code);
        const PreciseAmount precise =
            PrecisePayment(*FindFrequency(loan.code), loan.amount, loan.rate, loan.term);
        ASSERT_EQ(payment.TenThousandths() % 100, 0);
        const std::int64_t cents = payment.TenThousandths() / 100;
        const std::optional<std::int64_t> nearest = precise.Nearest();
        EXPECT_TRUE(precise.MayRoundTo(cents)) << cents << " for " << double(precise.units);
        EXPECT_EQ(cents, nearest.value_or(cents));
        ++cases;
        undecided += nearest ? 0 : 1;
    });
    RecordProperty("cases", cases);
    RecordProperty("undecided", undecided);
    EXPECT_LE(undecided, 1 + cases / 100);
}

/// A multiple of the loan has the same multiple as payment, within half a cent of each.
TEST(PaymentProperties, GrowsAsTheLoanGrows) {
    ForRandomCases(4'000, [](Random& random) {
        RandomLoan loan = RandomLoan::Make(random);
        SCOPED_TRACE(loan);
        const auto payment = [&loan] {
            return PrincipalAndInterest(loan.amount, loan.rate, loan.term, loan.code);
        };
        const Money single = payment();
        const int times = random.Int(2, 9);
        loan.amount = Money::FromTenThousandths(loan.amount.TenThousandths() * times);
        const std::int64_t difference =
            payment().TenThousandths() - single.TenThousandths() * times;
        EXPECT_LE(std::abs(difference), 50 * (times + 1)) << times << " times";
    });
}

/// More borrowed, a higher rate or a shorter term never lowers the payment.
TEST(PaymentProperties, NeverFallsWithPrincipalOrRateNorRisesWithTheTerm) {
    ForRandomCases(4'000, [](Random& random) {
        const RandomLoan loan = RandomLoan::Make(random);
        SCOPED_TRACE(loan);
        const auto payment = [&loan](Money amount, double rate, int term) {
            return PrincipalAndInterest(amount, rate, term, loan.code);
        };
        const Money usual = payment(loan.amount, loan.rate, loan.term);
        const Money more = loan.amount + Money::FromTenThousandths(random.Whole(1, 1'000'000));
        EXPECT_GE(payment(more, loan.rate, loan.term), usual);
        // Steps so wide that what double precision strays by is nothing beside them.
        EXPECT_GE(payment(loan.amount, loan.rate * 1.01 + 0.0001, loan.term), usual);
        EXPECT_LE(payment(loan.amount, loan.rate, loan.term + random.Int(1, 60)), usual);
    });
}

} // namespace
