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

void Worksheet::Recalculate(unsigned pending) {
    AllSteps steps;
    if ((pending & Escrow) != 0) {
        // Every payment includes its share of the escrow.
        steps.Run([&] { RecalculateEscrow(); });
        pending |= Offers | Payment | Schedule;
    }
    if ((pending & Offers) != 0) {
        for (Row row{0}; row <= HighestOfferRow(); ++row.value) {
            steps.Run([&] { RecalculateOffer(row); });
        }
    }
    if ((pending & Payment) != 0) {
        steps.Run([&] { RecalculateCurrentPayment(); });
    }
    if ((pending & Schedule) != 0) {
        steps.Run([&] { RecalculateCurrentSchedule(); });
    }
    steps.ThrowFirst();
}

void Worksheet::RecalculateEscrow() {
    constexpr double monthsPerYear = 12;
    m_loan.escrowMonthly = Money();
    try {
        m_loan.escrowMonthly =
            Money::FromDoubleInCents((m_loan.taxes + m_loan.insurance).ToDouble() / monthsPerYear);
    } catch (const Failure&) {
        Show({FieldId::MonthlyEscrow});
        throw;
    }
    Show({FieldId::MonthlyEscrow});
}

void Worksheet::RecalculateOffer(Row row) {
    CLoan& offer = OfferOfRow(row);
    constexpr std::array results{FieldId::PandI, FieldId::Payment, FieldId::PayoffDate,
                                 FieldId::Interest};
    std::size_t shown = 0;
    try {
        ShowAmount({FieldId::PandI, row}, offer.PandI());
        shown = 1;
        ShowPayment(offer, row);
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

void Worksheet::ShowPayment(CLoan& offer, Row row) {
    ShowAmount({FieldId::Payment, row}, offer.Payment());
    if (offer.Forced()) {
        MarkRaised(row);
    }
}

void Worksheet::ShowPayoff(CLoan& offer, Row row) {
    const Date payoff = offer.PayoffDate();
    ShowDate({FieldId::PayoffDate, row}, payoff);
    m_display->ShowToolTip({FieldId::PayoffDate, row}, !payoff.IsNone());
    ShowAmount({FieldId::Interest, row}, offer.Interest());
    m_display->ShowToolTip({FieldId::Interest, row}, false);
}

void Worksheet::MarkRaised(Row row) {
    const Field field{FieldId::ActualPayment, row};
    Show(field);
    m_raised.insert(OfferIndexOfRow(row));
    m_display->ShowMark(field, Mark::Raised);
    m_display->PaymentRaised();
}

/// The intended payment is the only input that the calculator may replace. Only what depends on it
/// is shown again.
void Worksheet::StoreActualPayment(Row row, Money payment) {
    CLoan& offer = OfferOfRow(row);
    const Field field{FieldId::ActualPayment, row};
    m_paymentRefused = false;
    try {
        offer.SetActualPayment(payment);
    } catch (const Failure&) {
        Show(field);
        throw;
    }
    // The check reads the payment. That may have raised a value that this one has just replaced.
    static_cast<void>(offer.Forced());
    if (m_paymentRefused) {
        MarkRaised(row);
    } else {
        Show(field);
    }
    try {
        ShowPayoff(offer, row);
    } catch (const Failure&) {
        ShowDate({FieldId::PayoffDate, row}, {});
        m_display->ShowToolTip({FieldId::PayoffDate, row}, false);
        ShowAmount({FieldId::Interest, row}, {});
        throw;
    }
}

void Worksheet::RecalculateCurrentPayment() {
    const bool noAmount = m_current.amount.IsZero();
    const bool noTerm = m_current.term == 0;
    const bool noRate = m_current.rate == 0;
    const bool none = noAmount && noTerm && noRate;
    // If nobody entered a current loan, nothing is missing.
    MarkMissing(FieldId::CurLoanAmount, noAmount && !none);
    MarkMissing(FieldId::CurLoanTerm, noTerm && !none);
    MarkMissing(FieldId::CurInterestRate, noRate && !none);
    if (!none && m_current.frequency.isEmpty()) {
        SetCurrentFrequency(FrequencyCodeToText(QStringLiteral("M")));
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

void Worksheet::MarkMissing(FieldId field, bool missing) {
    m_display->ShowMark({field}, missing ? Mark::Missing : Mark::None);
}

void Worksheet::RecalculateCurrentSchedule() {
    ScheduleTotals totals;
    const auto show = [&] {
        m_current.payoffDate = totals.payoff;
        m_current.amountLeft = totals.paid;
        m_current.interestLeft = totals.interest;
        ShowDate({FieldId::CurPayoffDate}, totals.payoff);
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

void Worksheet::ShowAmount(Field field, Money amount) const {
    m_display->ShowText(field, m_texts.DisplayText(ValueKind::Amount, amount));
}

void Worksheet::ShowDate(Field field, Date date) const {
    m_display->ShowText(field, date.IsNone() ? QString() : m_texts.Formats().ShortDate(date));
}

} // namespace quend::model
