#include "Answer.h"

#include "FigureTexts.h"
#include "Frequency.h"
#include "SampleComparison.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

using namespace quend::compare;
using namespace Qt::StringLiterals;

namespace {

Money Cents(std::int64_t count) { return Money::FromTenThousandths(count * 100); }

/// What offers named First, Second and Third, and the loan held today, have cost by the horizon, in
/// cents; none: it takes no part.
struct Costs {
    std::vector<std::optional<std::int64_t>> offers;
    std::optional<std::int64_t> current;
};

/// A worksheet whose figures are made up, and nothing else is worth a sentence.
ComparedWorksheet Made(const Costs& costs, std::vector<CheapestOffer> cheapest = {}) {
    ComparisonInput input;
    input.today = Date::FromCalendar(2026, 11, 22);
    input.amount = Units(1'000);
    input.current.balance = input.amount;
    input.current.actualFrequency = Frequencies.front().Code();
    OfferInput monthly;
    monthly.frequency = Frequencies.front().Code();
    input.offers.assign(costs.offers.size(), monthly);
    ComparedWorksheet worksheet = Compared(input);
    worksheet.result = {};
    worksheet.result.cheapest = std::move(cheapest);
    std::optional<std::int64_t> least;
    for (const auto& cost : costs.offers) {
        OfferComparison& offer = worksheet.result.offers.emplace_back();
        offer.payment = Money();
        if (cost) {
            offer.figures.emplace().costByHorizon = Cents(*cost);
            if (!least || *cost < *least) {
                least = cost;
                worksheet.result.cheapestByHorizon =
                    static_cast<int>(worksheet.result.offers.size());
            }
        }
    }
    if (costs.current) {
        worksheet.result.current.emplace().figures.emplace();
        worksheet.result.current->costByHorizon = Cents(*costs.current);
    }
    return worksheet;
}

OfferFigures& FiguresOfFirst(ComparedWorksheet& worksheet) {
    return *worksheet.result.offers.front().figures;
}

std::string Answered(const ComparedWorksheet& worksheet, const DisplayFormats& formats) {
    return Plain(AnswerOf(worksheet, formats).join(u' ')).toStdString();
}

std::string InEnglish(const ComparedWorksheet& worksheet) {
    return Answered(worksheet, Switch(Texts::English, "en_US"));
}

TEST(Answer, WhichLoanCostsLeast) {
    struct Case {
        Costs costs;
        const char* answer;
    };
    constexpr auto None = std::nullopt;
    const std::array cases{
        // clang-format off
        // offers                         current     answer
        Case{{{6'431'000},                None},      "Kept 5 years, First costs $64,310."},
        Case{{{6'431'000, None},          6'541'000}, "Kept 5 years, First costs $64,310. Keeping the loan held today costs $1,100 more."},
        Case{{{6'431'000},                6'431'000}, "Kept 5 years, First costs $64,310. Keeping the loan held today costs as much."},
        Case{{{6'431'000},                6'321'000}, "Kept 5 years, the loan held today costs least: $63,210, which is $1,100 less than First. First costs $64,310."},
        Case{{{6'751'000, 6'431'000},     None},      "Kept 5 years, Second costs least: $64,310, which is $3,200 less than First."},
        Case{{{6'431'000, 6'431'000},     None},      "Kept 5 years, First costs least: $64,310, as much as Second."},
        Case{{{6'431'000, 9'000'000, 6'751'000}, 6'541'000}, "Kept 5 years, First costs least: $64,310, which is $3,200 less than Third and $1,100 less than keeping the loan held today."},
        Case{{{6'431'000, 6'431'000},     6'541'000}, "Kept 5 years, First costs least: $64,310, as much as Second. Keeping the loan held today costs $1,100 more."},
        Case{{{6'431'000, 6'751'000},     6'431'000}, "Kept 5 years, First costs least: $64,310, which is $3,200 less than Second. Keeping the loan held today costs as much."},
        Case{{{6'431'000, 6'751'000},     6'321'000}, "Kept 5 years, the loan held today costs least: $63,210, which is $1,100 less than First, the cheapest offer. Of the offers, First costs least: $64,310, which is $3,200 less than Second."},
        Case{{{6'431'000, 6'431'000},     6'321'000}, "Kept 5 years, the loan held today costs least: $63,210, which is $1,100 less than First, the cheapest offer. Of the offers, First costs least: $64,310, as much as Second."},
        // Cents where one of the amounts is below 100.
        Case{{{6'431'049, 6'441'049},     None},      "Kept 5 years, First costs least: $64,310, which is $100 less than Second."},
        Case{{{6'431'049, 6'441'048},     None},      "Kept 5 years, First costs least: $64,310.49, which is $99.99 less than Second."},
        Case{{{6'431'000, 6'431'001},     7'000'000}, "Kept 5 years, First costs least: $64,310.00, which is $0.01 less than Second and $5,690.00 less than keeping the loan held today."},
        Case{{{9'999},                    None},      "Kept 5 years, First costs $99.99."},
        Case{{{-20'000, 20'000},          None},      "Kept 5 years, First costs least: ($200), which is $400 less than Second."},
        // clang-format on
    };
    for (const Case& row : cases) {
        EXPECT_EQ(InEnglish(Made(row.costs)), row.answer);
    }
}

TEST(Answer, InSpanishWithCommas) {
    struct Case {
        Costs costs;
        int years;
        const char* answer;
    };
    const std::array cases{
        // clang-format off
        Case{{{6'751'000, 6'431'000}, 6'541'000}, 1, "En 1 año, Second cuesta menos que las demás: 64.310 €, es decir, 3200 € menos que First y 1100 € menos que conservar el préstamo actual."},
        Case{{{6'431'000, 6'431'050}, 6'321'000}, 7, "En 7 años, lo más barato es conservar el préstamo actual: cuesta 63.210,00 €, es decir, 1100,00 € menos que First, la oferta más barata. De las ofertas, First es la que menos cuesta: 64.310,00 €, es decir, 0,50 € menos que Second."},
        // clang-format on
    };
    for (const Case& row : cases) {
        ComparedWorksheet worksheet = Made(row.costs);
        worksheet.input.years = row.years;
        EXPECT_EQ(Answered(worksheet, Switch(Texts::Spanish, "es_ES")), row.answer);
    }
}

/// The sentences after the first.
std::string Rest(const ComparedWorksheet& worksheet) {
    return AnswerOf(worksheet, Switch(Texts::English, "en_US")).mid(1).join(u' ').toStdString();
}

TEST(Answer, OtherStretchesOfTime) {
    struct Case {
        int years; ///< by which the first offer costs least
        std::vector<CheapestOffer> cheapest;
        const char* rest;
    };
    const std::array cases{
        // clang-format off
        // from, offer
        Case{5, {{1, 1}},                    ""},
        Case{5, {{1, 2}, {28, 1}},           "Kept up to 2 years 3 months, Second would be the cheapest offer."},
        Case{5, {{1, 2}, {2, 1}},            "Kept just 1 month, Second would be the cheapest offer."},
        Case{5, {{1, 2}, {60, 1}},           "Kept up to 4 years 11 months, Second would be the cheapest offer."},
        Case{5, {{1, 2}, {61, 1}},           "Second costs hardly more."}, // within the horizon's month
        Case{5, {{1, 1}, {60, 2}},           "Second costs hardly more."},
        Case{5, {{1, 1}, {61, 2}},           "Kept 5 years 1 month or longer, Second would be the cheapest offer."},
        Case{5, {{1, 1}, {73, 2}, {85, 3}},  "Kept between 6 years 1 month and 7 years, Second would be the cheapest offer. "
                                             "Kept 7 years 1 month or longer, Third would be the cheapest offer."},
        Case{1, {{1, 2}, {9, 3}, {10, 1}, {20, 2}}, "Kept up to 8 months, Second would be the cheapest offer. "
                                             "Kept just 9 months, Third would be the cheapest offer. "
                                             "Kept 1 year 8 months or longer, Second would be the cheapest offer."},
        // clang-format on
    };
    for (const Case& row : cases) {
        ComparedWorksheet worksheet = Made({{100, 200, 300}, {}}, row.cheapest);
        worksheet.input.years = row.years;
        EXPECT_EQ(Rest(worksheet), row.rest);
    }
    // Of equal costs, the list may hold the other one.
    EXPECT_EQ(Rest(Made({{100, 100}, {}}, {{1, 2}})), "");
}

TEST(Answer, SinceWhenItCostsNoMoreThanTheLoanHeldToday) {
    struct Case {
        std::int64_t offer;
        std::int64_t current;
        std::vector<CheaperStretch> cheaper;
        const char* last;
    };
    const std::array cases{
        // clang-format off
        Case{1'000, 2'000, {{38, {}}}, "First has cost no more than the loan held today: from 3 years 2 months on."},
        Case{1'000, 2'000, {{1, 20}, {50, {}}}, "First has cost no more than the loan held today: up to 1 year 7 months; from 4 years 2 months on."},
        Case{1'000, 2'000, {{1, {}}},  "However long it is kept, First costs no more than the loan held today."},
        Case{3'000, 2'000, {},         "However long it is kept, First costs more than the loan held today."},
        Case{3'000, 2'000, {{1, 60}},  "First has cost no more than the loan held today: up to 4 years 11 months."},
        // A difference that is not clear ends no stretch, and begins none.
        Case{2'001, 2'000, {{1, {}}},  "First costs $20.01."},
        Case{1'999, 2'000, {{1, 60}},  "Keeping the loan held today costs $0.01 more."},
        // clang-format on
    };
    for (const Case& row : cases) {
        ComparedWorksheet worksheet = Made({{row.offer}, row.current});
        FiguresOfFirst(worksheet).cheaper = row.cheaper;
        EXPECT_EQ(AnswerOf(worksheet, Switch(Texts::English, "en_US")).last().toStdString(),
                  row.last);
    }
}

TEST(Answer, WhatElseMatters) {
    struct Case {
        void (*enter)(ComparedWorksheet&);
        const char* rest;
    };
    const std::array cases{
        Case{[](ComparedWorksheet& sheet) { sheet.input.amount = Units(1'500); },
             "You would borrow $500 more than you owe today; more borrowed costs more interest."},
        Case{[](ComparedWorksheet& sheet) { sheet.input.current.balance = Cents(100'050); },
             "You would borrow $0.50 less than you owe today; less borrowed costs less interest."},
        Case{[](ComparedWorksheet& sheet) {
                 sheet.input.current.nextPayment = Date::FromCalendar(2026, 12, 22);
             },
             ""},
        Case{[](ComparedWorksheet& sheet) {
                 sheet.input.current.nextPayment = Date::FromCalendar(2026, 12, 23);
             },
             "No interest on the loan held today is counted until 11/23/2026, one period before "
             "its next payment on 12/23/2026."},
        Case{[](ComparedWorksheet& sheet) { sheet.input.current.nextPayment = sheet.input.today; },
             ""},
        Case{[](ComparedWorksheet& sheet) {
                 sheet.input.current.nextPayment = Date::FromCalendar(2026, 11, 21);
             },
             "The next payment of the loan held today was due on 11/21/2026; the payments due "
             "since are taken as made."},
        Case{[](ComparedWorksheet& sheet) {
                 sheet.input.offers.front().frequency = Frequencies.back().Code(); // 13 a year
                 FiguresOfFirst(sheet).paymentCompared = Units(1'200);
             },
             "You intend to pay First $1,300 a month more than it requires."},
        Case{[](ComparedWorksheet& sheet) {
                 sheet.input.choice = PaymentChoice::Monthly;
                 FiguresOfFirst(sheet).paymentCompared = Units(1'200);
             },
             ""},
        Case{[](ComparedWorksheet& sheet) { // without it, nothing of the loan held today
                 sheet.result.current.reset();
                 sheet.input.amount = Units(1'500);
                 sheet.input.current.nextPayment = Date::FromCalendar(2026, 11, 21);
             },
             ""},
    };
    for (const Case& row : cases) {
        ComparedWorksheet worksheet = Made({{100'000, 200'000}, 300'000});
        row.enter(worksheet);
        EXPECT_EQ(Rest(worksheet), row.rest);
    }
}

TEST(Answer, WhatToEnter) {
    struct Case {
        void (*enter)(ComparisonInput&);
        const char* answer;
    };
    const std::array cases{
        Case{[](ComparisonInput& input) { input.amount = Money(); },
             "Enter the loan amount, then an interest rate, a term and a frequency for each offer "
             "to compare."},
        Case{[](ComparisonInput& input) { input.offers.clear(); },
             "Enter an interest rate, a term and a frequency for each offer to compare."},
        Case{[](ComparisonInput& input) { input.offers = {{.term = {360}}}; },
             "No offer can be compared yet. Each one that is left out says what it needs."},
    };
    for (const Case& row : cases) {
        ComparisonInput input = SampleInput();
        row.enter(input);
        const auto kept = Compare(input).current->costByHorizon;
        EXPECT_EQ(InEnglish(Compared(input)),
                  "Kept 5 years, the loan held today costs " +
                      Switch(Texts::English, "en_US").Currency(*kept).toStdString() + ". " +
                      row.answer);
        input.current = {};
        EXPECT_EQ(InEnglish(Compared(input)), row.answer);
    }
}

TEST(Answer, OfAWholeComparison) {
    const ComparedWorksheet worksheet = Compared(SampleInput());
    const DisplayFormats formats = Switch(Texts::English, "en_US");
    const auto cost = [&](int place) { return FiguresOf(worksheet, place)->costByHorizon; };
    const auto amount = [&](Money value) { return formats.WholeCurrency(value).toStdString(); };
    const std::vector<CheapestOffer>& cheapest = worksheet.result.cheapest;
    ASSERT_EQ(cheapest.size(), 2U); // the third offer has no points
    const Money more = Units(2'000) - *worksheet.result.offers[1].payment;
    EXPECT_EQ(
        Answered(worksheet, formats),
        "Kept 5 years, Second costs least: " + amount(cost(2)) + ", which is " +
            amount(cost(1) - cost(2)) + " less than First and " +
            amount(*worksheet.result.current->costByHorizon - cost(2)) +
            " less than keeping the loan held today. You intend to pay Second " +
            formats.Currency(more + more).toStdString() +
            " a month more than it requires. Kept up to " +
            Duration(cheapest[1].fromMonth - 1, formats).toStdString() +
            ", Third would be the cheapest offer. Second has cost no more than the loan "
            "held today: from " +
            Duration(FiguresOf(worksheet, 2)->cheaper->front().fromMonth, formats).toStdString() +
            " on. You would borrow $51,550 more than you owe today; more borrowed costs more "
            "interest.");
}

TEST(Answer, ComparesNothingBeyondTheRangeOfMoney) {
    constexpr std::int64_t Most = std::numeric_limits<std::int64_t>::max() / 100;
    EXPECT_EQ(InEnglish(Made({{-Most, Most}, {}})),
              "Kept 5 years, First costs ($922,337,203,685,477.58).");
}

TEST(Answer, LendersWithPlaceholders) {
    ComparedWorksheet worksheet = Made({{100'000, 200'000}, {}});
    worksheet.lenders = {u"%1 %2"_s, u"%3"_s};
    EXPECT_EQ(InEnglish(worksheet),
              "Kept 5 years, %1 %2 costs least: $1,000, which is $1,000 less than %3.");
    worksheet.lenders = {u"%2"_s, u"%2"_s};
    EXPECT_EQ(InEnglish(worksheet), "Kept 5 years, %2 (offer 1) costs least: $1,000, which is "
                                    "$1,000 less than %2 (offer 2).");
}

} // namespace
