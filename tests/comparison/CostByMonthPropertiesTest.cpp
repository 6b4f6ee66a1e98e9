// The costs by month of random worksheets, and what follows from them, month by month as defined.

#include "CostByMonth.h"

#include "AccrualPeriods.h"
#include "AccruedInterest.h"
#include "ComparedCurrent.h"
#include "ComparedOffer.h"
#include "QuendNames.h"
#include "RandomWorksheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <vector>

namespace {

/// A random worksheet, and its loans.
struct Compared {
    ComparisonInput sheet;
    std::vector<ComparedOffer> offers;
    ComparedCurrent current;
    std::vector<PlacedCosts> placed; ///< the offers that take part

    explicit Compared(Random& random)
        : sheet(RandomWorksheet(random)), current(CompareCurrent(sheet)) {
        for (const OfferInput& offer : sheet.offers) {
            offers.emplace_back(sheet, offer);
        }
        for (std::size_t i = 0; i < offers.size(); ++i) {
            if (offers[i].Costs() != nullptr) {
                placed.push_back({static_cast<int>(i) + 1, offers[i].Costs()});
            }
        }
    }

    const CostByMonth* Current() const { return current.costs ? &*current.costs : nullptr; }
    Money CostBy(int month, int place) const {
        return offers[static_cast<std::size_t>(place) - 1].Costs()->By(month);
    }
    /// The first of the offers that have cost least.
    int LeastBy(int month) const {
        int least = placed.front().place;
        for (const PlacedCosts& offer : placed) {
            least = offer.costs->By(month) < CostBy(month, least) ? offer.place : least;
        }
        return least;
    }
};

/// The cost by a random month and the balance at the horizon, added up period by period.
void ExpectCosts(const ComparisonInput& sheet, int month, const DatedLoan& loan, Money closing,
                 const CostByMonth& costs) {
    const Date day = MonthAfter(sheet.today, month);
    const Date horizon = MonthAfter(sheet.today, sheet.years * MonthsPerYear);
    Money cost = closing;
    Money owed = loan.terms.balance;
    AccrualPeriods periods(loan);
    RunToPayoff(loan.terms, [&](const SchedulePeriod& period) {
        const AccrualPeriod days = periods.Next(period.date);
        cost += AccruedBetween(sheet.today, day, days, period.interest);
        owed = days.end <= horizon ? period.balance : owed;
    });
    EXPECT_EQ(costs.By(month), cost) << "month " << month;
    EXPECT_EQ(costs.balanceAtHorizon, owed);
}

TEST(CostByMonthProperties, InterestAccruedByThen) {
    ForRandomCases(40, [](Random& random) {
        const Compared compared(random);
        const int month = random.Int(1, random.OneIn(2) ? 60 : MostMonths);
        for (const ComparedOffer& offer : compared.offers) {
            if (const auto loan = offer.Compared()) {
                ExpectCosts(compared.sheet, month, *loan, offer.Closing(), *offer.Costs());
            }
        }
        if (compared.Current() != nullptr) {
            ExpectCosts(compared.sheet, month, *compared.current.loan, Money(),
                        *compared.Current());
        }
    });
}

/// A search starts from the estimate, so that it tries few payments. Rounding adds less than a
/// ten-thousandth to each payment, and the search raises it to a whole cent. Where due dates are
/// cut to shorter months, the estimate may miss one.
void ExpectGoodEstimate(const DatedLoan& loan, Date day) {
    const auto least = LeastPaymentUntil(loan, day, Money());
    if (!least || loan.terms.start.Calendar().day() > std::chrono::day(28)) {
        return;
    }
    const auto estimate = EstimatePaymentUntil(loan, day);
    ASSERT_TRUE(estimate);
    const std::int64_t above = (*least - *estimate).TenThousandths();
    EXPECT_GE(above, -1);
    EXPECT_LE(above, 101);
}

TEST(CostByMonthProperties, EstimatedPaymentIsWithinACentOfTheLeast) {
    ForRandomCases(40, [](Random& random) {
        const Compared compared(random);
        const Date day = MonthAfter(compared.sheet.today, random.Int(1, 120));
        for (const ComparedOffer& offer : compared.offers) {
            if (const auto loan = offer.Compared()) {
                ExpectGoodEstimate(*loan, day);
            }
        }
        if (compared.current.loan) {
            ExpectGoodEstimate(*compared.current.loan, day);
        }
    });
}

TEST(CostByMonthProperties, MonthsEndAfterTheLastPeriod) {
    ForRandomCases(40, [](Random& random) {
        const Compared compared(random);
        const auto areOver = [&compared](int month) {
            const auto isOver = [day = MonthAfter(compared.sheet.today, month)](auto& costs) {
                return costs.end < day;
            };
            return std::ranges::all_of(compared.placed,
                                       [&](auto& offer) { return isOver(*offer.costs); }) &&
                   (compared.Current() == nullptr || isOver(*compared.Current()));
        };
        const int months = Compare(compared.sheet).months;
        EXPECT_TRUE(months == MostMonths || areOver(months));
        EXPECT_TRUE(months == 1 || !areOver(months - 1));
    });
}

TEST(CostByMonthProperties, AnotherIsCheapestOnceItHasCostClearlyLess) {
    ForRandomCases(40, [](Random& random) {
        const Compared compared(random);
        const ComparisonResult result = Compare(compared.sheet);
        if (compared.placed.empty()) {
            EXPECT_TRUE(result.cheapest.empty());
            EXPECT_EQ(result.cheapestByHorizon, std::nullopt);
            return;
        }
        std::vector<CheapestOffer> expected{{1, compared.LeastBy(1)}};
        for (int month = 2; month <= result.months; ++month) {
            const int least = compared.LeastBy(month);
            if (IsClearlyLess(compared.CostBy(month, least),
                              compared.CostBy(month, expected.back().offer))) {
                expected.push_back({month, least});
            }
        }
        EXPECT_EQ(result.cheapest, expected);
        EXPECT_EQ(result.cheapestByHorizon, compared.LeastBy(compared.sheet.years * MonthsPerYear));
    });
}

/// The stretches, each limit found by itself.
std::vector<CheaperStretch> Stretches(const CostByMonth& offer, const CostByMonth& current,
                                      int months) {
    const auto first = [&](int from, auto isSo) -> std::optional<int> {
        for (int month = from; month <= months; ++month) {
            if (isSo(offer.By(month), current.By(month))) {
                return month;
            }
        }
        return std::nullopt;
    };
    std::vector<CheaperStretch> found;
    std::optional<int> from = first(1, [](Money cost, Money held) { return cost <= held; });
    while (from) {
        const std::optional<int> until = first(*from + 1, IsClearlyMore);
        found.push_back({*from, until});
        from = until ? first(*until + 1, IsClearlyLess) : std::nullopt;
    }
    return found;
}

TEST(CostByMonthProperties, CheaperUntilClearlyMore) {
    std::size_t most = 0;
    ForRandomCases(40, [&most](Random& random) {
        const Compared compared(random);
        const ComparisonResult result = Compare(compared.sheet);
        for (const PlacedCosts& offer : compared.placed) {
            const auto& found = result.offers[static_cast<std::size_t>(offer.place) - 1].figures;
            ASSERT_TRUE(found);
            ASSERT_EQ(found->cheaper.has_value(), compared.Current() != nullptr);
            if (found->cheaper) {
                EXPECT_EQ(*found->cheaper,
                          Stretches(*offer.costs, *compared.Current(), result.months));
                most = std::max(most, found->cheaper->size());
            }
        }
    });
    EXPECT_GE(most, 2U);
}

} // namespace
