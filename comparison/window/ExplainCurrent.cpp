#include "ExplainedLoan.h"

#include "CompareTextNumbers.h"
#include "LoanSchedule.h"

namespace quend::compare {

namespace {

using namespace TextNumber;

QString Terms(const ExplainedCurrent& loan) {
    return loan.say(CompareCurrentTerms, loan.entered.balance, loan.entered.rate,
                    loan.PaymentsAYear());
}

QString Monthly(const ExplainedCurrent& loan) {
    return loan.say(CompareMonthlyOfCurrent, loan.figures.paymentCompared - loan.EscrowOfPayment(),
                    loan.PaymentsAYear(), loan.figures.monthlyEquivalent);
}

QString PaymentCompared(const ExplainedCurrent& loan) {
    const Money payment = loan.figures.paymentCompared;
    if (payment == loan.entered.actualPayment) {
        return loan.say(CompareActualOfCurrent, payment);
    }
    return loan.say(CompareSameForCurrent, loan.worksheet.input.monthlyPayment,
                    payment - loan.EscrowOfPayment(), loan.PaymentsAYear(), loan.EscrowOfPayment(),
                    payment);
}

QString CostByHorizon(const ExplainedCurrent& loan) {
    return loan.say(CompareCostOfCurrent, loan.kept, *loan.result.costByHorizon);
}

QString Balance(const ExplainedCurrent& loan) {
    const Money owed = *loan.result.balanceAtHorizon;
    const Money today = loan.entered.balance;
    return owed.IsZero()
               ? loan.say(CompareBalanceOfCurrentZero, loan.kept, today, loan.figures.payoff)
               : loan.say(CompareBalanceOfCurrent, loan.kept, owed, today, today - owed);
}

QString TotalCost(const ExplainedCurrent& loan) {
    return loan.say(CompareTotalOfCurrent, loan.figures.payoff, loan.figures.totalCost);
}

QString Payoff(const ExplainedCurrent& loan) {
    const auto rows = ScheduleOf(loan.worksheet.input, CurrentLoanPlace);
    const Money last = rows->back().payment;
    if (rows->size() == 1) {
        return loan.say(ComparePayoffOfCurrentAtOnce, loan.figures.payoff, last);
    }
    return loan.say(ComparePayoffOfCurrent, loan.figures.payoff, rows->back().number,
                    rows->front().date, rows->front().payment, last);
}

QString PaymentForHorizon(const ExplainedCurrent& loan) {
    if (const auto& payment = loan.result.paymentForHorizon) {
        return loan.say(CompareEnoughForCurrent, *payment, loan.kept, loan.entered.actualPayment);
    }
    const Date next = loan.entered.nextPayment;
    return loan.say(CompareNotEnoughForCurrent, loan.kept,
                    next.IsNone() ? loan.worksheet.input.today : next);
}

} // namespace

QString ExplainCurrent(const ExplainedCurrent& loan, Figure figure) {
    switch (figure) {
    case Figure::Lender:
        return Terms(loan);
    case Figure::MonthlyEquivalent:
        return Monthly(loan);
    case Figure::PaymentCompared:
        return PaymentCompared(loan);
    case Figure::CostByHorizon:
        return CostByHorizon(loan);
    case Figure::BalanceAtHorizon:
        return Balance(loan);
    case Figure::TotalCost:
        return TotalCost(loan);
    case Figure::PayoffDate:
        return Payoff(loan);
    case Figure::PaymentForHorizon:
        return PaymentForHorizon(loan);
    default:
        return {};
    }
}

} // namespace quend::compare
