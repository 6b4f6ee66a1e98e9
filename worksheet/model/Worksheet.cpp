#include "Worksheet.h"

#include "Frequency.h"
#include "LoanTypes.h"

#include <utility>

namespace quend::model {

Worksheet::Worksheet(WorksheetDisplay& display, FieldFormats texts, std::function<Date()> today)
    : m_display(&display), m_texts(std::move(texts)), m_today(std::move(today)) {}

// A name alone does not make a worksheet worth saving, so it does not set Dirty.
void Worksheet::SetLoanName(const QString& name) {
    m_loan.name = name;
    Show({FieldId::LoanName});
}

void Worksheet::SetLoanType(const QString& code) { Write(m_loan.type, code, FieldId::LoanType); }

void Worksheet::SetLoanAmount(Money amount) {
    Write(m_loan.amount, amount, FieldId::LoanAmount);
    SetStartingAmounts();
    Recalculate(Offers);
}

void Worksheet::SetLoanTerm(int months) { Write(m_loan.term, months, FieldId::LoanTerm); }

void Worksheet::SetEscrowTaxes(Money perYear) {
    Write(m_loan.taxes, perYear, FieldId::AnnualTaxes);
    Recalculate(Escrow);
}

void Worksheet::SetEscrowInsurance(Money perYear) {
    Write(m_loan.insurance, perYear, FieldId::AnnualInsurance);
    Recalculate(Escrow);
}

void Worksheet::SetCurrentLoanAmount(Money amount) {
    Write(m_current.amount, amount, FieldId::CurLoanAmount);
    Recalculate(Schedule);
}

void Worksheet::SetCurrentTerm(int months) {
    Write(m_current.term, months, FieldId::CurLoanTerm);
    Recalculate(Schedule);
}

void Worksheet::SetCurrentInterestRate(double fraction) {
    Write(m_current.rate, fraction, FieldId::CurInterestRate);
    Recalculate(Schedule);
}

QString Worksheet::CurrentFrequency() const { return FrequencyCodeToText(m_current.frequency); }

void Worksheet::SetCurrentFrequency(const QString& text) {
    Write(m_current.frequency, FrequencyTextToCode(text), FieldId::CurPaymentFrequency);
}

void Worksheet::SetCurrentPayment(Money payment) {
    Write(m_current.payment, payment, FieldId::CurPayment);
    Recalculate(Schedule);
}

void Worksheet::SetCurrentBalance(Money balance) {
    Write(m_current.balance, balance, FieldId::CurrentBalance);
    Recalculate(Schedule);
}

void Worksheet::SetCurrentActualPayment(Money payment) {
    Write(m_current.actualPayment, payment, FieldId::CurActualPayment);
    Recalculate(Schedule);
}

QString Worksheet::CurrentActualFrequency() const {
    return FrequencyCodeToText(m_current.actualFrequency);
}

void Worksheet::SetCurrentActualFrequency(const QString& text) {
    Write(m_current.actualFrequency, FrequencyTextToCode(text), FieldId::ActPaymentFrequency);
}

void Worksheet::SetCurrentNextPayment(Date date) {
    Write(m_current.nextPayment, date, FieldId::NextPayment);
    Recalculate(Schedule);
}

void Worksheet::GrowOfferArrays(Row from, Row to) {
    for (int row = from.value + 1; row <= to.value; ++row) {
        m_offers.emplace_back(*this).SetStartingAmount(m_loan.amount);
        m_order.Append();
    }
}

void Worksheet::Clear() {
    const Row highest = HighestOfferRow();
    m_loan = {};
    m_current = {};
    m_current.nextPayment = m_today();
    m_order = {};
    m_offers.clear();
    GrowOfferArrays(Row{-1}, highest);
    ClearRaisedMarks();
    m_display->ShowSortOrder(Order());
    ShowLoan();
    for (Row row{0}; row <= highest; ++row.value) {
        ShowOffer(row);
    }
    Recalculate(Payment | Schedule);
    m_dirty = false;
}

void Worksheet::SetStartingAmounts() {
    for (CLoan& offer : m_offers) {
        offer.SetStartingAmount(m_loan.amount);
    }
}

void Worksheet::PaymentRefused() {
    m_paymentRefused = true;
    m_paymentNoticeShown = true;
    m_display->PaymentRefused();
}

} // namespace quend::model
