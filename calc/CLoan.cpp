#include "CLoan.h"

#include "Frequency.h"
#include "Payment.h"
#include "Schedule.h"

#include <tuple>
#include <utility>

namespace quend::calc {

void CLoan::SetInterestRate(Rate rate) {
    Change(m_interestRate, rate);
    if (!m_interestRate.IsZero() && m_term.IsZero()) {
        SetTerm(m_context->LoanTerm());
    }
}

QString CLoan::Frequency() const { return FrequencyCodeToText(m_frequencyCode); }

void CLoan::SetFrequency(const QString& text) { SetFrequencyCode(FrequencyTextToCode(text)); }

bool CLoan::HasSameEntries(const CLoan& other) const {
    const auto entries = [](const CLoan& loan) {
        return std::tie(loan.m_financePoints, loan.m_points, loan.m_financeClosingCosts,
                        loan.m_closingCosts, loan.m_costs, loan.m_startingAmount, loan.m_term,
                        loan.m_interestRate, loan.m_frequencyCode, loan.m_actualPayment,
                        loan.m_who);
    };
    return entries(*this) == entries(other);
}

Money CLoan::StartingPrinciple() const {
    Money principal = m_startingAmount;
    if (m_financePoints) {
        principal += Money::FromDouble(m_points.Of(m_startingAmount.ToDouble()));
    }
    if (m_financeClosingCosts) {
        principal += m_closingCosts;
    }
    return principal;
}

Money CLoan::PandI() const {
    return PrincipalAndInterest(StartingPrinciple(), m_interestRate, m_term, m_frequencyCode);
}

Money CLoan::LeastPayment(Money pAndI) const {
    return pAndI.IsZero() ? Money()
                          : pAndI + EscrowShare(m_frequencyCode, m_context->EscrowMonthly());
}

Money CLoan::Payment(Money pAndI) {
    const Money payment = LeastPayment(pAndI);
    if (payment > m_actualPayment && !pAndI.IsZero()) {
        Change(m_actualPayment, payment);
        m_forced = true;
    }
    return payment;
}

bool CLoan::Forced() { return std::exchange(m_forced, false); }

void CLoan::SetActualPayment(Money payment) {
    const Money least = Payment();
    if (payment <= Money() || payment >= least) {
        Change(m_actualPayment, payment);
        return;
    }
    m_context->PaymentRefused();
    Change(m_actualPayment, least);
}

Date CLoan::PayoffDate() {
    m_interest = Money(); // remains if the schedule fails
    const Money principal = StartingPrinciple();
    if (principal.IsZero() || m_interestRate.IsZero() || m_frequencyCode.IsNone() ||
        m_actualPayment.IsZero()) {
        return {};
    }
    const Payoff payoff =
        RunToPayoff({.balance = principal,
                     .rate = m_interestRate,
                     .payment = m_actualPayment,
                     .escrowShare = EscrowShare(m_frequencyCode, m_context->EscrowMonthly()),
                     .frequency = FindFrequency(m_frequencyCode),
                     .start = m_context->Today()});
    m_interest = payoff.interest;
    return payoff.date;
}

CLoan MakeOffer(LoanContext& context, const OfferValues& values) {
    CLoan offer(context);
    // First, while there is no payment to refuse it by.
    offer.SetActualPayment(values.actualPayment);
    offer.SetStartingAmount(values.startingAmount);
    offer.SetPoints(values.points);
    offer.SetFinancePoints(values.financePoints);
    // Before the rate, which sets a missing one.
    offer.SetTerm(values.term);
    offer.SetInterestRate(values.rate);
    offer.SetFrequencyCode(values.frequency);
    return offer;
}

} // namespace quend::calc
