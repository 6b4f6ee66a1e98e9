#pragma once

#include "CLoan.h"
#include "FieldValue.h"
#include "LoanValues.h"
#include "ModelNames.h"
#include "OfferOrder.h"
#include "Pending.h"
#include "WorksheetDisplay.h"
#include "WorksheetState.h"

#include <functional>
#include <optional>
#include <set>
#include <vector>

namespace quend::model {

/// One worksheet: the loan wanted, the current loan and the offers, one in each row.
///
/// Every value enters through Store: typed, dropped, picked, ticked or loaded. Store keeps it, sets
/// Dirty if an input changed, shows it in its display format and recalculates what depends on it.
/// Zero means "not entered" and shows as an empty field.
///
/// If storing fails (Failure.h), every input keeps either its old or its new value, results that
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

    // Any field, by one table (WorksheetFields.cpp).
    /// The stored value. Not for the results of an offer: they are not stored.
    FieldValue Value(Field field) const;
    /// The same for a field of one offer, whatever the order of the rows.
    FieldValue Value(FieldId field, OfferIndex offer) const;
    /// Stores an input, or the current payment. The value is of the field's kind.
    void Store(Field field, const FieldValue& value);
    /// The same for a field that is left, where the value may be the stored one: follows the rules
    /// of a changed value, but throws only if something changed, such as a term that was missing.
    void StoreAgain(Field field, const FieldValue& value);
    /// The value of a typed or picked text, as FieldFormats::ReadTyped.
    std::optional<FieldValue> Read(FieldId field, const QString& text) const;
    QString EntryText(Field field) const { return m_texts.EntryText(Value(field)); }
    /// Shows the stored value in its display format. Not for the results of an offer.
    void Show(Field field) const;
    /// Shows every choice again in the current language.
    void ShowChoices() const;
    const FieldFormats& Texts() const { return m_texts; }
    /// Sets whether terms are typed and shown in months or in years, and shows them again.
    void SetTermInMonths(bool inMonths);

    /// Runs a recalculation; `result` is the first field that it shows. Catches what `step` throws.
    using RunStep = std::function<void(Field result, const std::function<void()>& step)>;
    /// Calls `store`, which stores values; they are shown, but nothing is computed until its end.
    /// Then passes each recalculation that is due to `run`, once; `run` may store further values.
    void StoreTogether(const std::function<void()>& store, const RunStep& run);

    // The loan wanted.
    QString LoanName() const { return m_loan.name; }
    /// One blank counts as no name, too.
    static bool IsEmptyName(const QString& name) { return name.isEmpty() || name == u" "; }
    void SetLoanName(const QString& name) { Store({FieldId::LoanName}, name); }
    LoanTypeCode LoanType() const { return m_loan.type; }
    void SetLoanType(const LoanTypeCode& code) { Store({FieldId::LoanType}, code); }
    Money LoanAmount() const { return m_loan.amount; }
    void SetLoanAmount(Money amount) { Store({FieldId::LoanAmount}, amount); }
    Months LoanTerm() const override { return m_loan.term; }
    void SetLoanTerm(Months term) { Store({FieldId::LoanTerm}, term); }
    Money EscrowTaxes() const { return m_loan.taxes; }
    void SetEscrowTaxes(Money perYear) { Store({FieldId::AnnualTaxes}, perYear); }
    Money EscrowInsurance() const { return m_loan.insurance; }
    void SetEscrowInsurance(Money perYear) { Store({FieldId::AnnualInsurance}, perYear); }
    Money EscrowMonthly() const override { return m_loan.escrowMonthly; }

    // The current loan. Its frequencies are texts of the current language.
    Money CurrentLoanAmount() const { return m_current.amount; }
    void SetCurrentLoanAmount(Money amount) { Store({FieldId::CurLoanAmount}, amount); }
    Months CurrentTerm() const { return m_current.term; }
    void SetCurrentTerm(Months term) { Store({FieldId::CurLoanTerm}, term); }
    Rate CurrentInterestRate() const { return m_current.rate; }
    void SetCurrentInterestRate(Rate rate) { Store({FieldId::CurInterestRate}, rate); }
    QString CurrentFrequency() const;
    void SetCurrentFrequency(const QString& text);
    Money CurrentPandI() const { return m_current.pAndI; }
    Money CurrentPayment() const { return m_current.payment; }
    void SetCurrentPayment(Money payment) { Store({FieldId::CurPayment}, payment); }
    Money CurrentBalance() const { return m_current.balance; }
    void SetCurrentBalance(Money balance) { Store({FieldId::CurrentBalance}, balance); }
    Money CurrentActualPayment() const { return m_current.actualPayment; }
    void SetCurrentActualPayment(Money payment) { Store({FieldId::CurActualPayment}, payment); }
    QString CurrentActualFrequency() const;
    void SetCurrentActualFrequency(const QString& text);
    Date CurrentNextPayment() const { return m_current.nextPayment; }
    void SetCurrentNextPayment(Date date) { Store({FieldId::NextPayment}, date); }
    Money CurrentAmountLeft() const { return m_current.amountLeft; }
    Money CurrentInterestLeft() const { return m_current.interestLeft; }
    Date CurrentPayoffDate() const { return m_current.payoffDate; }

