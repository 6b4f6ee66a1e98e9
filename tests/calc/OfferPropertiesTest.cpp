// An offer over random loans: its results follow from the rules of payment and schedule.

#include "CLoan.h"
#include "QuendNames.h"

#include "Failure.h"
#include "Payment.h"
#include "RandomLoan.h"
#include "RecordingLoanContext.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

/// An offer of a random loan in a separate worksheet.
struct RandomOffer {
    explicit RandomOffer(Random& random) : loan(RandomLoan::Make(random)) {
        context.escrowMonthly = loan.escrowMonthly;
        context.today = loan.start;
    }

    RandomLoan loan;
    RecordingLoanContext context;
    CLoan offer = MakeOffer(context, {.startingAmount = loan.amount,
                                      .points = loan.points,
                                      .financePoints = loan.financePoints,
                                      .term = loan.term,
                                      .rate = loan.rate,
                                      .frequency = loan.code,
                                      .actualPayment = {}});
};

/// Points are in eighths, so amount * eighths is a whole number. The exact points are that number
/// of 800ths; the program rounds them to the nearest ten-thousandth.
TEST(OfferProperties, FinancedPointsAreBorrowedAndOthersAreNot) {
    ForRandomCases(2'000, [](Random& random) {
        RandomOffer tried(random);
        const RandomLoan& loan = tried.loan;
        SCOPED_TRACE(loan);
        const std::int64_t amount = loan.amount.TenThousandths();
        const std::int64_t borrowed = tried.offer.StartingPrinciple().TenThousandths() - amount;
        if (!loan.financePoints) {
            EXPECT_EQ(borrowed, 0);
            return;
        }
        const std::int64_t parts = amount * static_cast<std::int64_t>(loan.points.Value() * 8.0);
        // Half a ten-thousandth is 400 parts. The error of an amount of up to 10^13 ten-thousandths
        // times points is below one part in 10^13 * 80 parts: four roundings of 2^-53 are 0.36.
        EXPECT_LE(std::abs(borrowed * 800 - parts), 401);
    });
}

TEST(OfferProperties, ResultsAreThoseOfItsPrincipalPaymentAndSchedule) {
    int repaid = 0;
    ForRandomCases(500, [&repaid](Random& random) {
        RandomOffer tried(random);
        RandomLoan loan = tried.loan;
        SCOPED_TRACE(loan);
        loan.amount = tried.offer.StartingPrinciple();
        EXPECT_EQ(tried.offer.PandI(),
                  PrincipalAndInterest(loan.amount, loan.rate, loan.term, loan.code));
        const Money least = tried.offer.PandI().IsZero() ? Money() : loan.LeastPayment();
        EXPECT_EQ(tried.offer.LeastPayment(tried.offer.PandI()), least);
        EXPECT_EQ(tried.offer.Payment(), least);
        EXPECT_EQ(tried.offer.ActualPayment(), least);
        EXPECT_EQ(tried.offer.Forced(), !least.IsZero());
        const Money intended = least + Money::FromTenThousandths(random.Whole(1, 10'000'000));
        tried.offer.SetActualPayment(intended);
        ASSERT_EQ(tried.offer.ActualPayment(), intended);
        std::optional<Payoff> payoff;
        try {
            payoff = RunToPayoff(loan.Terms(intended));
        } catch (const OverflowFailure&) {
            EXPECT_THROW(tried.offer.PayoffDate(), OverflowFailure);
            return;
        }
        ++repaid;
        EXPECT_EQ(tried.offer.PayoffDate(), payoff->date);
        EXPECT_EQ(tried.offer.Interest(), payoff->interest);
    });
    EXPECT_GT(repaid, 0);
}

/// No positive payment below the computed one is kept, and each refusal is reported.
TEST(OfferProperties, AnIntendedPaymentBelowTheComputedOneIsRefused) {
    ForRandomCases(2'000, [](Random& random) {
        RandomOffer tried(random);
        SCOPED_TRACE(tried.loan);
        const Money least = tried.offer.LeastPayment(tried.offer.PandI());
        const Money entered = Money::FromTenThousandths(
            random.OneIn(3) ? least.TenThousandths() + random.Whole(-1, 1)
                            : random.Whole(-10'000, least.TenThousandths() * 2));
        tried.offer.SetActualPayment(entered);
        const bool refused = entered > Money() && entered < least;
        EXPECT_EQ(tried.context.refused, refused ? 1 : 0);
        EXPECT_EQ(tried.offer.ActualPayment(), refused ? least : entered);
    });
}

} // namespace
