#include "Solving.h"

#include "AccruedInterest.h"
#include "Cents.h"
#include "ComparedCurrent.h"
#include "ComparedOffer.h"
#include "LeastNumber.h"
#include "LoanSchedule.h"

#include <cstdint>

namespace quend::comparison {

namespace {

constexpr double ThousandthsOfAPercent = 100'000.0;

/// The greatest whole number from one to `most` that holds, where none holds after one that does
/// not; zero where one does not.
template <typename Holds>
std::int64_t Greatest(std::int64_t most, Holds holds) {
    const auto fails = [&](std::int64_t number) { return !holds(number); };
    return LeastNumber(0, most, 1, fails).value_or(most + 1) - 1;
}

} // namespace

Date HorizonOf(const ComparisonInput& input) { return HorizonDay(input.today, input.years); }

std::optional<Money> LeastPaymentBy(const ComparisonInput& input, int place, Date day) {
    if (place == CurrentLoanPlace) {
        const ComparedCurrent current = CompareCurrent(input);
        return current.loan ? LeastPaymentUntil(*current.loan, day, Cents::One) : std::nullopt;
    }
    const OfferInput* const offer = OfferAt(input, place);
    return offer != nullptr ? ComparedOffer(input, *offer).LeastPaymentBy(day) : std::nullopt;
}

std::optional<Money> LargestAmount(const ComparisonInput& input, int place, Money payment) {
    const OfferInput* const offer = OfferAt(input, place);
    if (offer == nullptr) {
        return std::nullopt;
    }
    ComparisonInput tried{.term = input.term, .escrowMonthly = input.escrowMonthly};
    const auto required = [&](std::int64_t cents) {
        tried.amount = Cents::ToMoney(cents);
        return RequiredPayment(tried, *offer);
    };
    const std::int64_t found = Greatest(Cents::MostCents, [&](std::int64_t cents) {
        const std::optional<RequiredAmounts> amounts = required(cents);
        return amounts && amounts->payment <= payment;
    });
    // So small an amount that nothing is repaid is no answer.
    if (found == 0 || required(found)->principalAndInterest.IsZero()) {
        return std::nullopt;
    }
    return Cents::ToMoney(found);
}

std::optional<Rate> HighestRate(const ComparisonInput& input, int place, Money payment) {
    const OfferInput* const offer = OfferAt(input, place);
    if (offer == nullptr) {
        return std::nullopt;
    }
    OfferInput tried = *offer;
    const auto rateOf = [](std::int64_t thousandths) {
        return Rate::FromFraction(static_cast<double>(thousandths) / ThousandthsOfAPercent);
    };
    constexpr std::int64_t Most = 10'000'000; // 10,000 %
    const std::int64_t found = Greatest(Most, [&](std::int64_t thousandths) {
        tried.rate = rateOf(thousandths);
        const std::optional<RequiredAmounts> amounts = RequiredPayment(input, tried);
        return amounts && amounts->payment <= payment;
    });
    return found > 0 ? std::optional(rateOf(found)) : std::nullopt;
}

} // namespace quend::comparison
