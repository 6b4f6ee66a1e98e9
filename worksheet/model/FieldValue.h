#pragma once

#include "Date.h"
#include "DisplayFormats.h"
#include "Field.h"
#include "LoanTypes.h"
#include "ModelNames.h"
#include "Money.h"
#include "Quantities.h"

#include <optional>
#include <utility>
#include <variant>

namespace quend::model {

/// The value of a field. The field's kind decides which of these it holds (ValueKind).
using FieldValue =
    std::variant<Money, Rate, Percent, Months, LoanTypeCode, FrequencyCode, Date, bool, QString>;

/// For std::visit: one function for each type that a value may have.
template <class... Functions>
struct ByType : Functions... {
    using Functions::operator()...;
};
// For compilers that do not deduce it for an aggregate.
template <class... Functions>
ByType(Functions...) -> ByType<Functions...>;

/// Whether nothing is entered: zero, none, empty or not ticked.
bool IsZero(const FieldValue& value);

/// Converts between the values of the fields and their texts. Zero is the empty text, both ways.
/// Codes are shown as texts of the current language.
class FieldFormats {
public:
    FieldFormats(DisplayFormats formats, bool termInMonths)
        : m_formats(std::move(formats)), m_termInMonths(termInMonths) {}

    const DisplayFormats& Formats() const { return m_formats; }
    bool TermInMonths() const { return m_termInMonths; }
    void SetTermInMonths(bool inMonths) { m_termInMonths = inMonths; }

    /// The bare value, for editing.
    QString EntryText(const FieldValue& value) const;

    /// The value as shown in a field that is not being edited.
    QString DisplayText(const FieldValue& value) const;

    /// The value of a text; of any kind but a date or a flag. Checks no number of decimals. Throws
    /// ConversionFailure or OverflowFailure.
    FieldValue Read(ValueKind kind, const QString& text) const;

    /// The value of a text that was typed into a field; none if the text has not the form that the
    /// field requires, or has no value, such as a lone sign. `today` gives a year its century.
    /// Throws OverflowFailure for a number that the field cannot hold.
    std::optional<FieldValue> ReadTyped(FieldId field, const QString& text, Date today) const;

    /// Whether this character may be typed into the field.
    bool AllowsKey(FieldId field, QChar key) const;

private:
    Months ReadTerm(ValueKind kind, const QString& text) const;

    DisplayFormats m_formats;
    bool m_termInMonths;
};

} // namespace quend::model
