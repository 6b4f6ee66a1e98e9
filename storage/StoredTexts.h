#pragma once

#include "DisplayFormats.h"

#include <QString>

#include <string>
#include <utility>

/// How numbers, dates and texts are written into a kept worksheet, and read back: plain numbers
/// without grouping ("general number") in the user's decimal symbol, dates in the user's short
/// form.
///
/// A worksheet may come from another locale. A number never has more than one symbol between its
/// digits, so whatever stands there is the decimal symbol of whoever wrote it. Dates cannot be told
/// apart that way (3/1 and 1/3), so the form they were written in is kept beside them.
///
/// Reading throws ConversionFailure for what is no number or date, OverflowFailure for what is out
/// of range.
class StoredTexts {
public:
    /// `dateFormat` is what DateFormat() was when the worksheet was written; empty when that is not
    /// known.
    explicit StoredTexts(DisplayFormats formats, const std::string& dateFormat = {})
        : m_formats(std::move(formats)), m_writtenDateFormat(QString::fromStdString(dateFormat)) {}

    std::string Write(Money amount) const;
    std::string Write(double number) const;
    /// No date is the empty text.
    std::string Write(Date date) const;
    std::string DateFormat() const;

    Money ReadAmount(const std::string& text) const;
    double ReadReal(const std::string& text) const;
    /// Whole months, halves to even.
    int ReadMonths(const std::string& text) const;
    Date ReadDate(const std::string& text) const;

private:
    QString InOwnSymbol(const std::string& number) const;

    DisplayFormats m_formats;
    QString m_writtenDateFormat;
};
