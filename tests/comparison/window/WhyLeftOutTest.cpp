#include "WhyLeftOut.h"

#include "SampleComparison.h"
#include "Solving.h"

#include <gtest/gtest.h>

#include <array>

using namespace quend::compare;
using namespace Qt::StringLiterals;

namespace {

/// Replaces {a} and {h} by the payments that repay the loan at all and by the horizon.
QString Filled(QString text, const ComparedWorksheet& worksheet, int place,
               const DisplayFormats& formats) {
    const ComparisonInput& input = worksheet.input;
    const auto payment = [&](Date day) {
        return formats.Currency(LeastPaymentBy(input, place, day).value_or(Money()));
    };
    return text.replace(u"{a}"_s, payment(Date::Last()))
        .replace(u"{h}"_s, payment(HorizonDay(input.today, input.years)));
}

struct Case {
    int place;
    void (*enter)(ComparisonInput&);
    QString english;
    QString spanish;
};

void Nothing(ComparisonInput& /*input*/) {}

const Money Most = Units(900'000'000'000'000);

TEST(WhyLeftOut, EachReason) {
    // clang-format off
    const std::array cases{
        Case{1, &Nothing, u""_s, u""_s},
        Case{1, [](auto& input) { input.offers[0] = {}; },
             u"First (%1 is not computed; enter an interest rate)"_s.arg(u"0%"_s), u"First (con %1 no se calcula nada; escriba una tasa de interés)"_s.arg(u"0%"_s)},
        Case{1, [](auto& input) { input.amount = Money(); },
             u"First (enter the loan amount)"_s, u"First (escriba el monto del préstamo)"_s},
        Case{2, [](auto& input) { input.offers[1].frequency = {}; },
             u"Second (choose a frequency)"_s, u"Second (elija una frecuencia)"_s},
        Case{3, [](auto& input) { input.term = {}; },
             u"Third (enter a term)"_s, u"Third (escriba un plazo)"_s},
        Case{1, [](auto& input) { input.amount = Money::FromTenThousandths(5'000); },
             u"First (its payment would be less than a cent)"_s, u"First (su pago sería de menos de un centavo)"_s},
        Case{1, [](auto& input) { input.offers[0].costs = Most; input.offers[0].points = Percent::FromPercent(1e12); },
             u"First (its amounts are too large to be computed)"_s, u"First (sus montos son demasiado grandes para calcularlos)"_s},
        Case{1, [](auto& input) { input.offers[0].term = {100'000}; },
             u"First (it is never repaid; each payment would have to be at least {a}, or {h} to repay it within 5 years)"_s,
             u"First (nunca se liquida; cada pago tendría que ser de al menos {a}, o de {h} para liquidarlo en 5 años)"_s},
        Case{0, &Nothing, u""_s, u""_s},
        Case{0, [](auto& input) { input.current = {}; }, u""_s, u""_s},
        Case{0, [](auto& input) { input.current.balance = Money(); },
             u"The loan held today (enter its current balance)"_s, u"El préstamo actual (escriba su saldo actual)"_s},
        Case{0, [](auto& input) { input.current.actualPayment = Money(); },
             u"The loan held today (enter its actual payment)"_s, u"El préstamo actual (escriba su pago real)"_s},
        Case{0, [](auto& input) { input.current.actualFrequency = {}; },
             u"The loan held today (choose its actual frequency; until then the main window shows it without interest)"_s,
             u"El préstamo actual (elija su frecuencia real; hasta entonces la ventana principal lo muestra sin intereses)"_s},
        Case{0, [](auto& input) { input.current.actualPayment = Units(500); input.years = 1; },
             u"The loan held today (it is never repaid; each payment would have to be at least {a}, or {h} to repay it within 1 year)"_s,
             u"El préstamo actual (nunca se liquida; cada pago tendría que ser de al menos {a}, o de {h} para liquidarlo en 1 año)"_s},
        Case{0, [](auto& input) { input.current.actualPayment = Units(500); input.current.nextPayment = Date::FromCalendar(2040, 1, 1); },
             u"The loan held today (it is never repaid; each payment would have to be at least {a})"_s,
             u"El préstamo actual (nunca se liquida; cada pago tendría que ser de al menos {a})"_s},
        Case{0, [](auto& input) { input.current.actualPayment = Units(500); input.current.balance = Most; input.current.rate = Rate::FromFraction(1e6); },
             u"The loan held today (it is never repaid)"_s, u"El préstamo actual (nunca se liquida)"_s},
    };
    // clang-format on
    for (const Case& row : cases) {
        ComparisonInput input = SampleInput();
        row.enter(input);
        ComparedWorksheet worksheet = Compared(input);
        for (const bool spanish : {false, true}) {
            const DisplayFormats formats =
                spanish ? Switch(Texts::Spanish, "es_ES") : Switch(Texts::English, "en_US");
            EXPECT_EQ(WhyLeftOut(worksheet, row.place, formats).toStdString(),
                      Filled(spanish ? row.spanish : row.english, worksheet, row.place, formats)
                          .toStdString());
        }
    }
    ComparedWorksheet turned = Compared({.offers = {{}}});
    turned.lenders = {u"بنك"_s};
    EXPECT_EQ(WhyLeftOut(turned, 1, Switch(Texts::English, "en_US")),
              u"\u200Eبنك (enter the loan amount)"_s);
    ComparedWorksheet blank = Compared({.offers = {{}}});
    blank.lenders = {QString()};
    EXPECT_EQ(WhyLeftOut(blank, 1, Switch(Texts::English, "en_US")), QString());
}

TEST(WhyLeftOut, PaymentsThatWouldBeEnough) {
    // clang-format off
    const std::array cases{
        Case{1, &Nothing, u""_s, u""_s},
        Case{1, [](auto& input) { input.offers[0].frequency = {}; }, u""_s, u""_s},
        Case{1, [](auto& input) { input.offers[0].term = {100'000}; },
             u"To be repaid at all, it needs payments of at least {a}; to be repaid within 5 years, payments of {h}."_s,
             u"Para que llegue a liquidarse, cada pago debe ser de al menos {a}; para liquidarlo en 5 años, de {h}."_s},
        Case{0, &Nothing, u""_s, u""_s},
        Case{0, [](auto& input) { input.current.actualPayment = Units(500); },
             u"To be repaid at all, it needs payments of at least {a}; to be repaid within 5 years, payments of {h}."_s,
             u"Para que llegue a liquidarse, cada pago debe ser de al menos {a}; para liquidarlo en 5 años, de {h}."_s},
        Case{0, [](auto& input) { input.current.actualPayment = Units(500); input.current.nextPayment = Date::FromCalendar(2040, 1, 1); },
             u"To be repaid at all, it needs payments of at least {a}."_s, u"Para que llegue a liquidarse, cada pago debe ser de al menos {a}."_s},
    };
    // clang-format on
    for (const Case& row : cases) {
        ComparisonInput input = SampleInput();
        row.enter(input);
        const ComparedWorksheet worksheet = Compared(input);
        for (const bool spanish : {false, true}) {
            const DisplayFormats formats =
                spanish ? Switch(Texts::Spanish, "es_ES") : Switch(Texts::English, "en_US");
            EXPECT_EQ(EnoughFor(worksheet, row.place, formats).toStdString(),
                      Filled(spanish ? row.spanish : row.english, worksheet, row.place, formats)
                          .toStdString());
        }
    }
}

} // namespace
