#include "RandomWorksheet.h"

#include "Frequency.h"
#include "QuendNames.h"

#include <array>

namespace {

Money Amount(Random& random, double low, double high) {
    return Money::FromDouble(random.OfAnySize(low, high)).RoundedToCents();
}

/// In thousandths of a percent or as any number, from 0.1 % to 25 %.
Rate RateOf(Random& random) {
    return Rate::FromFraction(random.OneIn(3) ? random.Between(0.001, 0.25)
                                              : random.Int(100, 25'000) / 100'000.0);
}

Months TermOf(Random& random) {
    constexpr std::array Usual{180, 240, 300, 360};
    return {random.OneIn(2) ? random.OneOf(Usual) : random.Int(1, 480)};
}

FrequencyCode FrequencyOf(Random& random) { return random.OneOf(Frequencies).Code(); }

/// Of a loan of that amount: often below the required payment, sometimes all at once.
Money PaymentOf(Random& random, Money amount) {
    const Money least = random.OneIn(20) ? amount : Money();
    return least + Amount(random, amount.ToDouble() / 300.0, amount.ToDouble() / 20.0);
}

OfferInput OfferOf(Random& random, const ComparisonInput& sheet) {
    return {.points = Percent::FromPercent(random.OneIn(2) ? 0.0 : random.Int(1, 32) / 8.0),
            .pointsFinanced = random.OneIn(2),
            .costs = Money::FromTenThousandths(random.Int(-200'000, 500'000) * 100LL),
            .rate = random.OneIn(20) ? Rate() : RateOf(random),
            .term = random.OneIn(10) ? Months() : TermOf(random),
            .frequency = random.OneIn(20) ? FrequencyCode() : FrequencyOf(random),
            .actualPayment = random.OneIn(2) ? Money() : PaymentOf(random, sheet.amount)};
}

CurrentLoanInput CurrentOf(Random& random, const ComparisonInput& sheet) {
    const Money balance = Amount(random, 1'000.0, 1e6);
    const int due = sheet.today.Days() + random.Int(-40, 800);
    return {.rate = random.OneIn(20) ? Rate() : RateOf(random),
            .balance = balance,
            .actualPayment = PaymentOf(random, balance),
            .actualFrequency = FrequencyOf(random),
            .nextPayment = random.OneIn(4) ? Date() : Date::FromDays(due)};
}

} // namespace

ComparisonInput RandomWorksheet(Random& random) {
    constexpr std::array Choices{PaymentChoice::Intended, PaymentChoice::Required,
                                 PaymentChoice::Monthly};
    ComparisonInput sheet{.today = Date::FromDays(random.Int(46'000, 48'000)),
                          .years = random.OneIn(2) ? random.Int(1, 10) : random.Int(1, 50),
                          .choice = random.OneOf(Choices),
                          .amount = Amount(random, 1'000.0, 1e7),
                          .term = TermOf(random),
                          .escrowMonthly =
                              random.OneIn(3) ? Money() : Amount(random, 1.0, 2'000.0)};
    sheet.monthlyPayment = PaymentOf(random, sheet.amount);
    if (!random.OneIn(3)) {
        sheet.current = CurrentOf(random, sheet);
    }
    const int offers = random.Int(1, 16);
    for (int place = 1; place <= offers; ++place) {
        sheet.offers.push_back(OfferOf(random, sheet));
    }
    return sheet;
}
