// Maps the fields to the values of the worksheet.

#include "Failure.h"
#include "ModelNames.h"
#include "Worksheet.h"

#include <QScopeGuard>

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace quend::model {

/// How one field is stored: the one way into the worksheet. The results of an offer have no row:
/// they are not stored.
struct Worksheet::FieldAccess {
    FieldId id = FieldId::LoanName;
    /// `offer` is null for a field above the offers.
    FieldValue (*get)(const Worksheet& sheet, const CLoan* offer) = nullptr;
    /// Keeps the value and shows the field. Null for a result.
    void (*put)(Worksheet& sheet, Field field, const FieldValue& value) = nullptr;
    unsigned due = Pending::Nothing; ///< what is computed anew
    unsigned dueUnchanged = due;     ///< the same if the field is left unchanged

    static const FieldAccess& Of(FieldId id);

    // The values above the offers.
    template <class Sheet, class Kept>
    static auto& In(Sheet& sheet, Kept WantedLoan::*member) {
        return sheet.m_loan.*member;
    }
    template <class Sheet, class Kept>
    static auto& In(Sheet& sheet, Kept CurrentLoan::*member) {
        return sheet.m_current.*member;
    }
    template <auto Member>
    static FieldValue Get(const Worksheet& sheet, const CLoan* /*offer*/) {
        return In(sheet, Member);
    }
    template <auto Member>
    static void Put(Worksheet& sheet, Field field, const FieldValue& value) {
        auto& kept = In(sheet, Member);
        sheet.Write(kept, std::get<std::decay_t<decltype(kept)>>(value), field.id);
    }

    // The values of an offer.
    template <auto Getter>
    static FieldValue OfferGet(const Worksheet& /*sheet*/, const CLoan* offer) {
        return (offer->*Getter)();
    }
    template <class Kept, void (CLoan::*Setter)(Kept)>
    static void OfferPut(Worksheet& sheet, Field field, const FieldValue& value) {
        (sheet.OfferIn(field.row).*Setter)(std::get<std::decay_t<Kept>>(value));
        sheet.Show(field);
    }

    static void PutName(Worksheet& sheet, Field field, const FieldValue& value);
    static void PutAmount(Worksheet& sheet, Field field, const FieldValue& value);
    static void PutRate(Worksheet& sheet, Field field, const FieldValue& value);
    static void PutActualPayment(Worksheet& sheet, Field field, const FieldValue& value);
};

/// A name alone does not make a worksheet worth saving, so it does not set Dirty.
void Worksheet::FieldAccess::PutName(Worksheet& sheet, Field field, const FieldValue& value) {
    sheet.m_loan.name = std::get<QString>(value);
    sheet.Show(field);
}

void Worksheet::FieldAccess::PutAmount(Worksheet& sheet, Field field, const FieldValue& value) {
    Put<&WantedLoan::amount>(sheet, field, value);
    for (CLoan& offer : sheet.m_offers) {
        offer.SetStartingAmount(sheet.m_loan.amount);
    }
}

/// Entering a rate gives an offer without a term the default term.
void Worksheet::FieldAccess::PutRate(Worksheet& sheet, Field field, const FieldValue& value) {
    sheet.OfferIn(field.row).SetInterestRate(std::get<Rate>(value));
    sheet.Show({FieldId::Term, field.row});
    sheet.Show(field);
}

/// The intended payment is the only input that the calculator may replace.
void Worksheet::FieldAccess::PutActualPayment(Worksheet& sheet, Field field,
                                              const FieldValue& value) {
    CLoan& offer = sheet.OfferIn(field.row);
    sheet.m_paymentRefused = false;
    try {
        offer.SetActualPayment(std::get<Money>(value));
    } catch (const Failure&) {
        sheet.Show(field);
        throw;
    }
    // The check reads the payment. That may have raised a value that this one has just replaced.
    static_cast<void>(offer.Forced());
    sheet.Show(field);
    if (sheet.m_paymentRefused) {
        sheet.MarkRaised(field.row);
    }
}

const Worksheet::FieldAccess& Worksheet::FieldAccess::Of(FieldId id) {
    using enum FieldId;
    using Wanted = WantedLoan;
    using Current = CurrentLoan;
    constexpr auto nothing = Pending::Nothing;
    constexpr auto offers = Pending::Offers;
    constexpr auto offer = Pending::Offer;
    constexpr auto payoff = Pending::Payoff;
    constexpr auto payment = Pending::Payment;
    constexpr auto schedule = Pending::Schedule;
    constexpr unsigned current = payment | schedule;
    // Every payment includes its share of the escrow.
    constexpr unsigned everything = Pending::Escrow | offers | current;
    // clang-format off
    static constexpr std::array table{
        //          field                value                                  stored by                                                 computed anew, if unchanged
        FieldAccess{LoanName,            Get<&Wanted::name>,                    PutName,                                                  nothing},
        FieldAccess{LoanType,            Get<&Wanted::type>,                    Put<&Wanted::type>,                                       nothing},
        FieldAccess{LoanAmount,          Get<&Wanted::amount>,                  PutAmount,                                                offers},
        FieldAccess{LoanTerm,            Get<&Wanted::term>,                    Put<&Wanted::term>,                                       nothing},
        FieldAccess{AnnualTaxes,         Get<&Wanted::taxes>,                   Put<&Wanted::taxes>,                                      everything},
        FieldAccess{AnnualInsurance,     Get<&Wanted::insurance>,               Put<&Wanted::insurance>,                                  everything},
        FieldAccess{MonthlyEscrow,       Get<&Wanted::escrowMonthly>},
        FieldAccess{CurLoanAmount,       Get<&Current::amount>,                 Put<&Current::amount>,                                    current},
        FieldAccess{CurLoanTerm,         Get<&Current::term>,                   Put<&Current::term>,                                      current},
        FieldAccess{CurInterestRate,     Get<&Current::rate>,                   Put<&Current::rate>,                                      current},
        FieldAccess{CurPaymentFrequency, Get<&Current::frequency>,              Put<&Current::frequency>,                                 current,       payment},
        FieldAccess{CurPayment,          Get<&Current::payment>,                Put<&Current::payment>,                                   schedule},
        FieldAccess{CurrentBalance,      Get<&Current::balance>,                Put<&Current::balance>,                                   current},
        FieldAccess{CurActualPayment,    Get<&Current::actualPayment>,          Put<&Current::actualPayment>,                             current},
        FieldAccess{ActPaymentFrequency, Get<&Current::actualFrequency>,        Put<&Current::actualFrequency>,                           current,       payment},
        FieldAccess{NextPayment,         Get<&Current::nextPayment>,            Put<&Current::nextPayment>,                               schedule,      nothing},
        FieldAccess{CurAmountLeft,       Get<&Current::amountLeft>},
        FieldAccess{CurInterestLeft,     Get<&Current::interestLeft>},
        FieldAccess{CurPayoffDate,       Get<&Current::payoffDate>},
        FieldAccess{FinancePoints,       OfferGet<&CLoan::FinancePoints>,       OfferPut<bool, &CLoan::SetFinancePoints>,                 offer},
        FieldAccess{Points,              OfferGet<&CLoan::Points>,              OfferPut<Percent, &CLoan::SetPoints>,                     offer},
        FieldAccess{InterestRate,        OfferGet<&CLoan::InterestRate>,        PutRate,                                                  offer},
        FieldAccess{Term,                OfferGet<&CLoan::Term>,                OfferPut<Months, &CLoan::SetTerm>,                        offer},
        FieldAccess{Frequency,           OfferGet<&CLoan::FrequencyCode>,       OfferPut<const FrequencyCode&, &CLoan::SetFrequencyCode>, offer},
        FieldAccess{ActualPayment,       OfferGet<&CLoan::ActualPayment>,       PutActualPayment,                                         payoff},
        FieldAccess{Who,                 OfferGet<&CLoan::Who>,                 OfferPut<const QString&, &CLoan::SetWho>,                 nothing},
        FieldAccess{Costs,               OfferGet<&CLoan::Costs>,               OfferPut<Money, &CLoan::SetCosts>,                        nothing},
    };
    // clang-format on
    return *std::ranges::find(table, id, &FieldAccess::id);
}

FieldValue Worksheet::Value(Field field) const {
    const CLoan* offer = field.row == Field::NoRow ? nullptr : &OfferOfRow(field.row);
    return FieldAccess::Of(field.id).get(*this, offer);
}

FieldValue Worksheet::Value(FieldId field, OfferIndex offer) const {
    return FieldAccess::Of(field).get(*this, &Offer(offer));
}

StepName Worksheet::NameOf(Field field) const {
    StepName name{StepKind::Field, field.id, std::nullopt};
    if (field.row != Field::NoRow) {
        name.offer = OfferIndexOfRow(field.row);
    }
    return name;
}

void Worksheet::Store(Field field, const FieldValue& value) {
    const Step step(*this, NameOf(field));
    const FieldAccess& access = FieldAccess::Of(field.id);
    access.put(*this, field, value);
    Recalculate(access.due, field.row);
}

void Worksheet::StoreAgain(Field field, const FieldValue& value) {
    const Step step(*this, NameOf(field));
    const FieldAccess& access = FieldAccess::Of(field.id);
    const bool unchanged = value == Value(field);
    const bool wasDirty = std::exchange(m_dirty, false);
    try {
        access.put(*this, field, value);
        Recalculate(unchanged ? access.dueUnchanged : access.due, field.row);
    } catch (const Failure&) { // reported when the values were entered
        if (m_dirty) {
            throw;
        }
    }
    m_dirty = m_dirty || wasDirty;
}

void Worksheet::StoreTogether(const std::function<void()>& store, const RunStep& run) {
    m_deferred = true;
    const auto end = qScopeGuard([this] { m_deferred = false; });
    store();
    ComputePending(run);
}

std::optional<FieldValue> Worksheet::Read(FieldId field, const QString& text) const {
    return m_texts.ReadTyped(field, text, m_today());
}

void Worksheet::Show(Field field) const {
    const FieldValue value = Value(field);
    const auto* date = std::get_if<Date>(&value);
    if (const auto* ticked = std::get_if<bool>(&value)) {
        m_display->ShowTicked(field, *ticked);
    } else if (date != nullptr && RuleOf(field.id).access == Access::Input) {
        m_display->ShowDate(field, *date);
    } else {
        ShowText(field, value);
    }
}

void Worksheet::ShowText(Field field, const FieldValue& value) const {
    m_display->ShowText(field, m_texts.DisplayText(value));
}

void Worksheet::SetTermInMonths(bool inMonths) {
    m_texts.SetTermInMonths(inMonths);
    Show({FieldId::LoanTerm});
    Show({FieldId::CurLoanTerm});
    for (Row row{0}; row <= HighestOfferRow(); ++row.value) {
        Show({FieldId::Term, row});
    }
}

void Worksheet::ShowChoices() const {
    for (const FieldId id :
         {FieldId::LoanType, FieldId::CurPaymentFrequency, FieldId::ActPaymentFrequency}) {
        Show({id});
    }
    for (Row row{0}; row <= HighestOfferRow(); ++row.value) {
        Show({FieldId::Frequency, row});
    }
}

} // namespace quend::model
