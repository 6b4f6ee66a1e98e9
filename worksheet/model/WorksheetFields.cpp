// Maps the fields to the properties of the worksheet.

#include "Failure.h"
#include "Frequency.h"
#include "IsValidNumber.h"
#include "LoanTypes.h"
#include "ModelNames.h"
#include "TypedDate.h"
#include "Worksheet.h"

#include <array>
#include <utility>

namespace quend::model {

QString Worksheet::EntryText(Field field) const {
    if (field.id == FieldId::NextPayment) {
        return m_current.nextPayment.IsNone() ? QString()
                                              : m_texts.Formats().ShortDate(m_current.nextPayment);
    }
    return m_texts.EntryText(RuleOf(field.id).kind, NumberOf(field));
}

bool Worksheet::Accepts(Field field, const QString& text) const {
    const FieldRule& rule = RuleOf(field.id);
    if (rule.kind == ValueKind::Date) {
        return ReadTypedDate(text, m_texts.Formats(), m_today()).has_value();
    }
    if (!IsValidNumber(text, rule.decimals, m_texts.Formats().DecimalSeparator())) {
        return false;
    }
    try {
        m_texts.Read(rule.kind, text);
    } catch (const ConversionFailure&) { // a lone sign or decimal symbol
        return false;
    }
    return true;
}

bool Worksheet::AllowsKey(FieldId field, QChar key) const {
    constexpr char16_t firstPrinted = 32;
    constexpr char16_t deleteKey = 127;
    const FieldRule& rule = RuleOf(field);
    if (key.unicode() < firstPrinted || key.unicode() == deleteKey) {
        return true;
    }
    if (rule.kind == ValueKind::Date) {
        return MayTypeDate(key, m_texts.Formats());
    }
    return (key >= u'0' && key <= u'9') ||
           (rule.separatorKey && key == m_texts.Formats().DecimalSeparator());
}

FieldNumber Worksheet::NumberOf(Field field) const {
    switch (field.id) {
    case FieldId::LoanAmount:
        return m_loan.amount;
    case FieldId::LoanTerm:
        return Months{m_loan.term};
    case FieldId::AnnualTaxes:
        return m_loan.taxes;
    case FieldId::AnnualInsurance:
        return m_loan.insurance;
    case FieldId::MonthlyEscrow:
        return m_loan.escrowMonthly;
    case FieldId::CurLoanAmount:
        return m_current.amount;
    case FieldId::CurLoanTerm:
        return Months{m_current.term};
    case FieldId::CurInterestRate:
        return m_current.rate;
    case FieldId::CurPayment:
        return m_current.payment;
    case FieldId::CurrentBalance:
        return m_current.balance;
    case FieldId::CurActualPayment:
        return m_current.actualPayment;
    case FieldId::CurAmountLeft:
        return m_current.amountLeft;
    case FieldId::CurInterestLeft:
        return m_current.interestLeft;
    case FieldId::Points:
        return OfferOfRow(field.row).Points();
    case FieldId::InterestRate:
        return OfferOfRow(field.row).InterestRate();
    case FieldId::Term:
        return Months{OfferOfRow(field.row).Term()};
    case FieldId::ActualPayment:
        return OfferOfRow(field.row).ActualPayment();
    default:
        return Money();
    }
}

QString Worksheet::ChoiceText(Field field) const {
    switch (field.id) {
    case FieldId::LoanType:
        return LoanTypeCodeToText(m_loan.type);
    case FieldId::CurPaymentFrequency:
        return CurrentFrequency();
    case FieldId::ActPaymentFrequency:
        return CurrentActualFrequency();
    default:
        return OfferOfRow(field.row).Frequency();
    }
}

void Worksheet::Show(Field field) const {
    switch (const FieldRule& rule = RuleOf(field.id); rule.kind) {
    case ValueKind::Flag:
        return m_display->ShowTicked(field, OfferOfRow(field.row).FinancePoints());
    case ValueKind::Choice:
        return m_display->ShowText(field, ChoiceText(field));
    case ValueKind::Text:
        return m_display->ShowText(field, field.id == FieldId::Who ? OfferOfRow(field.row).Who()
                                                                   : m_loan.name);
    case ValueKind::Date:
        return field.id == FieldId::NextPayment ? m_display->ShowDate(field, m_current.nextPayment)
                                                : ShowDate(field, m_current.payoffDate);
    default:
        return m_display->ShowText(field, m_texts.DisplayText(rule.kind, NumberOf(field)));
    }
}

void Worksheet::ShowLoan() const {
    for (const FieldRule& rule : LoanFields()) {
        Show({rule.id});
    }
}

void Worksheet::ShowOffer(Row row) {
    for (const FieldRule& rule : OfferFields()) {
        if (rule.access == Access::Input) {
            Show({rule.id, row});
        }
    }
    RecalculateOffer(row);
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

void Worksheet::StoreTyped(Field field, const QString& text) {
    if (field.id != FieldId::NextPayment) {
        return StoreNumber(field, text);
    }
    const auto date = ReadTypedDate(text, m_texts.Formats(), m_today());
    if (!date) {
        throw ConversionFailure(ProgramSource);
    }
    if (*date != m_current.nextPayment) { // after an arrow key it is equal: the step has stored it
        SetCurrentNextPayment(*date);
    }
    Show(field);
}

/// The step's failure was reported when the values were entered; it is thrown only if a value has
/// changed since.
template <class Step>
void Worksheet::TellOnlyNews(Step step) {
    const bool wasDirty = std::exchange(m_dirty, false);
    try {
        step();
    } catch (const Failure&) {
        if (m_dirty) {
            throw;
        }
    }
    m_dirty = m_dirty || wasDirty;
}

void Worksheet::StoreAgain(Field field) {
    if (RuleOf(field.id).IsNumber()) {
        TellOnlyNews([&] { Store(field, NumberOf(field)); });
    } else {
        Show(field);
    }
}

void Worksheet::LeaveChoice(Field field, const QString& text) {
    TellOnlyNews([&] {
        const bool isFrequency =
            field.id == FieldId::CurPaymentFrequency || field.id == FieldId::ActPaymentFrequency;
        if (isFrequency && text == ChoiceText(field)) {
            return Recalculate(Payment);
        }
        StoreChoice(field, text);
    });
}

/// A ticked box is stored and recalculated whenever it is left, an unticked one only if the offer
/// is still ticked.
void Worksheet::LeaveFinancePoints(Row row, bool financed) {
    if (financed || OfferOfRow(row).FinancePoints()) {
        TellOnlyNews([&] { StoreFinancePoints(row, financed); });
    }
}

void Worksheet::StoreNumber(Field field, const QString& text) {
    Store(field, m_texts.Read(RuleOf(field.id).kind, text));
}

void Worksheet::Store(Field field, const FieldNumber& number) {
    if (field.row == Field::NoRow) {
        StoreLoanNumber(field.id, number);
    } else {
        StoreOfferNumber(field, number);
    }
}

void Worksheet::StoreLoanNumber(FieldId field, const FieldNumber& number) {
    // Where the amounts of the upper bands are stored, and what is recalculated when they are left.
    struct AmountField {
        FieldId field;
        Money& stored;
        unsigned pending;
    };
    const std::array amounts{
        AmountField{FieldId::AnnualTaxes, m_loan.taxes, Escrow},
        AmountField{FieldId::AnnualInsurance, m_loan.insurance, Escrow},
        AmountField{FieldId::CurLoanAmount, m_current.amount, Payment | Schedule},
        AmountField{FieldId::CurrentBalance, m_current.balance, Payment | Schedule},
        AmountField{FieldId::CurActualPayment, m_current.actualPayment, Payment | Schedule},
    };
    for (const AmountField& amount : amounts) {
        if (amount.field == field) {
            Write(amount.stored, std::get<Money>(number), field);
            return Recalculate(amount.pending);
        }
    }
    switch (field) {
    case FieldId::LoanAmount:
        return SetLoanAmount(std::get<Money>(number));
    case FieldId::LoanTerm:
        return SetLoanTerm(std::get<Months>(number).count);
    case FieldId::CurLoanTerm:
        Write(m_current.term, std::get<Months>(number).count, field);
        return Recalculate(Payment | Schedule);
    case FieldId::CurInterestRate:
        Write(m_current.rate, std::get<double>(number), field);
        return Recalculate(Payment | Schedule);
    default:
        return;
    }
}

void Worksheet::StoreOfferNumber(Field field, const FieldNumber& number) {
    switch (CLoan& offer = OfferOfRow(field.row); field.id) {
    case FieldId::Points:
        offer.SetPoints(std::get<double>(number));
        break;
    case FieldId::InterestRate:
        offer.SetInterestRate(std::get<double>(number));
        // Entering a rate gives an offer without a term the default term.
        Show({FieldId::Term, field.row});
        break;
    case FieldId::Term:
        offer.SetTerm(std::get<Months>(number).count);
        break;
    default:
        return StoreActualPayment(field.row, std::get<Money>(number));
    }
    Show(field);
    RecalculateOffer(field.row);
}

void Worksheet::StoreChoice(Field field, const QString& text) {
    switch (field.id) {
    case FieldId::LoanType:
        return SetLoanType(LoanTypeTextToCode(text));
    case FieldId::CurPaymentFrequency:
        SetCurrentFrequency(text);
        return Recalculate(Payment | Schedule);
    case FieldId::ActPaymentFrequency:
        SetCurrentActualFrequency(text);
        return Recalculate(Payment | Schedule);
    default:
        OfferOfRow(field.row).SetFrequency(text);
        Show(field);
        return RecalculateOffer(field.row);
    }
}

void Worksheet::StoreFinancePoints(Row row, bool financed) {
    OfferOfRow(row).SetFinancePoints(financed);
    Show({FieldId::FinancePoints, row});
    RecalculateOffer(row);
}

void Worksheet::StoreWho(Row row, const QString& who) {
    OfferOfRow(row).SetWho(who);
    Show({FieldId::Who, row});
}

} // namespace quend::model
