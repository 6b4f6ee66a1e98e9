#pragma once

#include "DisplayFormats.h"
#include "Field.h"
#include "ModelNames.h"

#include <utility>
#include <variant>

namespace quend::model {

/// A term in whole months.
struct Months {
    int count = 0;
    friend constexpr bool operator==(Months, Months) = default;
};

/// The number in a field: an amount, a real number (points in percent, a rate as a fraction) or a
/// term. Its kind says which.
using FieldNumber = std::variant<Money, double, Months>;

bool IsZero(const FieldNumber& number);

/// Converts between the numbers of the fields and their texts. Zero is the empty text, both ways.
class FieldFormats {
public:
    FieldFormats(DisplayFormats formats, bool termInMonths)
        : m_formats(std::move(formats)), m_termInMonths(termInMonths) {}

    const DisplayFormats& Formats() const { return m_formats; }
    bool TermInMonths() const { return m_termInMonths; }
    void SetTermInMonths(bool inMonths) { m_termInMonths = inMonths; }

    /// The bare value, for editing.
    QString EntryText(ValueKind kind, const FieldNumber& number) const;

    /// The value as shown in a field that is not being edited.
    QString DisplayText(ValueKind kind, const FieldNumber& number) const;

    /// The number of a text. Throws ConversionFailure or OverflowFailure.
    FieldNumber Read(ValueKind kind, const QString& text) const;

private:
    Months ReadTerm(ValueKind kind, const QString& text) const;

    DisplayFormats m_formats;
    bool m_termInMonths;
};

} // namespace quend::model
