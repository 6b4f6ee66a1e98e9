#include "HelpFigures.h"

#include "CLoan.h"
#include "Comparison.h"
#include "Frequency.h"
#include "RecordingLoanContext.h"
#include "Schedule.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Results = std::map<std::string, HelpFigure>;

struct Example {
    const char* name;
    double amount;
    double points;
    bool financed;
    double percent;
    int months;
    const char* frequency;
    double escrow;
    double pays; ///< 0: the calculated payment
};

const Example Offers[] = {
    // name        amount   points fin.   percent months code escrow pays
    {"north", 200'000, 0, false, 6.5, 360, "M", 275, 0},
    {"south", 200'000, 2, false, 6, 360, "M", 275, 0},
    {"financed", 200'000, 2, true, 6, 360, "M", 275, 0},
    {"northmore", 200'000, 0, false, 6.5, 360, "M", 275, 1'700},
    {"short", 200'000, 0, false, 6, 180, "M", 275, 0},
    {"monthly", 100'000, 0, false, 6, 360, "M", 0, 0},
    {"twice", 100'000, 0, false, 6, 360, "B", 0, 0},
    {"twoweeks", 100'000, 0, false, 6, 360, "W", 0, 0},
    {"fourweeks", 100'000, 0, false, 6, 360, "Q", 0, 0},
    {"halves", 100'000, 0, false, 6, 360, "W", 0, 300},
    {"last", 1'000, 0, false, 12, 2, "M", 0, 600},
    {"new", 165'000, 0, false, 6.125, 300, "M", 275, 0},
    {"newsame", 165'000, 0, false, 6.125, 300, "M", 275, 1'502.92},
};

/// The current loan in the example: 180,000 originally, 165,000 still owed.
struct HeldLoan {
    const char* name;
    double pays;
};

const HeldLoan Held[] = {{"held", 1'502.92}, {"heldmore", 1'600}};
const Example HeldAtFirst{"held", 180'000, 0, false, 7.25, 360, "M", 275, 0};
const Money HeldBalance = Money::FromDouble(165'000);

Date Today() { return Date::FromCalendar(2026, 1, 2); }
Date HeldNextPayment() { return Date::FromCalendar(2026, 2, 1); }

struct ComparedExample {
    const char* example;
    double costs;
};

struct ComparisonExample {
    const char* name;
    int years;
    PaymentChoice choice;
    double aMonth;
    const char* held; ///< null: none
    std::vector<ComparedExample> offers;
};

constexpr auto Intended = PaymentChoice::Intended;

const ComparisonExample Comparisons[] = {
    // name     years choice               a month held  offers, and their costs
    {"first", 5, Intended, 0, nullptr, {{"north", 0}, {"south", 0}}},
    {"early", 3, Intended, 0, nullptr, {{"north", 900}, {"south", 1'500}}},
    {"compare", 5, Intended, 0, nullptr, {{"north", 900}, {"south", 1'500}}},
    {"late", 10, Intended, 0, nullptr, {{"north", 900}, {"south", 1'500}}},
    {"fifteen", 15, Intended, 0, nullptr, {{"north", 900}, {"south", 1'500}}},
    {"more", 5, Intended, 0, nullptr, {{"northmore", 900}, {"south", 1'500}}},
    {"same", 5, PaymentChoice::Monthly, 1'425, nullptr, {{"north", 900}, {"south", 1'500}}},
    {"keep", 5, Intended, 0, "held", {{"new", 3'500}}},
    {"rates",
     5,
     Intended,
     0,
     nullptr,
     {{"monthly", 0}, {"twice", 0}, {"twoweeks", 0}, {"fourweeks", 0}}},
};

template <typename Named, std::size_t Count>
const Named& Find(const Named (&all)[Count], std::string_view name) {
    return *std::ranges::find_if(all, [&](const Named& one) { return one.name == name; });
}

FrequencyCode CodeOf(const Example& example) {
    return FrequencyCode(QString::fromLatin1(example.frequency));
}
Rate RateOf(const Example& example) { return Rate::FromFraction(example.percent / 100); }

Results OfferOf(const Example& example) {
    RecordingLoanContext worksheet;
    worksheet.escrowMonthly = Money::FromDouble(example.escrow);
    worksheet.today = Today();
    CLoan offer = MakeOffer(worksheet, {.startingAmount = Money::FromDouble(example.amount),
                                        .points = Percent::FromPercent(example.points),
                                        .financePoints = example.financed,
                                        .term = Months{example.months},
                                        .rate = RateOf(example),
                                        .frequency = CodeOf(example),
                                        .actualPayment = Money::FromDouble(example.pays)});
    return {{"escrow", worksheet.escrowMonthly},
            {"rate", offer.InterestRate()},
            {"principal", offer.StartingPrinciple()},
            {"pandi", offer.PandI()},
            {"payment", offer.Payment()},
            {"payoff", offer.PayoffDate()},
            {"interest", offer.Interest()}};
}

Results HeldOf(const HeldLoan& loan) {
    Results results = OfferOf(HeldAtFirst);
    const ScheduleTotals totals = RunSchedule({.balance = HeldBalance,
                                               .rate = RateOf(HeldAtFirst),
                                               .payment = Money::FromDouble(loan.pays),
                                               .escrowShare = Money::FromDouble(HeldAtFirst.escrow),
                                               .frequency = FindFrequency(CodeOf(HeldAtFirst)),
                                               .start = HeldNextPayment()});
    results["payoff"] = totals.payoff;
    results["interest"] = totals.interest;
    results["left"] = totals.paid;
    return results;
}

CurrentLoanInput HeldInput(const HeldLoan& loan) {
    return {.amount = Money::FromDouble(HeldAtFirst.amount),
            .term = Months{HeldAtFirst.months},
            .rate = RateOf(HeldAtFirst),
            .frequency = CodeOf(HeldAtFirst),
            .balance = HeldBalance,
            .actualPayment = Money::FromDouble(loan.pays),
            .actualFrequency = CodeOf(HeldAtFirst),
            .nextPayment = HeldNextPayment()};
}

OfferInput InputOf(const ComparedExample& compared) {
    const Example& example = Find(Offers, compared.example);
    return {.points = Percent::FromPercent(example.points),
            .pointsFinanced = example.financed,
            .costs = Money::FromDouble(compared.costs),
            .rate = RateOf(example),
            .term = Months{example.months},
            .frequency = CodeOf(example),
            .actualPayment = Money::FromDouble(example.pays)};
}

ComparisonInput InputOf(const ComparisonExample& comparison) {
    const Example& first = Find(Offers, comparison.offers.front().example);
    ComparisonInput input{.today = Today(),
                          .years = comparison.years,
                          .choice = comparison.choice,
                          .monthlyPayment = Money::FromDouble(comparison.aMonth),
                          .amount = Money::FromDouble(first.amount),
                          .escrowMonthly = Money::FromDouble(first.escrow)};
    if (comparison.held != nullptr) {
        input.current = HeldInput(Find(Held, comparison.held));
    }
    for (const ComparedExample& compared : comparison.offers) {
        input.offers.push_back(InputOf(compared));
    }
    return input;
}

/// What there is none of has no name.
template <typename Value>
void Add(Results& results, const char* name, const std::optional<Value>& value) {
    if (value) {
        results[name] = *value;
    }
}

Results ComparedOf(const ComparisonResult& result, int place) {
    const OfferFigures& offer = *result.offers.at(static_cast<std::size_t>(place) - 1).figures;
    Results results{{"upfront", offer.upfront},
                    {"totalCost", offer.totalCost},
                    {"costByHorizon", offer.costByHorizon},
                    {"balanceAtHorizon", offer.balanceAtHorizon},
                    {"monthlyEquivalent", offer.monthlyEquivalent}};
    Add(results, "apr", offer.apr);
    Add(results, "effectiveRate", offer.effectiveRate);
    Add(results, "rateToMatch", offer.rateToMatch);
    Add(results, "paymentForHorizon", offer.paymentForHorizon);
    if (offer.cheaper && !offer.cheaper->empty()) {
        results["cheaperFrom"] = offer.cheaper->front().fromMonth;
    }
    const auto least = std::ranges::find(result.cheapest, place, &CheapestOffer::offer);
    if (least != result.cheapest.end()) {
        results["cheapestFrom"] = least->fromMonth;
    }
    return results;
}

} // namespace

HelpFigures::HelpFigures() {
    const auto add = [this](const std::string& name, const Results& results) {
        for (const auto& [result, figure] : results) {
            m_figures[name + '.' + result] = figure;
        }
    };
    for (const Example& example : Offers) {
        add(example.name, OfferOf(example));
    }
    for (const HeldLoan& loan : Held) {
        add(loan.name, HeldOf(loan));
    }
    for (const ComparisonExample& comparison : Comparisons) {
        const ComparisonResult result = Compare(InputOf(comparison));
        const std::string name = std::string(comparison.name) + '.';
        for (std::size_t i = 0; i < comparison.offers.size(); ++i) {
            add(name + comparison.offers[i].example, ComparedOf(result, static_cast<int>(i) + 1));
        }
        if (result.current) {
            add(name + comparison.held, {{"costByHorizon", *result.current->costByHorizon}});
        }
    }
}

HelpFigure HelpFigures::Single(const QString& name) const {
    const auto found = m_figures.find(name.toStdString());
    if (found == m_figures.end()) {
        ADD_FAILURE() << "There is no figure " << name.toStdString();
        return 0;
    }
    return found->second;
}

HelpFigure HelpFigures::Of(const QString& name) const {
    const HelpFigure figure = Single(name.section(u'-', 0, 0));
    if (!name.contains(u'-')) {
        return figure;
    }
    return std::get<Money>(figure).RoundedToCents() -
           std::get<Money>(Single(name.section(u'-', 1))).RoundedToCents();
}
