#pragma once

#include "CLoan.h"
#include "FieldValue.h"
#include "ModelNames.h"
#include "OfferOrder.h"
#include "WorksheetDisplay.h"

#include <functional>
#include <set>
#include <vector>

namespace quend::model {

/// One worksheet: the loan wanted, the current loan and the offers, one in each row.
///
/// Each value is a property with a getter and a setter. A setter stores, sets Dirty if an input
/// changed, shows the value in its display format and recalculates what depends on it. Terms are
/// months, rates fractions, dates whole days; zero means "not entered" and shows as an empty field.
///
/// If a setter fails (Failure.h), every input keeps either its old or its new value, results that
/// could not be computed show as empty, all other recalculations finish, and then the failure is
/// thrown.
///
/// Has no widgets, asks the user nothing, and stores nothing permanently.
class Worksheet final : public LoanContext {
public:
    Worksheet(WorksheetDisplay& display, FieldFormats texts, std::function<Date()> today);
    // The offers hold a pointer to their worksheet.
    Worksheet(const Worksheet&) = delete;
    Worksheet& operator=(const Worksheet&) = delete;
    Worksheet(Worksheet&&) = delete;
    Worksheet& operator=(Worksheet&&) = delete;
    ~Worksheet() override = default;

    // The loan wanted. Types and frequencies are codes; ChoiceText gives their texts.
    QString LoanName() const { return m_loan.name; }
    /// One blank counts as no name, too.
    static bool IsEmptyName(const QString& name) { return name.isEmpty() || name == u" "; }
    void SetLoanName(const QString& name);
    QString LoanType() const { return m_loan.type; }
    void SetLoanType(const QString& code);
    Money LoanAmount() const { return m_loan.amount; }
    void SetLoanAmount(Money amount);
    int LoanTerm() const override { return m_loan.term; }
    void SetLoanTerm(int months);
    Money EscrowTaxes() const { return m_loan.taxes; }
    void SetEscrowTaxes(Money perYear);
    Money EscrowInsurance() const { return m_loan.insurance; }
    void SetEscrowInsurance(Money perYear);
    Money EscrowMonthly() const override { return m_loan.escrowMonthly; }

    // The current loan.
    Money CurrentLoanAmount() const { return m_current.amount; }
    void SetCurrentLoanAmount(Money amount);
    int CurrentTerm() const { return m_current.term; }
    void SetCurrentTerm(int months);
    double CurrentInterestRate() const { return m_current.rate; }
    void SetCurrentInterestRate(double fraction);
    QString CurrentFrequency() const;
    void SetCurrentFrequency(const QString& text);
    Money CurrentPandI() const { return m_current.pAndI; }
    Money CurrentPayment() const { return m_current.payment; }
    void SetCurrentPayment(Money payment);
    Money CurrentBalance() const { return m_current.balance; }
    void SetCurrentBalance(Money balance);
    Money CurrentActualPayment() const { return m_current.actualPayment; }
    void SetCurrentActualPayment(Money payment);
    QString CurrentActualFrequency() const;
    void SetCurrentActualFrequency(const QString& text);
    Date CurrentNextPayment() const { return m_current.nextPayment; }
    void SetCurrentNextPayment(Date date);
    Money CurrentAmountLeft() const { return m_current.amountLeft; }
    Money CurrentInterestLeft() const { return m_current.interestLeft; }
    Date CurrentPayoffDate() const { return m_current.payoffDate; }

    // The offers. Each row has one calculator.
    Row HighestOfferRow() const { return Row{static_cast<int>(m_offers.size()) - 1}; }
    /// Adds calculators for the offers after `from` up to `to`; existing ones are kept.
    void GrowOfferArrays(Row from, Row to);
    OfferIndex OfferIndexOfRow(Row row) const { return m_order.OfferIndexOfRow(row); }
    const CLoan& OfferOfRow(Row row) const { return m_offers.at(OfferIndexOfRow(row).value); }
    /// The calculator itself, for callers that set a whole offer; ShowOffer then shows it.
    CLoan& OfferOfRow(Row row) { return m_offers.at(OfferIndexOfRow(row).value); }
    /// All offers in the order of entry, whatever the order of the rows.
    const std::vector<CLoan>& OffersAsEntered() const { return m_offers; }
    const CLoan& Offer(OfferIndex offer) const { return m_offers.at(offer.value); }
    CLoan& Offer(OfferIndex offer) { return m_offers.at(offer.value); }
    /// Shows the inputs of the offer in this row, then calculates it and shows the results.
    void ShowOffer(Row row);

    // The order of the rows. New entries do not change it; only a sort or Clear does.
    SortOrder Order() const { return m_order.Order(); }
    /// Sorts by the keys in SortKeys.h, from the present values: nothing is entered, raised or
    /// marked dirty. Call ShowOffers afterwards to show the rows.
    void SortByPayoffDate();
    void SortByInterest();
    /// Shows every row without changing its offer. No intended payment is raised. A result that
    /// cannot be computed is empty; the failure was reported when the value was entered.
    void ShowOffers();
    /// Removes the marks of raised payments.
    void ClearRaisedMarks();

