#include "FieldValue.h"

#include "Failure.h"
#include "Frequency.h"
#include "IsValidNumber.h"
#include "TypedDate.h"

namespace quend::model {

bool IsZero(const FieldValue& value) {
    return std::visit([](const auto& held) { return held == std::decay_t<decltype(held)>{}; },
                      value);
}

QString FieldFormats::EntryText(const FieldValue& value) const {
    if (IsZero(value)) {
        return {};
    }
    const ByType text{
        [&](Money amount) { return m_formats.GeneralNumber(amount); },
        [&](Rate rate) { return m_formats.GeneralNumber(Percent::FromRate(rate).Value()); },
        [&](Percent percent) { return m_formats.GeneralNumber(percent.Value()); },
        [&](Months term) {
            return m_formats.GeneralNumber(m_termInMonths ? term.count : term.InYears());
        },
        [&](Date date) { return m_formats.ShortDate(date); },
        [](const LoanTypeCode& code) { return LoanTypeCodeToText(code); },
        [](const FrequencyCode& code) { return FrequencyCodeToText(code); },
        [](const QString& free) { return free; },
        [](bool /*ticked*/) { return QString(); },
    };
    return std::visit(text, value);
}

QString FieldFormats::DisplayText(const FieldValue& value) const {
    if (IsZero(value)) {
        return {};
    }
    if (const auto* amount = std::get_if<Money>(&value)) {
        return m_formats.Currency(*amount);
    }
    if (const auto* rate = std::get_if<Rate>(&value)) {
        return m_formats.Percent(*rate);
    }
    if (const auto* percent = std::get_if<Percent>(&value)) {
        return m_formats.ThreeDecimals(percent->Value());
    }
    const QString text = EntryText(value);
    return std::holds_alternative<Months>(value) ? m_formats.InOwnDigits(text) : text;
}

FieldValue FieldFormats::Read(ValueKind kind, const QString& text) const {
    const auto percent = [&] {
        return text.isEmpty() ? Percent() : Percent::FromPercent(m_formats.ReadReal(text));
    };
    switch (kind) {
    case ValueKind::Amount:
        return text.isEmpty() ? Money() : m_formats.ReadAmount(text);
    case ValueKind::Rate:
        return percent().ToRate();
    case ValueKind::Percent:
        return percent();
    case ValueKind::WholeTerm:
    case ValueKind::FractionalTerm:
        return text.isEmpty() ? Months() : ReadTerm(kind, text);
    case ValueKind::LoanType:
        return LoanTypeTextToCode(text);
    case ValueKind::Frequency:
        return FrequencyTextToCode(text);
    case ValueKind::Text:
        return text;
    case ValueKind::Flag:
    case ValueKind::Date:
        break;
    }
    throw ConversionFailure(ProgramSource);
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

std::optional<FieldValue> FieldFormats::ReadTyped(FieldId field, const QString& text,
                                                  Date today) const {
    const FieldRule& rule = RuleOf(field);
    if (rule.kind == ValueKind::Date) {
        const auto date = ReadTypedDate(text, m_formats, today);
        return date ? std::optional<FieldValue>(*date) : std::nullopt;
    }
    if (rule.IsNumber() && !IsValidNumber(text, rule.decimals, m_formats.DecimalSeparator())) {
        return std::nullopt;
    }
    try {
        return Read(rule.kind, text);
    } catch (const ConversionFailure&) { // a lone sign or decimal symbol
        return std::nullopt;
    }
}

bool FieldFormats::AllowsKey(FieldId field, QChar key) const {
    constexpr char16_t firstPrinted = 32;
    constexpr char16_t deleteKey = 127;
    const FieldRule& rule = RuleOf(field);
    if (key.unicode() < firstPrinted || key.unicode() == deleteKey) {
        return true;
    }
    if (rule.kind == ValueKind::Date) {
        return MayTypeDate(key, m_formats);
    }
    return (key >= u'0' && key <= u'9') ||
           (rule.separatorKey && key == m_formats.DecimalSeparator());
}

} // namespace quend::model
