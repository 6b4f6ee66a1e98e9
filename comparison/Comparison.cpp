#include "Comparison.h"

#include "ComparedCurrent.h"
#include "ComparedOffer.h"
#include "CostByMonth.h"

#include <algorithm>

namespace quend::comparison {

namespace {

/// The first month that is later than the last period of every schedule.
int MonthsUntil(Date end, Date today) {
    int month = 1;
    while (month < MostMonths && MonthAfter(today, month) <= end) {
        ++month;
    }
    return month;
}

int MonthsOf(const std::vector<PlacedCosts>& offers, const CostByMonth* current, Date today) {
    if (offers.empty() && current == nullptr) {
        return 1;
    }
    Date end = current != nullptr ? current->end : offers.front().costs->end;
    for (const PlacedCosts& offer : offers) {
        end = std::max(end, offer.costs->end);
    }
    return MonthsUntil(end, today);
}

std::vector<PlacedCosts> ThatTakePart(const std::vector<ComparedOffer>& offers) {
    std::vector<PlacedCosts> placed;
    int place = 0;
    for (const ComparedOffer& offer : offers) {
        ++place;
        if (offer.Costs() != nullptr) {
            placed.push_back({place, offer.Costs()});
        }
    }
    return placed;
}

} // namespace

Date HorizonDay(Date today, int years) { return MonthAfter(today, years * MonthsPerYear); }

ComparisonResult Compare(const ComparisonInput& input) {
    std::vector<ComparedOffer> offers;
    offers.reserve(input.offers.size());
    for (const OfferInput& offer : input.offers) {
        offers.emplace_back(input, offer);
    }
    const ComparedCurrent current = CompareCurrent(input);
    const CostByMonth* const held = current.costs ? &*current.costs : nullptr;
    const std::vector<PlacedCosts> placed = ThatTakePart(offers);

    ComparisonResult result;
    result.current = current.result;
    result.months = MonthsOf(placed, held, input.today);
    result.cheapest = FindCheapest(placed, result.months);
    const int horizon = input.years * MonthsPerYear;
    const auto least = std::min_element(
        placed.begin(), placed.end(), [horizon](const PlacedCosts& left, const PlacedCosts& right) {
            return left.costs->By(horizon) < right.costs->By(horizon);
        });
    Money cheapest;
    if (least != placed.end()) {
        result.cheapestByHorizon = least->place;
        cheapest = least->costs->By(horizon);
    }
    for (ComparedOffer& offer : offers) {
        result.offers.push_back(offer.Finish(held, result.months, cheapest));
    }
    return result;
}

} // namespace quend::comparison