    // The worksheet as a whole.
    /// Restores the initial state: nothing entered, the next payment today, nothing to save. The
    /// rows stay, empty.
    void Clear();
    /// Sets whether terms are typed and shown in months or in years, and shows them again.
    void SetTermInMonths(bool inMonths);

    // For the fields: one way in and out for every value that is typed, picked or ticked.
    const FieldFormats& Texts() const { return m_texts; }
    QString EntryText(Field field) const;
    /// Whether a text has the form of the field's number and has a value; a lone sign has none.
    /// Throws OverflowFailure for a number that the field cannot hold.
    bool Accepts(Field field, const QString& text) const;
    /// Whether this character may be typed into the field.
    bool AllowsKey(FieldId field, QChar key) const;
    /// Stores the text of a typed field. Throws ConversionFailure or OverflowFailure.
    void StoreTyped(Field field, const QString& text);
    /// Stores the field's present value again. An untouched field follows the same rules as a
    /// changed one when it is left, but keeps the precision that its text cannot show. Throws only
    /// if something changed, such as a term that was missing.
    void StoreAgain(Field field);
    /// Call when the list or the box of financed points loses the focus. As in StoreAgain, an
    /// unchanged value throws only if something else changed.
    void LeaveChoice(Field field, const QString& text);
    void LeaveFinancePoints(Row row, bool financed);
    /// Stores the text of a number field. Throws ConversionFailure or OverflowFailure.
    void StoreNumber(Field field, const QString& text);
    /// The same for an offer's number that is already converted: points, rate, term or intended
    /// payment.
    void StoreOfferNumber(Field field, const FieldNumber& number);
    void StoreChoice(Field field, const QString& text);
    void StoreFinancePoints(Row row, bool financed);
    void StoreWho(Row row, const QString& who);
    /// Shows the value of a field in its display format. Not for the results of an offer: they are
    /// not stored, and RecalculateOffer shows them.
    void Show(Field field) const;
    /// Shows every choice again in the current language.
    void ShowChoices() const;

    // The four recalculations.
    void RecalculateEscrow();
    void RecalculateOffer(Row row);
    void RecalculateCurrentPayment();
    void RecalculateCurrentSchedule();

    /// Whether anything has changed that a save would store.
    bool Dirty() const { return m_dirty; }
    void ClearDirty() { m_dirty = false; }
    /// Whether the user has been told that intended payments are raised.
    bool PaymentNoticeShown() const { return m_paymentNoticeShown; }
    void SetPaymentNoticeShown(bool shown) { m_paymentNoticeShown = shown; }

    Date Today() const override { return m_today(); }
    void MarkDirty() override { m_dirty = true; }
    void PaymentRefused() override;

private:
    struct Loan {
        QString name;
        QString type;
        Money amount;
        int term = 0;
        Money taxes;
        Money insurance;
        Money escrowMonthly;
    };
    struct CurrentLoan {
        Money amount;
        int term = 0;
        double rate = 0;
        QString frequency;
        Money pAndI;
        Money payment;
        Money balance;
        Money actualPayment;
        QString actualFrequency;
        Date nextPayment;
        Money amountLeft;
        Money interestLeft;
        Date payoffDate;
    };
    /// What to recalculate after a setter, each at most once and in this order.
    enum Pending : unsigned {
        Nothing = 0,
        Escrow = 1,
        Offers = 2,
        Payment = 4,
        Schedule = 8,
    };

    /// Stores and shows an input; sets Dirty if it changed.
    template <class Value>
    void Write(Value& stored, const Value& value, FieldId field) {
        if (stored != value) {
            stored = value;
            m_dirty = true;
        }
        Show({field});
    }
    template <class Step>
    void TellOnlyNews(Step step);
    void Store(Field field, const FieldNumber& number);
    void Recalculate(unsigned pending);
    void SetStartingAmounts();
    void StoreLoanNumber(FieldId field, const FieldNumber& number);
    void StoreActualPayment(Row row, Money payment);
    void ShowAmount(Field field, Money amount) const;
    void ShowDate(Field field, Date date) const;
    void ShowPayoff(CLoan& offer, Row row);
    void ShowPayment(CLoan& offer, Row row);
    void ShowAsItStands(Row row);
    void ShowResultAsItStands(CLoan& offer, Field field);
    template <class Key, class KeyOf>
    void SortBy(SortOrder order, KeyOf keyOf);
    void MarkRaised(Row row);
    void MarkMissing(FieldId field, bool missing);
    FieldNumber NumberOf(Field field) const;
    QString ChoiceText(Field field) const;
    void ShowLoan() const;

    WorksheetDisplay* m_display;
    FieldFormats m_texts;
    std::function<Date()> m_today;
    Loan m_loan;
    CurrentLoan m_current;
    std::vector<CLoan> m_offers;
    OfferOrder m_order;
    std::set<OfferIndex> m_raised; // offers whose intended payment is marked
    bool m_dirty = false;
    bool m_paymentNoticeShown = false;
    bool m_paymentRefused = false;
};

} // namespace quend::model