    // The offers. Each row has one calculator.
    Row HighestOfferRow() const { return Row{static_cast<int>(m_offers.size()) - 1}; }
    /// Adds calculators for the offers after `from` up to `to`; existing ones are kept.
    void GrowOfferArrays(Row from, Row to);
    OfferIndex OfferIndexOfRow(Row row) const { return m_order.OfferIndexOfRow(row); }
    Row RowOfOffer(OfferIndex offer) const { return m_order.RowOfOffer(offer); }
    const CLoan& OfferOfRow(Row row) const { return Offer(OfferIndexOfRow(row)); }
    const CLoan& Offer(OfferIndex offer) const { return m_offers.at(offer.value); }
    std::size_t OfferCount() const { return m_offers.size(); }

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

    /// Restores the initial state: nothing entered, the next payment today, nothing to save, no
    /// step to undo. The rows stay, empty.
    void Clear();

    // Whole offers, by their places in the order of entry. Each change is one step.
    bool IsBlank(OfferIndex offer);
    /// The offer of the first blank row. None: every row is used.
    std::optional<OfferIndex> FirstBlankOffer();
    void ClearOffer(OfferIndex offer);
    /// Copies all that was entered for `from`, the lender, too.
    void CopyOffer(OfferIndex from, OfferIndex to);
    /// `offer` takes the place of `other`; the rows keep the places that they show.
    void ExchangeOffers(OfferIndex offer, OfferIndex other);

    /// While it lives, all that is stored is one step: of the outermost one, if several live.
    /// Without a name it takes that of the last value stored. Every value stored alone is a step of
    /// its own; values that StoreTogether stores, such as a loaded worksheet, are none.
    class Step {
    public:
        explicit Step(Worksheet& sheet, std::optional<StepName> name = std::nullopt);
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;
        Step(Step&&) = delete;
        Step& operator=(Step&&) = delete;
        ~Step();

    private:
        Worksheet* m_sheet;
        std::optional<WorksheetState> m_before; ///< none inside another step
        std::optional<StepName> m_name;
    };
    /// `step` is called after each step that changed a value, `emptied` by Clear, after which no
    /// earlier step can be undone.
    void OnStep(std::function<void(WorksheetStep)> step, std::function<void()> emptied);
    WorksheetState State();
    /// Shows a state of this worksheet. Raises no payment, shows no message. Dirty afterwards,
    /// unless a save would store what was last saved.
    void Restore(const WorksheetState& state);

    // The four recalculations.
    void RecalculateEscrow();
    void RecalculateOffer(Row row);
    void RecalculateCurrentPayment();
    void RecalculateCurrentSchedule();

    /// Whether anything has changed that a save would store.
    bool Dirty() const { return m_dirty; }
    /// The values are now the ones last saved.
    void ClearDirty();
    /// None of the values is saved anywhere, also if all are undone.
    void MarkUnsaved();
    /// Whether the user has been told that intended payments are raised.
    bool PaymentNoticeShown() const { return m_paymentNoticeShown; }
    void SetPaymentNoticeShown(bool shown) { m_paymentNoticeShown = shown; }

    Date Today() const override { return m_today(); }
    void MarkDirty() override { m_dirty = true; }
    void PaymentRefused() override;

private:
    struct FieldAccess;

    CLoan& OfferIn(Row row) { return m_offers.at(OfferIndexOfRow(row).value); }
    /// Keeps and shows a value; sets Dirty if it changed.
    template <class Kept>
    void Write(Kept& kept, const Kept& value, FieldId field) {
        if (kept != value) {
            kept = value;
            m_dirty = true;
        }
        Show({field});
    }
    StepName NameOf(Field field) const;
    void Recalculate(unsigned steps, Row row = Field::NoRow);
    void ComputePending(const RunStep& run);
    void RecalculatePayoff(Row row);
    void ShowText(Field field, const FieldValue& value) const;
    void ShowRow(Row row);
    void ShowResult(CLoan& offer, Field field, Money& pAndI);
    void ShowPayoff(CLoan& offer, Row row);
    void MarkRaised(Row row);
    void MarkMissing(FieldId field, bool missing);
    void ShowMissing();
    void ShowAll();
    CLoan BlankOffer();
    void ReplaceOffer(OfferIndex offer, const CLoan& other);
    template <class Key, class KeyOf>
    void SortBy(SortOrder order, KeyOf keyOf);

    WorksheetDisplay* m_display;
    FieldFormats m_texts;
    std::function<Date()> m_today;
    WantedLoan m_loan;
    CurrentLoan m_current;
    std::vector<CLoan> m_offers;
    OfferOrder m_order;
    std::set<OfferIndex> m_raised; // offers whose intended payment is marked
    Pending m_pending;
    bool m_deferred = false;
    bool m_dirty = false;
    bool m_paymentNoticeShown = false;
    bool m_paymentRefused = false;
    std::optional<WorksheetState> m_saved;
    std::function<void(WorksheetStep)> m_onStep;
    std::function<void()> m_onEmptied;
    StepName m_step; ///< of the last value stored
    bool m_inStep = false;
};

} // namespace quend::model
