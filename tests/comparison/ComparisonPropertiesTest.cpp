// Comparisons of random worksheets: what each figure says, tried on the loan that it speaks of.

#include "Comparison.h"
#include "Frequency.h"
#include "QuendNames.h"
#include "RandomWorksheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

namespace {

constexpr Money Cent = Money::FromTenThousandths(100);

/// One offer of a worksheet in a worksheet without the others.
ComparisonInput Alone(ComparisonInput sheet, const OfferInput& offer) {
    sheet.offers = {offer};
    return sheet;
}

/// None where it takes no part.
std::optional<OfferFigures> FiguresAlone(const ComparisonInput& sheet, const OfferInput& offer) {
    return Compare(Alone(sheet, offer)).offers.front().figures;
}

/// Calls with each offer that takes part and its result.
template <typename Call>
void ForEachPart(const ComparisonInput& sheet, const ComparisonResult& result, Call call) {
    for (std::size_t i = 0; i < sheet.offers.size(); ++i) {
        if (result.offers[i].figures) {
            SCOPED_TRACE(testing::Message() << "offer " << i + 1);
            call(sheet.offers[i], result.offers[i], *result.offers[i].figures);
        }
    }
}

/// The last payment makes good what rounding changes in the payment, so the rate differs only by
/// the rounding of interest: half a ten-thousandth a period, of a balance whose mean is at least
/// half the amount. Discounting gives the greater, earlier balances more weight.
TEST(ComparisonProperties, AprWithoutCostsIsTheRate) {
    int tried = 0;
    ForRandomCases(40, [&tried](Random& random) {
        ComparisonInput sheet = RandomWorksheet(random);
        for (OfferInput& offer : sheet.offers) {
            offer.points = Percent();
            offer.costs = Money();
        }
        ForEachPart(sheet, Compare(sheet),
                    [&](const OfferInput& offer, const auto&, const auto& figures) {
                        const Frequency& frequency = *FindFrequency(offer.frequency);
                        if (frequency.step == DateStep::Days) {
                            return; // their interest counts days
                        }
                        ++tried;
                        ASSERT_TRUE(figures.apr);
                        const auto amount = static_cast<double>(sheet.amount.TenThousandths());
                        EXPECT_NEAR(figures.apr->Fraction(), offer.rate.Fraction(),
                                    frequency.periodsPerYear / amount + 1e-10);
                    });
    });
    EXPECT_GT(tried, 0);
}

/// Costs are paid in cash: they add to what an offer costs, and to nothing else. An apr is good to
/// 1e-10.
TEST(ComparisonProperties, MoreCostsCostMore) {
    ForRandomCases(40, [](Random& random) {
        const ComparisonInput sheet = RandomWorksheet(random);
        const Money extra = Money::FromTenThousandths(random.Int(1, 50'000'000));
        ForEachPart(sheet, Compare(sheet),
                    [&](OfferInput offer, const OfferComparison& own, const OfferFigures& figures) {
                        offer.costs += extra;
                        const auto costly = FiguresAlone(sheet, offer);
                        ASSERT_TRUE(costly);
                        EXPECT_EQ(costly->upfront, figures.upfront + extra);
                        EXPECT_EQ(costly->totalCost, figures.totalCost + extra);
                        EXPECT_EQ(costly->costByHorizon, figures.costByHorizon + extra);
                        EXPECT_EQ(costly->paymentForHorizon, figures.paymentForHorizon);
                        EXPECT_EQ(costly->interestSaved, figures.interestSaved);
                        if (costly->apr && figures.apr) {
                            EXPECT_GE(costly->apr->Fraction(), figures.apr->Fraction() - 1e-10);
                            EXPECT_GE(*costly->effectiveRate, *costly->apr);
                        } else if (figures.apr) { // above 10,000 %, or nothing is received
                            EXPECT_LT(sheet.amount - costly->upfront, *own.principalAndInterest);
                        }
                    });
    });
}

/// With another rate, as rateToMatch compares it: an intended payment that its own rate requires
/// does not count.
Money CostAt(const ComparisonInput& sheet, OfferInput offer, const OfferComparison& own,
             double rate) {
    if (offer.actualPayment <= *own.payment) {
        offer.actualPayment = Money();
    }
    offer.rate = Rate::FromFraction(rate);
    const auto figures = FiguresAlone(sheet, offer);
    EXPECT_TRUE(figures);
    return figures ? figures->costByHorizon : Money();
}

/// The search has tried the rate that it found, and one thousandth more unless that is its own
/// rate. What it has not tried need not cost more at a higher rate: the required payment may round
/// to a cent more, which late in a term saves more interest than the rate adds. Within five years
/// and from 100,000 on it does: a cent more a payment saves 1.26 at most (every two weeks at 25 %),
/// and a thousandth of a percent of a mean balance of half the amount costs 2.50.
TEST(ComparisonProperties, RateToMatchIsTheHighestThatCostsNoMore) {
    constexpr double Steps = 100'000.0;
    constexpr Money Large = Money::FromTenThousandths(1'000'000'000);
    int found = 0;
    int none = 0;
    ForRandomCases(40, [&](Random& random) {
        const ComparisonInput sheet = RandomWorksheet(random);
        const ComparisonResult result = Compare(sheet);
        if (!result.cheapestByHorizon) {
            return;
        }
        const auto least = static_cast<std::size_t>(*result.cheapestByHorizon) - 1;
        const Money cheapest = result.offers[least].figures->costByHorizon;
        const bool rises = sheet.years <= 5 && sheet.amount >= Large;
        ForEachPart(
            sheet, result, [&](const OfferInput& offer, const auto& own, const auto& figures) {
                const double steps = offer.rate.Fraction() * Steps;
                if (figures.costByHorizon <= cheapest) {
                    EXPECT_EQ(figures.rateToMatch, std::nullopt);
                } else if (figures.rateToMatch) {
                    const double at = std::round(figures.rateToMatch->Fraction() * Steps);
                    EXPECT_EQ(figures.rateToMatch->Fraction(), at / Steps);
                    EXPECT_LE(CostAt(sheet, offer, own, at / Steps), cheapest);
                    if (at + 1 < steps - 1e-9 || rises) {
                        EXPECT_GT(CostAt(sheet, offer, own, (at + 1) / Steps), cheapest);
                    }
                    EXPECT_GE(at, steps / 2);
                    EXPECT_LT(at, steps);
                    ++found;
                } else if (rises) {
                    EXPECT_GT(CostAt(sheet, offer, own, std::ceil(steps / 2) / Steps), cheapest);
                    ++none;
                }
            });
    });
    EXPECT_GT(found, 0);
    EXPECT_GT(none, 0);
}

/// What is owed at the horizon if an offer is paid that much; of the loan held today for null.
Money OwedWith(ComparisonInput sheet, const OfferInput* offer, Money payment) {
    sheet.choice = PaymentChoice::Intended;
    if (offer != nullptr) {
        OfferInput tried = *offer;
        tried.actualPayment = payment;
        return FiguresAlone(sheet, tried).value().balanceAtHorizon;
    }
    sheet.current.actualPayment = payment;
    return Compare(sheet).current->balanceAtHorizon.value_or(sheet.current.balance);
}

TEST(ComparisonProperties, PaymentForHorizonIsTheLeast) {
    int none = 0;
    ForRandomCases(40, [&](Random& random) {
        ComparisonInput sheet = RandomWorksheet(random);
        sheet.years = random.OneIn(2) ? 1 : sheet.years; // sometimes before the next payment
        const auto expectLeast = [&](const OfferInput* offer, std::optional<Money> payment,
                                     Money required) {
            constexpr Money All = Money::FromTenThousandths(1'000'000'000'000);
            if (!payment) {
                EXPECT_GT(OwedWith(sheet, offer, All), Money());
                ++none;
                return;
            }
            EXPECT_EQ(payment->TenThousandths() % Cent.TenThousandths(), 0);
            EXPECT_GE(*payment, required);
            EXPECT_EQ(OwedWith(sheet, offer, *payment), Money());
            if (*payment - Cent >= required) {
                EXPECT_GT(OwedWith(sheet, offer, *payment - Cent), Money());
            }
        };
        const ComparisonResult result = Compare(sheet);
        ForEachPart(
            sheet, result,
            [&](const OfferInput& offer, const OfferComparison& own, const OfferFigures& figures) {
                expectLeast(&offer, figures.paymentForHorizon, *own.payment);
            });
        if (result.current && result.current->figures) {
            expectLeast(nullptr, result.current->paymentForHorizon, Cent);
        }
    });
    EXPECT_GT(none, 0);
}

TEST(ComparisonProperties, SavingsAreAgainstTheRequiredPayment) {
    ForRandomCases(40, [](Random& random) {
        ComparisonInput sheet = RandomWorksheet(random);
        const ComparisonResult result = Compare(sheet);
        sheet.choice = PaymentChoice::Required;
        sheet.escrowMonthly = Money();
        ForEachPart(sheet, result, [&](const OfferInput& offer, const auto&, const auto& figures) {
            const auto required = FiguresAlone(sheet, offer);
            ASSERT_EQ(figures.interestSaved.has_value(), required.has_value());
            if (required) {
                EXPECT_EQ(*figures.interestSaved + figures.totalCost, required->totalCost);
                EXPECT_EQ(figures.apr, required->apr);
                EXPECT_EQ(required->interestSaved, Money());
                EXPECT_EQ(required->paymentsSaved, 0);
                EXPECT_EQ(*figures.paymentsSaved > 0, figures.payoff < required->payoff);
            }
        });
    });
}

TEST(ComparisonProperties, OffersDoNotInfluenceOneAnother) {
    ForRandomCases(40, [](Random& random) {
        const ComparisonInput sheet = RandomWorksheet(random);
        const ComparisonResult result = Compare(sheet);
        for (std::size_t i = 0; i < sheet.offers.size(); ++i) {
            OfferComparison together = result.offers[i];
            const ComparisonResult alone = Compare(Alone(sheet, sheet.offers[i]));
            if (together.figures) {
                together.figures->rateToMatch.reset();
            }
            EXPECT_EQ(alone.offers.front(), together) << "offer " << i + 1;
            EXPECT_EQ(alone.current, result.current);
        }
    });
}

TEST(ComparisonProperties, OrderChangesOnlyPlaces) {
    ForRandomCases(40, [](Random& random) {
        ComparisonInput sheet = RandomWorksheet(random);
        ComparisonResult result = Compare(sheet);
        std::ranges::reverse(sheet.offers);
        const ComparisonResult reversed = Compare(sheet);
        const int after = static_cast<int>(sheet.offers.size()) + 1;
        std::ranges::reverse(result.offers);
        for (CheapestOffer& cheapest : result.cheapest) {
            cheapest.offer = after - cheapest.offer;
        }
        if (result.cheapestByHorizon) {
            result.cheapestByHorizon = after - *result.cheapestByHorizon;
        }
        EXPECT_EQ(reversed, result);
    });
}

} // namespace
