#include "FieldValue.h"

#include "Failure.h"

#include <cmath>
#include <limits>

namespace quend::model {

namespace {

constexpr double MonthsPerYear = 12;

Months WholeMonths(double months) {
    if (!(std::abs(months) <= std::numeric_limits<int>::max())) {
        throw OverflowFailure(ProgramSource);
    }
    return {static_cast<int>(months)};
}

/// Halves go to the even number, as everywhere in the worksheet.
double RoundedHalfToEven(double value) { return std::nearbyint(value); }

} // namespace

bool IsZero(const FieldNumber& number) {
    return std::visit([](const auto& value) { return value == std::decay_t<decltype(value)>{}; },
                      number);
}

QString FieldFormats::EntryText(ValueKind kind, const FieldNumber& number) const {
    if (IsZero(number)) {
        return {};
    }
    if (const auto* amount = std::get_if<Money>(&number)) {
        return m_formats.GeneralNumber(*amount);
    }
    if (const auto* term = std::get_if<Months>(&number)) {
        return m_formats.GeneralNumber(m_termInMonths ? term->count : term->count / MonthsPerYear);
    }
    const double value = std::get<double>(number);
    return m_formats.GeneralNumber(kind == ValueKind::Percent ? value * 100 : value);
}

QString FieldFormats::DisplayText(ValueKind kind, const FieldNumber& number) const {
    if (IsZero(number)) {
        return {};
    }
    switch (kind) {
    case ValueKind::Amount:
        return m_formats.Currency(std::get<Money>(number));
    case ValueKind::Percent:
        return m_formats.Percent(std::get<double>(number));
    case ValueKind::Decimal:
        return m_formats.ThreeDecimals(std::get<double>(number));
    default:
        return m_formats.InOwnDigits(EntryText(kind, number));
    }
}

FieldNumber FieldFormats::Read(ValueKind kind, const QString& text) const {
    switch (kind) {
    case ValueKind::Amount:
        return text.isEmpty() ? Money() : m_formats.ReadAmount(text);
    case ValueKind::Percent:
        return text.isEmpty() ? 0.0 : m_formats.ReadReal(text) / 100;
    case ValueKind::Decimal:
        return text.isEmpty() ? 0.0 : m_formats.ReadReal(text);
    default:
        return text.isEmpty() ? Months() : ReadTerm(kind, text);
    }
}

Months FieldFormats::ReadTerm(ValueKind kind, const QString& text) const {
    const double value = m_formats.ReadReal(text);
    if (m_termInMonths) {
        return WholeMonths(RoundedHalfToEven(value));
    }
    // Twelve and a half years are 150 months for the current loan, but 12 years for an offer:
    // lenders offer whole years, while any number of months may be left to pay.
    return kind == ValueKind::FractionalTerm
               ? WholeMonths(RoundedHalfToEven(value * MonthsPerYear))
               : WholeMonths(RoundedHalfToEven(value) * MonthsPerYear);
}

} // namespace quend::model
