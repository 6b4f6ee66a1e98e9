#include "RandomLoan.h"

#include "Payment.h"

#include <array>

namespace {

double RateOf(Random& random) {
    constexpr std::array Usual{0.0625, 0.065, 0.06, 0.06875, 0.12, 0.03};
    constexpr std::array Limits{1e-6, 1e-5, 0.0001, 0.99999, 1.0, 3.0};
    switch (random.Int(0, 9)) {
    case 0:
        return random.OneOf(Limits);
    case 1:
        return random.OfAnySize(1e-5, 1.0);
    case 2:
    case 3:
    case 4:
        return random.OneOf(Usual);
    default:
        return random.Between(0.001, 0.25);
    }
}

int TermOf(Random& random) {
    constexpr std::array Usual{60, 120, 180, 240, 360, 480};
    constexpr std::array Limits{1, 2, 11, 12, 13, 1'199, 1'200};
    switch (random.Int(0, 9)) {
    case 0:
        return random.OneOf(Limits);
    case 1:
    case 2:
    case 3:
        return random.OneOf(Usual);
    default:
        return random.Int(1, 480);
    }
}

Money AmountOf(Random& random, double low, double high) {
    const Money amount = Money::FromDouble(random.OfAnySize(low, high));
    return random.OneIn(4) ? amount : amount.RoundedToCents();
}

} // namespace

RandomLoan RandomLoan::Make(Random& random) {
    RandomLoan loan;
    loan.amount = AmountOf(random, random.OneIn(8) ? 0.01 : 1'000.0, 1e9);
    loan.points = Percent::FromPercent(random.OneIn(2) ? 0.0 : random.Int(1, 80) / 8.0);
    loan.financePoints = random.OneIn(2);
    loan.term = Months{TermOf(random)};
    loan.rate = Rate::FromFraction(RateOf(random));
    loan.code = random.OneOf(Frequencies).Code();
    loan.escrowMonthly = random.OneIn(3) ? Money() : AmountOf(random, 1.0, 5'000.0);
    loan.start = Date::FromDays(random.Int(46'000, 48'000));
    return loan;
}

Money RandomLoan::EscrowPart() const { return EscrowShare(code, escrowMonthly); }

Money RandomLoan::LeastPayment() const {
    return PrincipalAndInterest(amount, rate, term, code) + EscrowPart();
}

ScheduleTerms RandomLoan::Terms(Money payment) const {
    return {.balance = amount,
            .rate = rate,
            .payment = payment,
            .escrowShare = EscrowPart(),
            .frequency = FindFrequency(code),
            .start = start};
}

std::ostream& operator<<(std::ostream& out, const RandomLoan& loan) {
    return out << loan.amount.TenThousandths() << " ten-thousandths at " << loan.rate.Fraction()
               << " for " << loan.term.count << " months " << loan.code.Text().toStdString()
               << ", points " << loan.points.Value() << (loan.financePoints ? " financed" : " paid")
               << ", escrow " << loan.escrowMonthly.TenThousandths() << ", from "
               << loan.start.Days();
}
