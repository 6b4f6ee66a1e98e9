#pragma once

#include "DisplayFormats.h"
#include "StorageNames.h"

#include <QString>

#include <string>
#include <utility>

namespace quend::storage {

/// Converts numbers, dates and texts to and from the form in which a worksheet is saved: plain
/// numbers without grouping ("general number") with the user's decimal symbol, dates in the user's
/// short format.
///
/// A worksheet may come from another locale. A number never has more than one symbol between its
/// digits, so that symbol is the decimal symbol of the locale that wrote it. Dates are ambiguous
/// (3/1 and 1/3), so the date format is saved with them.
///
/// Reading throws ConversionFailure for an invalid number or date, OverflowFailure for a value out
/// of range.
class StoredTexts {
public:
    /// `dateFormat` is what DateFormat() was when the worksheet was written; empty when unknown.
    explicit StoredTexts(DisplayFormats formats, const std::string& dateFormat = {})
        : m_formats(std::move(formats)), m_writtenDateFormat(QString::fromStdString(dateFormat)) {}

    std::string Write(Money amount) const;
    std::string Write(Percent percent) const;
    /// In percent.
    std::string Write(Rate rate) const;
    std::string Write(Months term) const;
    /// An empty text means no date.
    std::string Write(Date date) const;
    std::string DateFormat() const;

    Money ReadAmount(const std::string& text) const;
    Percent ReadPercent(const std::string& text) const;
    /// From a text in percent.
    Rate ReadRate(const std::string& text) const;
    /// Rounds halves to even.
    Months ReadMonths(const std::string& text) const;
    Date ReadDate(const std::string& text) const;

private:
    QString InOwnSymbol(const std::string& number) const;

    DisplayFormats m_formats;
    QString m_writtenDateFormat;
};

} // namespace quend::storage
