// The payment over random loans, compared with a slow computation without double precision.

#include "Payment.h"
#include "QuendNames.h"

#include "PreciseLoan.h"
#include "RandomLoan.h"

#include <gtest/gtest.h>

namespace {

/// Exact to the cent. Where the true payment is too close to half a cent for double precision, the
/// result is one of its two neighbours. This applies to less than 1 % of the payments.
TEST(PaymentProperties, AgreesToTheCentWithThePrecisePayment) {
    int cases = 0;
    int undecided = 0;
    ForRandomCases(4'000, [&](Random& random) {
        const RandomLoan loan = RandomLoan::Make(random);
        SCOPED_TRACE(loan);
        const Money payment = PrincipalAndInterest(loan.amount, loan.rate, loan.term, loan.code);
        const PreciseAmount precise = PrecisePayment(*FindFrequency(loan.code), loan.amount,
                                                     loan.rate.Fraction(), loan.term.count);
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

/// A multiple of the loan has the same multiple as its payment, within half a cent of each.
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

/// A larger amount, a higher rate or a shorter term never lowers the payment.
TEST(PaymentProperties, NeverFallsWithPrincipalOrRateNorRisesWithTheTerm) {
    ForRandomCases(4'000, [](Random& random) {
        const RandomLoan loan = RandomLoan::Make(random);
        SCOPED_TRACE(loan);
        const auto payment = [&loan](Money amount, Rate rate, Months term) {
            return PrincipalAndInterest(amount, rate, term, loan.code);
        };
        const Money usual = payment(loan.amount, loan.rate, loan.term);
        const Money more = loan.amount + Money::FromTenThousandths(random.Whole(1, 1'000'000));
        EXPECT_GE(payment(more, loan.rate, loan.term), usual);
        const Rate higher = Rate::FromFraction(loan.rate.Fraction() * 1.01 + 0.0001);
        const Months longer{loan.term.count + random.Int(1, 60)};
        // The steps are so wide that the error of double precision is negligible.
        EXPECT_GE(payment(loan.amount, higher, loan.term), usual);
        EXPECT_LE(payment(loan.amount, loan.rate, longer), usual);
    });
}

} // namespace
