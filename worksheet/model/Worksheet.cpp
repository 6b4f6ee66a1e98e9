#include "Worksheet.h"

#include "Frequency.h"

#include <utility>

namespace quend::model {

Worksheet::Worksheet(WorksheetDisplay& display, FieldFormats texts, std::function<Date()> today)
    : m_display(&display), m_texts(std::move(texts)), m_today(std::move(today)) {}

QString Worksheet::CurrentFrequency() const { return FrequencyCodeToText(m_current.frequency); }

void Worksheet::SetCurrentFrequency(const QString& text) {
    Store({FieldId::CurPaymentFrequency}, FrequencyTextToCode(text));
}

QString Worksheet::CurrentActualFrequency() const {
    return FrequencyCodeToText(m_current.actualFrequency);
}

void Worksheet::SetCurrentActualFrequency(const QString& text) {
    Store({FieldId::ActPaymentFrequency}, FrequencyTextToCode(text));
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
    ShowAll();
    Recalculate(Pending::Payment | Pending::Schedule);
    ClearDirty();
    if (m_onEmptied) {
        m_onEmptied();
    }
}

void Worksheet::PaymentRefused() {
    m_paymentRefused = true;
    m_paymentNoticeShown = true;
    m_display->PaymentRefused();
}

} // namespace quend::model
