// Recalculates the computed values of the worksheet when inputs change.

#include "Failure.h"
#include "Frequency.h"
#include "ModelNames.h"
#include "Payment.h"
#include "Schedule.h"
#include "Worksheet.h"

#include <array>
#include <exception>

namespace quend::model {

namespace {

/// Runs every step, even after one has failed, and throws the first failure at the end: one offer
/// that cannot be computed must not prevent the others from being shown.
class AllSteps {
public:
    template <class Step>
    void Run(Step step) {
        try {
            step();
        } catch (...) {
            if (!m_first) {
                m_first = std::current_exception();
            }
        }
    }
    void ThrowFirst() const {
        if (m_first) {
            std::rethrow_exception(m_first);
        }
    }

private:
    std::exception_ptr m_first;
};

} // namespace

void Worksheet::Recalculate(unsigned steps, Row row) {
    m_pending.Add(steps, row);
    if (!m_deferred) {
        AllSteps all;
        ComputePending([&](Field /*result*/, const auto& step) { all.Run(step); });
        all.ThrowFirst();
    }
}

void Worksheet::ComputePending(const RunStep& run) {
    if (m_pending.Take(Pending::Escrow)) {
        run({FieldId::MonthlyEscrow}, [this] { RecalculateEscrow(); });
    }
    const bool all = m_pending.Take(Pending::Offers);
    for (Row row{0}; row <= HighestOfferRow(); ++row.value) {
        const bool payoff = m_pending.TakePayoff(row);
        if (m_pending.TakeOffer(row) || all) {
            run({FieldId::PandI, row}, [this, row] { RecalculateOffer(row); });
        } else if (payoff) {
            run({FieldId::PayoffDate, row}, [this, row] { RecalculatePayoff(row); });
        }
    }
    if (m_pending.Take(Pending::Payment)) {
        run({FieldId::CurPayment}, [this] { RecalculateCurrentPayment(); });
    }
    if (m_pending.Take(Pending::Schedule)) {
        run({FieldId::CurPayoffDate}, [this] { RecalculateCurrentSchedule(); });
    }
}

void Worksheet::RecalculateEscrow() {
    m_loan.escrowMonthly = Money();
    try {
        m_loan.escrowMonthly = MonthlyEscrow(m_loan.taxes, m_loan.insurance);
    } catch (const Failure&) {
        Show({FieldId::MonthlyEscrow});
        throw;
    }
    Show({FieldId::MonthlyEscrow});
}

void Worksheet::RecalculateOffer(Row row) {
    CLoan& offer = OfferIn(row);
    constexpr std::array results{FieldId::PandI, FieldId::Payment, FieldId::PayoffDate,
                                 FieldId::Interest};
    std::size_t shown = 0;
    try {
        const Money pAndI = offer.PandI();
        ShowText({FieldId::PandI, row}, pAndI);
        shown = 1;
        ShowText({FieldId::Payment, row}, offer.Payment(pAndI));
        if (offer.Forced()) {
            Show({FieldId::ActualPayment, row});
            MarkRaised(row);
        }
        shown = 2;
        // The payoff date needs an intended payment that is too low to be raised first, which the
        // payment does; the interest is that of the schedule just run.
        ShowPayoff(offer, row);
    } catch (const Failure&) {
        for (; shown < results.size(); ++shown) {
            m_display->ShowText({results.at(shown), row}, {});
        }
        m_display->ShowToolTip({FieldId::PayoffDate, row}, false);
        throw;
    }
}

void Worksheet::ShowPayoff(CLoan& offer, Row row) {
    const Date payoff = offer.PayoffDate();
    ShowText({FieldId::PayoffDate, row}, payoff);
    m_display->ShowToolTip({FieldId::PayoffDate, row}, !payoff.IsNone());
    ShowText({FieldId::Interest, row}, offer.Interest());
    m_display->ShowToolTip({FieldId::Interest, row}, false);
}

void Worksheet::MarkRaised(Row row) {
    m_raised.insert(OfferIndexOfRow(row));
    m_display->ShowMark({FieldId::ActualPayment, row}, Mark::Raised);
    m_display->PaymentRaised();
}

/// Only these results depend on the intended payment.
void Worksheet::RecalculatePayoff(Row row) {
    try {
        ShowPayoff(OfferIn(row), row);
    } catch (const Failure&) {
        m_display->ShowText({FieldId::PayoffDate, row}, {});
        m_display->ShowToolTip({FieldId::PayoffDate, row}, false);
        m_display->ShowText({FieldId::Interest, row}, {});
        throw;
    }
}

void Worksheet::RecalculateCurrentPayment() {
    const bool noAmount = m_current.amount.IsZero();
    const bool noTerm = m_current.term.IsZero();
    const bool noRate = m_current.rate.IsZero();
    ShowMissing();
    if (!(noAmount && noTerm && noRate) && m_current.frequency.IsNone()) {
        Write(m_current.frequency, FrequencyCode(QStringLiteral("M")),
              FieldId::CurPaymentFrequency);
    }
    if (noAmount || noTerm || noRate) {
        m_current.pAndI = Money();
        if (!m_current.payment.IsZero()) {
            Write(m_current.payment, Money(), FieldId::CurPayment);
        }
        return;
    }
    try {
        m_current.pAndI = PrincipalAndInterest(m_current.amount, m_current.rate, m_current.term,
                                               m_current.frequency);
        // The whole monthly escrow at any frequency: the current loan is billed that way.
        Write(m_current.payment, m_current.pAndI + m_loan.escrowMonthly, FieldId::CurPayment);
    } catch (const Failure&) {
        m_current.pAndI = Money();
        m_current.payment = Money();
        Show({FieldId::CurPayment});
        throw;
    }
}

/// If nobody entered a current loan, nothing is missing.
void Worksheet::ShowMissing() {
    const bool noAmount = m_current.amount.IsZero();
    const bool noTerm = m_current.term.IsZero();
    const bool noRate = m_current.rate.IsZero();
    const bool none = noAmount && noTerm && noRate;
    MarkMissing(FieldId::CurLoanAmount, noAmount && !none);
    MarkMissing(FieldId::CurLoanTerm, noTerm && !none);
    MarkMissing(FieldId::CurInterestRate, noRate && !none);
}

void Worksheet::MarkMissing(FieldId field, bool missing) {
    m_display->ShowMark({field}, missing ? Mark::Missing : Mark::None);
}

void Worksheet::RecalculateCurrentSchedule() {
    ScheduleTotals totals;
    const auto show = [&] {
        m_current.payoffDate = totals.payoff;
        m_current.amountLeft = totals.paid;
        m_current.interestLeft = totals.interest;
        Show({FieldId::CurPayoffDate});
        m_display->ShowToolTip({FieldId::CurPayoffDate}, false);
        Show({FieldId::CurAmountLeft});
        Show({FieldId::CurInterestLeft});
    };
    try {
        if (!m_current.balance.IsZero() && !m_current.actualPayment.IsZero()) {
            totals = RunSchedule({
                .balance = m_current.balance,
                .rate = m_current.rate,
                .payment = m_current.actualPayment,
                .escrowShare = EscrowShare(m_current.actualFrequency, m_loan.escrowMonthly),
                .frequency = FindFrequency(m_current.actualFrequency),
                .start = m_current.nextPayment,
            });
        }
    } catch (const Failure&) {
        show();
        throw;
    }
    show();
}

} // namespace quend::model
