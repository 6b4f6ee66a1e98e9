#pragma once

#include "Comparison.h"
#include "JsonReader.h"
#include "ValueTexts.h"

#include <QByteArrayView>
#include <QString>

#include <cmath>

namespace quend::comparison {

// The values of a file: how they are read from JSON and written to it. A value
// that is read is changed only without a fault.

Fault ReadValue(const JsonScalar& value, QString& text);
Fault ReadValue(const JsonScalar& value, bool& flag);
Fault ReadValue(const JsonScalar& value, Money& amount);
Fault ReadValue(const JsonScalar& value, Percent& points);
Fault ReadValue(const JsonScalar& value, Rate& rate);
Fault ReadValue(const JsonScalar& value, Months& term);
Fault ReadValue(const JsonScalar& value, FrequencyCode& code);
/// An empty text is no date.
Fault ReadValue(const JsonScalar& value, Date& date);
/// A whole number within a range from zero or more.
Fault ReadWhole(const JsonScalar& value, int least, int most, int& number);

// A writer is one of RapidJSON, whose headers no other file needs to know.

template <typename Writer>
void PutText(Writer& writer, QByteArrayView text) {
    writer.String(text.data(), static_cast<unsigned>(text.size()));
}

/// JSON has no word for what is no number, or infinite.
template <typename Writer>
void PutNumber(Writer& writer, double number) {
    if (std::isfinite(number)) {
        writer.Double(number);
    } else {
        writer.Null();
    }
}

} // namespace quend::comparison
