#include "ComparedOffer.h"

#include "AccruedInterest.h"
#include "ActuarialRate.h"
#include "CLoan.h"
#include "Cents.h"
#include "Failure.h"
#include "Frequency.h"
#include "Overflow.h"
#include "Payment.h"
#include "PaymentOfMonthly.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace quend::comparison {

namespace {

/// The worksheet of an offer, which only reads it.
class InputContext : public LoanContext {
public:
    explicit InputContext(const ComparisonInput& input) : m_input(&input) {}

    Months LoanTerm() const override { return m_input->term; }
    Money EscrowMonthly() const override { return m_input->escrowMonthly; }
    Date Today() const override { return m_input->today; }
    void MarkDirty() override {}
    void PaymentRefused() override {}

private:
    const ComparisonInput* m_input;
};

OfferValues ValuesOf(const ComparisonInput& input, const OfferInput& offer) {
    return {.startingAmount = input.amount,
            .points = offer.points,
            .financePoints = offer.pointsFinanced,
            .term = offer.term,
            .rate = offer.rate,
            .frequency = offer.frequency,
            .actualPayment = offer.actualPayment};
}

/// As the main window shows the offer; stops at the first amount that is outside its range.
void FillAmounts(OfferComparison& result, CLoan& loan) {
    try {
        result.principal = loan.StartingPrinciple();
        result.principalAndInterest = loan.PandI();
        result.payment = loan.Payment(*result.principalAndInterest);
        result.raised = loan.Forced();
    } catch (const OverflowFailure&) {
        result.overflow = true;
    }
    result.actualPayment = loan.ActualPayment();
}

std::optional<Payoff> RunUnlessEndless(const ScheduleTerms& terms) {
    try {
        return RunToPayoff(terms);
    } catch (const OverflowFailure&) {
        return std::nullopt;
    }
}

/// The sum of all payments; none outside the range of money.
std::optional<Money> SumOfPayments(std::int64_t full, Money payment, Money last) {
    std::int64_t sum = 0;
    if (ProductOverflows(payment.TenThousandths(), full, sum) ||
        SumOverflows(sum, last.TenThousandths(), sum)) {
        return std::nullopt;
    }
    return Money::FromTenThousandths(sum);
}

/// The rate of one period; none where less is repaid than received, where nothing is received (no
/// rate is high enough), and above 10,000 % a year.
std::optional<double> PeriodRate(const Payoff& payoff, Money payment, Money received,
                                 int periodsPerYear) {
    const std::int64_t full = payoff.periods - 1;
    const Money last = payoff.lastPrincipal + payoff.lastInterest;
    const std::optional<Money> sum = SumOfPayments(full, payment, last);
    // In money, because sums in double may differ where these agree.
    if (sum && *sum <= received) {
        return *sum == received ? std::optional(0.0) : std::nullopt;
    }
    const std::array advances{CashFlows{.amount = received.ToDouble()}};
    const std::array payments{
        CashFlows{.amount = payment.ToDouble(), .count = full, .periods = 1},
        CashFlows{.amount = last.ToDouble(), .periods = payoff.periods},
    };
    constexpr double Highest = 100.0;
    return ActuarialRate(advances, payments, Highest / periodsPerYear);
}

} // namespace

ComparedOffer::ComparedOffer(const ComparisonInput& input, const OfferInput& offer)
    : m_input(&input), m_offer(&offer), m_frequency(FindFrequency(offer.frequency)) {
    InputContext context(input);
    CLoan loan = MakeOffer(context, ValuesOf(input, offer));
    FillAmounts(m_result, loan);
    m_term = loan.Term();
    m_result.leftOut = FindLeftOut();
    if (m_result.leftOut == LeftOut::No) {
        RunCompared();
    }
    if (!m_result.overflow) {
        FillPayoff(loan);
    }
    if (m_result.leftOut == LeftOut::NeverEnds && !m_result.overflow) {
        // The schedule either passes the last date, or an amount leaves the range of money.
        m_result.overflow = !m_hasAmounts || RunUnlessEndless(ComparedLoan().terms);
    }
}

