#include "CostByMonth.h"

#include "Overflow.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>

namespace quend::comparison {

namespace {

/// The watch of a schedule: the costs of each month, and the balance at the horizon.
class MonthlyCosts {
public:
    MonthlyCosts(const DatedLoan& loan, Money closing, Date today, int horizon)
        : m_periods(loan), m_today(today), m_horizon(MonthAfter(today, horizon)),
          m_day(MonthAfter(today, 1)) {
        m_result.last = closing;
        m_result.balanceAtHorizon = loan.terms.balance;
    }

    void Add(const SchedulePeriod& period) {
        const AccrualPeriod days = m_periods.Next(period.date);
        while (m_day < days.end && m_month <= MostMonths) {
            m_result.costs.push_back(m_result.last +
                                     AccruedBetween(m_today, m_day, days, period.interest));
            m_day = MonthAfter(m_today, ++m_month);
        }
        m_result.last += AccruedBetween(m_today, days.end, days, period.interest);
        if (days.end <= m_horizon) {
            m_result.balanceAtHorizon = period.balance;
        }
        m_result.end = days.end;
    }

    CostByMonth Finish(const Payoff& payoff) {
        m_result.payoff = payoff;
        return std::move(m_result);
    }

private:
    AccrualPeriods m_periods;
    Date m_today;
    Date m_horizon;
    Date m_day; ///< of m_month
    int m_month = 1;
    CostByMonth m_result;
};

Money ClearMargin(Money amount) {
    constexpr std::int64_t Least = 10'000;
    const std::int64_t thousandth = amount.TenThousandths() / 1'000;
    return Money::FromTenThousandths(std::max(Least, std::abs(thousandth)));
}

} // namespace

Money CostByMonth::By(int month) const {
    const auto index = static_cast<std::size_t>(month) - 1;
    return index < costs.size() ? costs[index] : last;
}

CostByMonth RunCosts(const DatedLoan& loan, Money closing, Date today, int horizon) {
    MonthlyCosts costs(loan, closing, today, horizon);
    const Payoff payoff =
        RunToPayoff(loan.terms, [&costs](const SchedulePeriod& period) { costs.Add(period); });
    return costs.Finish(payoff);
}

// A limit outside the range of money is one that no amount reaches.

bool IsClearlyMore(Money amount, Money than) {
    std::int64_t limit = 0;
    return !SumOverflows(than.TenThousandths(), ClearMargin(than).TenThousandths(), limit) &&
           amount.TenThousandths() >= limit;
}

bool IsClearlyLess(Money amount, Money than) {
    std::int64_t limit = 0;
    return !DifferenceOverflows(than.TenThousandths(), ClearMargin(than).TenThousandths(), limit) &&
           amount.TenThousandths() <= limit;
}

std::vector<CheaperStretch> FindCheaper(const CostByMonth& offer, const CostByMonth& current,
                                        int months) {
    std::vector<CheaperStretch> stretches;
    bool inside = false;
    for (int month = 1; month <= months; ++month) {
        const Money cost = offer.By(month);
        const Money held = current.By(month);
        if (inside) {
            if (IsClearlyMore(cost, held)) {
                stretches.back().untilMonth = month;
                inside = false;
            }
        } else if (stretches.empty() ? cost <= held : IsClearlyLess(cost, held)) {
            stretches.push_back({month, std::nullopt});
            inside = true;
        }
    }
    return stretches;
}

std::vector<CheapestOffer> FindCheapest(const std::vector<PlacedCosts>& offers, int months) {
    std::vector<CheapestOffer> cheapest;
    const PlacedCosts* holder = nullptr;
    for (int month = 1; month <= months && !offers.empty(); ++month) {
        const auto least =
            std::min_element(offers.begin(), offers.end(),
                             [month](const PlacedCosts& left, const PlacedCosts& right) {
                                 return left.costs->By(month) < right.costs->By(month);
                             });
        if (holder == nullptr || IsClearlyLess(least->costs->By(month), holder->costs->By(month))) {
            holder = &*least;
            cheapest.push_back({month, least->place});
        }
    }
    return cheapest;
}

} // namespace quend::comparison
