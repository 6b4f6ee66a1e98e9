#include "Explanation.h"

#include "FigureTexts.h"
#include "LoanSchedule.h"
#include "SampleComparison.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <utility>

using namespace quend::compare;
using namespace Qt::StringLiterals;

namespace {

/// What a text may name, by the mark that the tables below write for it.
using Values = std::map<QString, FigureValue>;

/// What a schedule says.
struct Run {
    Money interest;
    Money sum; ///< of all payments
    std::int64_t payments = 0;
    Money each;
    Money last;
};

Run RunOf(const ComparisonInput& input, int place) {
    const auto rows = ScheduleOf(input, place);
    if (!rows) {
        return {};
    }
    Money sum;
    for (const ScheduleRow& row : *rows) {
        sum += row.payment;
    }
    return {rows->back().interestSoFar, sum, rows->back().number, rows->front().payment,
            rows->back().payment};
}

Values ValuesOfOffer(const ComparedWorksheet& worksheet, int place) {
    const OfferInput& entered = worksheet.input.offers[static_cast<std::size_t>(place) - 1];
    const OfferComparison& result = worksheet.result.offers[static_cast<std::size_t>(place) - 1];
    const OfferFigures& figures = *result.figures;
    ComparisonInput required = worksheet.input;
    required.choice = PaymentChoice::Required;
    const Run before = RunOf(required, place);
    required.escrowMonthly = Money();
    const Run bare = RunOf(required, place);
    const Run run = RunOf(worksheet.input, place);
    const Money closing = figures.totalCost - run.interest;
    const Money escrow = *result.payment - *result.principalAndInterest;
    const int cheapest = *worksheet.result.cheapestByHorizon;
    const Money leastCost = FiguresOf(worksheet, cheapest)->costByHorizon;
    const auto& current = worksheet.result.current;
    const Money costOfCurrent =
        current && current->costByHorizon ? *current->costByHorizon : Money();
    return {
        {u"principal"_s, *result.principal},
        {u"p&i"_s, *result.principalAndInterest},
        {u"required"_s, *result.payment},
        {u"escrow"_s, escrow},
        {u"more"_s, figures.paymentCompared - *result.payment},
        {u"without escrow"_s, figures.paymentCompared - escrow},
        {u"closing"_s, closing},
        {u"points"_s, closing - entered.costs},
        {u"received"_s, worksheet.input.amount - figures.upfront},
        {u"full"_s, bare.payments - 1},
        {u"each"_s, bare.each},
        {u"last"_s, bare.last},
        {u"sum"_s, bare.sum},
        {u"payments"_s, run.payments},
        {u"first payment"_s, run.each},
        {u"last payment"_s, run.last},
        {u"interest"_s, run.interest},
        {u"interest before"_s, before.interest},
        {u"payments before"_s, before.payments},
        {u"interest by then"_s, figures.costByHorizon - closing},
        {u"repaid"_s, *result.principal - figures.balanceAtHorizon},
        {u"least cost"_s, leastCost},
        {u"above current"_s, figures.costByHorizon - costOfCurrent},
        {u"half"_s, Rate::FromFraction(entered.rate.Fraction() / 2)},
    };
}

Values ValuesOfCurrent(const ComparedWorksheet& worksheet) {
    const Run run = RunOf(worksheet.input, CurrentLoanPlace);
    const Money balance = worksheet.input.current.balance;
    return {
        {u"payments"_s, run.payments},
        {u"first payment"_s, run.each},
        {u"last payment"_s, run.last},
        {u"without escrow"_s,
         worksheet.result.current->figures->paymentCompared - worksheet.input.escrowMonthly},
        {u"repaid"_s, balance - *worksheet.result.current->balanceAtHorizon},
    };
}

/// Replaces each mark in braces; {figure} by the explained figure and {=N} by the N-th.
QString Filled(QString text, const ComparedWorksheet& worksheet, Figure figure, int place,
               const DisplayFormats& formats) {
    Values values =
        place == CurrentLoanPlace ? ValuesOfCurrent(worksheet) : ValuesOfOffer(worksheet, place);
    values[u"figure"_s] = ValueOf(worksheet, figure, place);
    values[u"compared"_s] = ValueOf(worksheet, Figure::PaymentCompared, place);
    values[u"apr"_s] = ValueOf(worksheet, Figure::Apr, place);
    values[u"payoff"_s] = ValueOf(worksheet, Figure::PayoffDate, place);
    for (const auto& [mark, value] : values) {
        text.replace(u'{' + mark + u'}', TextOf(value, formats));
    }
    return text;
}

struct Case {
    Figure figure;
    int place;
    void (*enter)(ComparisonInput&);
    QString text;
};

void Nothing(ComparisonInput& /*input*/) {}
void FiftyYears(ComparisonInput& input) { input.years = 50; }
void Same(ComparisonInput& input) {
    input.choice = PaymentChoice::Monthly;
    input.monthlyPayment = Units(2'600);
}
/// Its payments are rounded down and never repay it; those intended do.
void EndlessUnlessIntended(ComparisonInput& input) {
    input.offers[0].term = {100'000};
    input.offers[0].actualPayment = Units(4'000);
}
void Short(ComparisonInput& input) { input.offers[0].term = {2}; }
void AtOnce(ComparisonInput& input) { input.offers[0].term = {1}; }

void Expect(const Case& row, const DisplayFormats& formats) {
    ComparisonInput input = SampleInput();
    row.enter(input);
    const ComparedWorksheet worksheet = Compared(input);
    EXPECT_EQ(ExplanationOf(worksheet, row.figure, row.place, formats).toStdString(),
              Filled(row.text, worksheet, row.figure, row.place, formats).toStdString());
}

TEST(Explanation, FiguresOfAnOffer) {
    using enum Figure;
    // clang-format off
    const std::array cases{
        Case{Lender,            1, &Nothing, u"First lends {principal} at 6.250% for 30 years, with 12 payments a year."_s},
        Case{Lender,            3, &Nothing, u"Third lends {principal} at 6.875% for 30 years, with 26 payments a year."_s},
        Case{MonthlyEquivalent, 3, &Nothing, u"To Third you pay {without escrow} without escrow in each of 26 payments a year, which is {figure} a month."_s},
        Case{PaymentCompared,   1, &Nothing, u"Each payment to First: it requires {p&i} for principal and interest, and with {escrow} for escrow that is {figure}."_s},
        Case{PaymentCompared,   1, [](auto& input) { input.escrowMonthly = Money(); },
             u"Each payment to First: it requires {figure} for principal and interest; there is no escrow."_s},
        Case{PaymentCompared,   2, &Nothing, u"Each payment to Second: you intend to pay {figure}, which is {more} more than the {required} it requires."_s},
        Case{PaymentCompared,   1, [](auto& input) { input.offers[0].actualPayment = Units(7); },
             u"Each payment to First: you intend to pay $7.00, but it requires {figure}."_s},
        Case{PaymentCompared,   3, &Same,    u"Each payment to Third: the same amount for all loans, $2,600.00 a month, is {without escrow} in each of 26 payments a year; with {escrow} for escrow that is {figure}."_s},
        Case{PaymentCompared,   2, [](auto& input) { Same(input); input.monthlyPayment = Units(9); },
             u"Each payment to Second: it requires {p&i} for principal and interest, and with {escrow} for escrow that is {figure}."_s},
        Case{Upfront,           1, &Nothing, u"At closing you pay First points of {points} (1.500% of $250,000.00) and costs of $950.00."_s},
        Case{Upfront,           2, &Nothing, u"At closing you pay Second its costs of {figure}. The points of {points} are financed."_s},
        Case{Upfront,           3, &Nothing, u"At closing you pay Third nothing: it asks for no points, and no costs are entered."_s},
        Case{Upfront,           3, [](auto& input) { input.offers[2].costs = Units(-70); },
             u"At closing you pay Third its costs of ($70.00). It asks for no points."_s},
        Case{Costs,             1, &Nothing, u"Costs of First: the {figure} you entered, which it charges besides points. A credit is negative."_s},
        Case{Costs,             3, &Nothing, u"Costs of Third: none are entered. They are what it charges besides points; a credit is negative."_s},
        Case{EffectiveRate,     3, &Nothing, u"Effective rate of Third: an APR of {apr} in 26 payments a year, with interest on the interest, is {figure}."_s},
        Case{CostByHorizon,     1, &Nothing, u"Kept 5 years, First costs {figure}: points of {points}, costs of $950.00 and interest of {interest by then}."_s},
        Case{BalanceAtHorizon,  1, &Nothing, u"Kept 5 years, First is still owed {figure}: of the {principal} borrowed, {repaid} is repaid by then."_s},
        Case{BalanceAtHorizon,  1, &FiftyYears, u"Kept 50 years, First is owed nothing: the {principal} borrowed is repaid on {payoff}."_s},
        Case{TotalCost,         2, &Nothing, u"Until it is repaid on {payoff}, Second costs {figure}: points of {points}, costs of $0.00 and interest of {interest}."_s},
        Case{PayoffDate,        2, &Nothing, u"Second is repaid on {figure} with {payments} payments: the first on 11/22/2026, {first payment} each time and {last payment} at last."_s},
        Case{PayoffDate,        2, [](auto& input) { input.offers[1].actualPayment = Units(900'000); },
             u"Second is repaid on {figure} with one payment of {last payment}."_s},
        Case{PaymentForHorizon, 2, &Nothing, u"With at least {figure} each time nothing is owed to Second after 5 years; it requires {required}."_s},
    };
    // clang-format on
    for (const Case& row : cases) {
        Expect(row, Switch(Texts::English, "en_US"));
    }
}

TEST(Explanation, FiguresThatCompare) {
    using enum Figure;
    // clang-format off
    const std::array cases{
        Case{Apr,               1, &Nothing, u"APR of First: you receive {received} and repay {full} times {each} and once {last}. At {figure} a year these payments repay exactly what you receive."_s},
        Case{Apr,               2, &Nothing, u"APR of Second: you receive {received} and repay {full} times {each} and once {last}. At {figure} a year these payments repay exactly what you receive."_s},
        Case{Apr,               1, &Short,   u"APR of First: you receive {received} and repay once {each} and once {last}. At {figure} a year these payments repay exactly what you receive."_s},
        Case{Apr,               1, &AtOnce,  u"APR of First: you receive {received} and repay {each} at once. At {figure} a year this payment repays exactly what you receive."_s},
        Case{Apr,               2, [](auto& input) { input.escrowMonthly = Money(); input.offers[1] = {.rate = Rate::FromFraction(0.24), .term = {1}, .frequency = FrequencyCode(u"B"_s)}; input.amount = Units(100); },
             u"APR of Second: you receive {received} and repay 2 times {each}. At {figure} a year these payments repay exactly what you receive."_s},
        Case{Apr,               1, [](auto& input) { input.offers[0].costs = input.amount; },
             u"APR of First: there is none, because costs and points take $253,750.00 of the $250,000.00 borrowed and you receive nothing."_s},
        Case{Apr,               1, [](auto& input) { input.offers[0].costs = -input.amount - input.amount; Short(input); },
             u"APR of First: there is none, because you receive {received} and all payments add up to only {sum}."_s},
        Case{Apr,               1, [](auto& input) { input.offers[0].costs = Units(246'249); },
             u"APR of First: there is none, because it would be above 10000.000%."_s},
        Case{Apr,               1, &EndlessUnlessIntended, u"APR of First: there is none, because the payments of {p&i} it requires never repay it."_s},
        Case{EffectiveRate,     1, &EndlessUnlessIntended, u"Effective rate of First: there is none, because there is no APR."_s},
        Case{InterestSaved,     2, &Nothing, u"Paid {compared} instead of the required {required} each time, Second costs {interest} of interest instead of {interest before}."_s},
        Case{PaymentsSaved,     2, &Nothing, u"Paid {compared} instead of the required {required} each time, Second takes {payments} instead of {payments before} payments."_s},
        Case{InterestSaved,     1, &Nothing, u"Nothing is saved with First, because no more is paid than the {required} it requires each time."_s},
        Case{PaymentsSaved,     1, &EndlessUnlessIntended, u"The {required} that First requires each time never repays it, so there is nothing to compare with."_s},
        Case{Cheaper,           2, &Nothing, u"The points and costs of Second are {closing}. With its interest it has cost no more than the loan held today: {figure}."_s},
        Case{Cheaper,           3, [](auto& input) { input.current.balance = Units(1'000); input.current.actualPayment = Units(900'000); },
             u"The points and costs of Third are {closing}. With its interest it always costs more than the loan held today, after 5 years {above current} more."_s},
        Case{Cheaper,           3, [](auto& input) { input.current = {}; },
             u"Third has no loan to be compared with, because the loan held today takes no part."_s},
        Case{RateToMatch,       1, &Nothing, u"At {figure} instead of 6.250%, First would cost no more in 5 years than Second, which costs {least cost}."_s},
        Case{RateToMatch,       2, &Nothing, u"Second has no rate to match, because in 5 years no offer costs less."_s},
        Case{RateToMatch,       1, [](auto& input) { input.offers[0].costs = Units(90'000); },
             u"First has no rate to match: even at {half}, half its rate, it would cost more in 5 years than Second."_s},
    };
    // clang-format on
    for (const Case& row : cases) {
        Expect(row, Switch(Texts::English, "en_US"));
    }
}

TEST(Explanation, FiguresOfTheLoanHeldToday) {
    using enum Figure;
    // clang-format off
    const std::array cases{
        Case{Lender,            0, &Nothing, u"On the loan held today you owe $198,450.00 at 7.250%, with 12 payments a year."_s},
        Case{MonthlyEquivalent, 0, &Nothing, u"On the loan held today you pay {without escrow} without escrow in each of 12 payments a year, which is {figure} a month."_s},
        Case{PaymentCompared,   0, &Nothing, u"Each payment of the loan held today: the {figure} that you actually pay."_s},
        Case{PaymentCompared,   0, &Same,    u"Each payment of the loan held today: the same amount for all loans, $2,600.00 a month, is {without escrow} in each of 12 payments a year; with $400.00 for escrow that is {figure}."_s},
        Case{Upfront,           0, &Nothing, u"The loan held today has no such figure: it is what the offers are compared with."_s},
        Case{RateToMatch,       0, &Nothing, u"The loan held today has no such figure: it is what the offers are compared with."_s},
        Case{CostByHorizon,     0, &Nothing, u"Kept 5 years, the loan held today costs {figure} of interest from today on."_s},
        Case{BalanceAtHorizon,  0, &Nothing, u"Kept 5 years, you still owe {figure} on the loan held today: of the $198,450.00 owed today, {repaid} is repaid by then."_s},
        Case{BalanceAtHorizon,  0, &FiftyYears, u"Kept 50 years, you owe nothing on the loan held today: the $198,450.00 owed today is repaid on {payoff}."_s},
        Case{TotalCost,         0, &Nothing, u"Until it is repaid on {payoff}, the loan held today costs {figure} of interest from today on."_s},
        Case{PayoffDate,        0, &Nothing, u"The loan held today is repaid on {figure} with {payments} payments: the next on 12/1/2026, {first payment} each time and {last payment} at last."_s},
        Case{PayoffDate,        0, [](auto& input) { input.current.actualPayment = Units(900'000); },
             u"The loan held today is repaid on {figure} with one payment of {last payment}."_s},
        Case{PaymentForHorizon, 0, &Nothing, u"With at least {figure} each time nothing is owed on the loan held today after 5 years; you actually pay $2,050.00."_s},
        Case{PaymentForHorizon, 0, [](auto& input) { input.current.nextPayment = Date::FromCalendar(2032, 1, 1); },
             u"No payment repays the loan held today within 5 years; its next payment is on 1/1/2032."_s},
    };
    // clang-format on
    for (const Case& row : cases) {
        Expect(row, Switch(Texts::English, "en_US"));
    }
}

TEST(Explanation, InSpanishWithCommas) {
    using enum Figure;
    // clang-format off
    const std::array cases{
        Case{Apr,              1, &Nothing, u"APR de First: usted recibe {received} y devuelve {full} veces {each} y una vez {last}. Al {figure} anual, estos pagos liquidan exactamente lo que recibe."_s},
        Case{CostByHorizon,    1, &Nothing, u"En 5 años, First cuesta {figure}: puntos por {points}, costos por 950,00 € e intereses por {interest by then}."_s},
        Case{PayoffDate,       2, &Nothing, u"Second se liquida el {figure} con {payments} pagos: el primero el 22/11/2026, cada uno de {first payment} y el último de {last payment}."_s},
        Case{Cheaper,          2, &Nothing, u"Los puntos y costos de Second son {closing}. Con sus intereses no ha costado más que el préstamo actual: {figure}."_s},
        Case{BalanceAtHorizon, 0, &Nothing, u"En 5 años, usted debe todavía {figure} del préstamo actual: de los 198.450,00 € que debe hoy, para entonces se han devuelto {repaid}."_s},
    };
    // clang-format on
    for (const Case& row : cases) {
        Case spaced = row;
        spaced.text.replace(u" €"_s, u"\u00a0€"_s);
        Expect(spaced, Switch(Texts::Spanish, "es_ES"));
    }
}

TEST(Explanation, OfWhatTakesNoPart) {
    ComparisonInput input = SampleInput();
    input.offers[0].frequency = {};
    input.offers.emplace_back();
    input.current.actualFrequency = {};
    const ComparedWorksheet worksheet = Compared(input);
    const DisplayFormats formats = Switch(Texts::English, "en_US");
    EXPECT_EQ(ExplanationOf(worksheet, Figure::Apr, 1, formats), u"First (choose a frequency)"_s);
    EXPECT_TRUE(ExplanationOf(worksheet, Figure::Costs, 1, formats).contains(u"$950.00"_s));
    EXPECT_TRUE(ExplanationOf(worksheet, Figure::Apr, 0, formats).contains(u"without interest"_s));
    EXPECT_EQ(ExplanationOf(worksheet, Figure::Apr, 4, formats), QString()); // blank
}

} // namespace