LeftOut ComparedOffer::FindLeftOut() const {
    if (!m_result.payment) {
        return LeftOut::NeverEnds;
    }
    if (*m_result.principal <= Money()) {
        return LeftOut::NoAmount;
    }
    if (m_offer->rate.IsZero()) {
        return LeftOut::NoRate;
    }
    if (m_frequency == nullptr) {
        return LeftOut::NoFrequency;
    }
    if (m_term.IsZero()) {
        return LeftOut::NoTerm;
    }
    return *m_result.principalAndInterest < Cents::One ? LeftOut::NoPayment : LeftOut::No;
}

void ComparedOffer::RunCompared() {
    try {
        ComputeAmounts();
        m_costs = RunCosts(ComparedLoan(), m_closing, m_input->today, Horizon());
        m_figures.totalCost = m_costs->last;
        m_figures.costByHorizon = m_costs->By(Horizon());
        m_figures.balanceAtHorizon = m_costs->balanceAtHorizon;
        m_figures.payoff = m_costs->payoff.date;
    } catch (const OverflowFailure&) {
        m_result.leftOut = LeftOut::NeverEnds;
    }
}

/// With the intended payment, raised to the required one. Where that is compared, its schedule has
/// been run.
void ComparedOffer::FillPayoff(CLoan& loan) {
    const Money intended = m_result.actualPayment;
    if (m_costs && m_figures.paymentCompared == intended && !intended.IsZero()) {
        m_result.payoffDate = m_costs->payoff.date;
        m_result.interest = m_costs->payoff.interest;
        return;
    }
    try {
        const Date payoff = loan.PayoffDate();
        if (!payoff.IsNone()) {
            m_result.payoffDate = payoff;
            m_result.interest = loan.Interest();
        }
    } catch (const OverflowFailure&) {
        m_result.overflow = true;
    }
}

void ComparedOffer::ComputeAmounts() {
    m_escrowShare = EscrowShare(m_offer->frequency, m_input->escrowMonthly);
    const Money points = Money::FromDouble(m_offer->points.Of(m_input->amount.ToDouble()));
    m_closing = points + m_offer->costs;
    m_figures.upfront = m_offer->pointsFinanced ? m_offer->costs : m_closing;
    m_received = m_input->amount - m_figures.upfront;
    m_figures.paymentCompared = PaymentCompared(*m_result.payment, m_result.actualPayment);
    m_figures.monthlyEquivalent =
        MonthlyOfPayment(m_figures.paymentCompared, *m_frequency, m_escrowShare);
    m_hasAmounts = true;
}

Money ComparedOffer::PaymentCompared(Money required, Money intended) const {
    switch (m_input->choice) {
    case PaymentChoice::Intended:
        return std::max(required, intended);
    case PaymentChoice::Required:
        return required;
    case PaymentChoice::Monthly:
        break;
    }
    return std::max(required,
                    PaymentOfMonthly(m_input->monthlyPayment, *m_frequency, m_escrowShare));
}

DatedLoan ComparedOffer::Loan(Rate rate, Money payment) const {
    return {.terms = {.balance = *m_result.principal,
                      .rate = rate,
                      .payment = payment,
                      .escrowShare = m_escrowShare,
                      .frequency = m_frequency,
                      .start = m_input->today},
            .accrual = Accrual::AfterPayment};
}

DatedLoan ComparedOffer::ComparedLoan() const {
    return Loan(m_offer->rate, m_figures.paymentCompared);
}

OfferComparison ComparedOffer::Finish(const CostByMonth* current, int months, Money cheapest) {
    if (!m_costs) {
        return m_result;
    }
    if (const std::optional<Payoff> required = RunRequired()) {
        m_figures.interestSaved = required->interest - m_costs->payoff.interest;
        m_figures.paymentsSaved = required->periods - m_costs->payoff.periods;
        AddRates(*required);
    }
    if (current != nullptr) {
        m_figures.cheaper = FindCheaper(*m_costs, *current, months);
    }
    if (m_figures.costByHorizon > cheapest) {
        m_figures.rateToMatch = FindRateToMatch(cheapest);
    }
    m_figures.paymentForHorizon = LeastPaymentBy(HorizonDay(m_input->today, m_input->years));
    m_result.figures = m_figures;
    return m_result;
}

