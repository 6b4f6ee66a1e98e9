#pragma once

#include "DisplayFormats.h"
#include "Field.h"
#include "ModelNames.h"
#include "Quantities.h"

#include <utility>
#include <variant>

namespace quend::model {

/// The number in a field: an amount, a rate, points or a term. The field's kind says which.
using FieldNumber = std::variant<Money, Rate, Percent, Months>;

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
    QString EntryText(const FieldNumber& number) const;

    /// The value as shown in a field that is not being edited.
    QString DisplayText(const FieldNumber& number) const;

    /// The number of a text. Throws ConversionFailure or OverflowFailure.
    FieldNumber Read(ValueKind kind, const QString& text) const;

private:
    Months ReadTerm(ValueKind kind, const QString& text) const;

    DisplayFormats m_formats;
    bool m_termInMonths;
};

} // namespace quend::model
