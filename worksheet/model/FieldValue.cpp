#include "FieldValue.h"

namespace quend::model {

bool IsZero(const FieldNumber& number) {
    return std::visit([](const auto& value) { return value.IsZero(); }, number);
}

QString FieldFormats::EntryText(const FieldNumber& number) const {
    if (IsZero(number)) {
        return {};
    }
    if (const auto* amount = std::get_if<Money>(&number)) {
        return m_formats.GeneralNumber(*amount);
    }
    if (const auto* term = std::get_if<Months>(&number)) {
        return m_formats.GeneralNumber(m_termInMonths ? term->count : term->InYears());
    }
    const auto* rate = std::get_if<Rate>(&number);
    const Percent percent = rate != nullptr ? Percent::FromRate(*rate) : std::get<Percent>(number);
    return m_formats.GeneralNumber(percent.Value());
}

QString FieldFormats::DisplayText(const FieldNumber& number) const {
    if (IsZero(number)) {
        return {};
    }
    if (const auto* amount = std::get_if<Money>(&number)) {
        return m_formats.Currency(*amount);
    }
    if (const auto* rate = std::get_if<Rate>(&number)) {
        return m_formats.Percent(*rate);
    }
    if (const auto* points = std::get_if<Percent>(&number)) {
        return m_formats.ThreeDecimals(points->Value());
    }
    return m_formats.InOwnDigits(EntryText(number));
}

FieldNumber FieldFormats::Read(ValueKind kind, const QString& text) const {
    const auto percent = [&] {
        return text.isEmpty() ? Percent() : Percent::FromPercent(m_formats.ReadReal(text));
    };
    switch (kind) {
    case ValueKind::Amount:
        return text.isEmpty() ? Money() : m_formats.ReadAmount(text);
    case ValueKind::Percent:
        return percent().ToRate();
    case ValueKind::Decimal:
        return percent();
    default:
        return text.isEmpty() ? Months() : ReadTerm(kind, text);
    }
}

Months FieldFormats::ReadTerm(ValueKind kind, const QString& text) const {
    const double value = m_formats.ReadReal(text);
    if (m_termInMonths) {
        return Months::Nearest(value);
    }
    // Twelve and a half years are 150 months for the current loan, but 12 years for an offer:
    // lenders offer whole years, while any number of months may be left to pay.
    return kind == ValueKind::FractionalTerm ? Months::FromYears(value)
                                             : Months::FromWholeYears(value);
}

} // namespace quend::model
