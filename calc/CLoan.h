#pragma once

#include "Date.h"
#include "Money.h"
#include "Quantities.h"

#include <QString>

namespace quend::calc {

/// What an offer needs from its worksheet, and what it reports to it.
class LoanContext {
public:
    LoanContext() = default;
    LoanContext(const LoanContext&) = delete;
    LoanContext& operator=(const LoanContext&) = delete;
    LoanContext(LoanContext&&) = delete;
    LoanContext& operator=(LoanContext&&) = delete;
    virtual ~LoanContext() = default;

    /// The default term.
    virtual Months LoanTerm() const = 0;
    virtual Money EscrowMonthly() const = 0;
    virtual Date Today() const = 0;

    /// A value that is saved with the loan has changed.
    virtual void MarkDirty() = 0;
    /// A positive actual payment below the computed payment was refused. The worksheet informs the
    /// user.
    virtual void PaymentRefused() = 0;
};

/// What is entered for an offer and its worksheet's amount.
struct OfferValues {
    Money startingAmount;
    Percent points;
    bool financePoints = false;
    Months term;
    Rate rate;
    FrequencyCode frequency;
    Money actualPayment;
};

/// One loan offer: its inputs, and the payment, payoff date and interest that follow from them.
/// It shows no message and does not know its row. Results are computed when read, not cached. The
/// context must outlive it.
///
/// A missing input (zero, or no frequency) gives zero results or no date, never a failure. A result
/// outside the range of money or of a date raises OverflowFailure from the reading function.
class CLoan {
public:
    explicit CLoan(LoanContext& context) : m_context(&context) {}

    // Every setter marks the worksheet dirty when its value differs from the stored one, except for
    // the starting amount, which belongs to the worksheet.
    bool FinancePoints() const { return m_financePoints; }
    void SetFinancePoints(bool finance) { Change(m_financePoints, finance); }
    Percent Points() const { return m_points; }
    void SetPoints(Percent points) { Change(m_points, points); }
    bool FinanceClosingCosts() const { return m_financeClosingCosts; }
    void SetFinanceClosingCosts(bool finance) { Change(m_financeClosingCosts, finance); }
    Money ClosingCosts() const { return m_closingCosts; }
    void SetClosingCosts(Money costs) { Change(m_closingCosts, costs); }
    /// What the lender charges besides points, paid in cash; negative for a credit. No result
    /// depends on it.
    Money Costs() const { return m_costs; }
    void SetCosts(Money costs) { Change(m_costs, costs); }
    void SetStartingAmount(Money amount) { m_startingAmount = amount; }
    Months Term() const { return m_term; }
    void SetTerm(Months term) { Change(m_term, term); }
    Rate InterestRate() const { return m_interestRate; }
    /// A nonzero rate sets a missing term to the worksheet's default term.
    void SetInterestRate(Rate rate);
    const calc::FrequencyCode& FrequencyCode() const { return m_frequencyCode; }
    /// Any text is stored unchanged; an unknown code is not a failure.
    void SetFrequencyCode(const calc::FrequencyCode& code) { Change(m_frequencyCode, code); }
    /// The frequency's name in the current language; empty for an unknown code.
    QString Frequency() const;
    /// A text that names no frequency clears the code.
    void SetFrequency(const QString& text);
    const QString& Who() const { return m_who; }
    void SetWho(const QString& lender) { Change(m_who, lender); }
    /// Whether the same was entered for both; results do not count.
    bool HasSameEntries(const CLoan& other) const;

    /// The amount that the payments repay: the starting amount plus financed points (to the nearest
    /// ten-thousandth) and financed closing costs.
    Money StartingPrinciple() const;
    /// Principal and interest of one payment, in whole cents.
    Money PandI() const;
    /// One payment with its share of the escrow. If the actual payment is lower, raises it to this
    /// value, marks the worksheet dirty and sets Forced. While PandI is zero, returns zero and
    /// raises nothing.
    Money Payment() { return Payment(PandI()); }
    // The same for a caller that has just read PandI, which takes long to compute.
    Money Payment(Money pAndI);
    /// As Payment, but raises and marks nothing.
    Money LeastPayment(Money pAndI) const;
    /// True once after Payment has raised the actual payment; reading it clears it.
    bool Forced();

    Money ActualPayment() const { return m_actualPayment; }
    /// Reads Payment first. A positive value below it is refused: the context is notified once, and
    /// the computed payment is stored instead. Zero and less are accepted.
    void SetActualPayment(Money payment);

    /// The day on which the actual payment, made from today on, has repaid the loan. No date while
    /// principal, rate, frequency code or actual payment is missing.
    Date PayoffDate();
    /// The total interest of the last PayoffDate call; zero before the first call and after a
    /// failed one.
    Money Interest() const { return m_interest; }

private:
    template <typename Value>
    void Change(Value& stored, const Value& value) {
        if (stored != value) {
            stored = value;
            m_context->MarkDirty();
        }
    }

    LoanContext* m_context;
    bool m_financePoints = false;
    Percent m_points;
    bool m_financeClosingCosts = false;
    Money m_closingCosts;
    Money m_costs;
    Money m_startingAmount;
    Months m_term;
    Rate m_interestRate;
    calc::FrequencyCode m_frequencyCode;
    Money m_actualPayment;
    bool m_forced = false;
    Money m_interest;
    QString m_who;
};

/// An offer with these values. A nonzero rate without a term gives it the default term; the actual
/// payment is stored however low it is. The context must outlive the offer.
CLoan MakeOffer(LoanContext& context, const OfferValues& values);

} // namespace quend::calc