std::optional<DatedLoan> ComparedOffer::Compared() const {
    if (!m_costs) {
        return std::nullopt;
    }
    return ComparedLoan();
}

std::optional<Money> ComparedOffer::LeastPaymentBy(Date day) const {
    // Where the compared payment never ends, a greater one may.
    if (!m_hasAmounts) {
        return std::nullopt;
    }
    return LeastPaymentUntil(Loan(m_offer->rate, Money()), day, *m_result.payment);
}

std::optional<Payoff> ComparedOffer::RunRequired() const {
    if (m_figures.paymentCompared == *m_result.payment) {
        return m_costs->payoff;
    }
    return RunUnlessEndless(Loan(m_offer->rate, *m_result.payment).terms);
}

void ComparedOffer::AddRates(const Payoff& required) {
    const int year = m_frequency->periodsPerYear;
    const std::optional<double> rate =
        PeriodRate(required, *m_result.principalAndInterest, m_received, year);
    if (rate) {
        const double apr = *rate * year;
        m_figures.apr = Rate::FromFraction(apr);
        m_figures.effectiveRate = Rate::FromFraction(std::pow(1.0 + apr / year, year) - 1.0);
    }
}

std::optional<Rate> ComparedOffer::FindRateToMatch(Money cheapest) const {
    constexpr double Steps = 100'000.0; // thousandths of a percent
    constexpr double Most = 1e15;       // so many steps are whole numbers in a double
    const double own = m_offer->rate.Fraction();
    if (!(own * Steps < Most)) {
        return std::nullopt;
    }
    std::int64_t low = 0;
    auto high = static_cast<std::int64_t>(std::ceil(own * Steps - 1e-9));
    while (high - low > 1) {
        const std::int64_t middle = std::midpoint(low, high);
        const Rate rate = Rate::FromFraction(static_cast<double>(middle) / Steps);
        (CostsNoMoreAt(rate, cheapest) ? low : high) = middle;
    }
    const double found = static_cast<double>(low) / Steps;
    if (found < own / 2.0) {
        return std::nullopt;
    }
    return Rate::FromFraction(found);
}

bool ComparedOffer::CostsNoMoreAt(Rate rate, Money most) const {
    try {
        const Money pAndI =
            PrincipalAndInterest(*m_result.principal, rate, m_term, m_offer->frequency);
        if (pAndI < Cents::One) {
            return false;
        }
        // An intended payment that its own rate requires is none.
        const bool intends = m_result.actualPayment > *m_result.payment;
        const Money payment =
            PaymentCompared(pAndI + m_escrowShare, intends ? m_result.actualPayment : Money());
        const std::optional<Money> cost = CostByDay(Loan(rate, payment), m_closing, m_input->today,
                                                    HorizonDay(m_input->today, m_input->years));
        return cost && *cost <= most;
    } catch (const OverflowFailure&) {
        return false;
    }
}

std::optional<RequiredAmounts> RequiredPayment(const ComparisonInput& input,
                                               const OfferInput& offer) {
    InputContext context(input);
    try {
        const CLoan loan = MakeOffer(context, ValuesOf(input, offer));
        if (loan.InterestRate().IsZero() || loan.Term().IsZero() ||
            FindFrequency(loan.FrequencyCode()) == nullptr) {
            return std::nullopt;
        }
        const Money pAndI = loan.PandI();
        return RequiredAmounts{pAndI, pAndI + EscrowShare(offer.frequency, input.escrowMonthly)};
    } catch (const OverflowFailure&) {
        return std::nullopt;
    }
}

} // namespace quend::comparison
