#pragma once

#include "Date.h"
#include "DigitGroups.h"
#include "ModelNames.h"
#include "Money.h"
#include "Quantities.h"

#include <QLocale>
#include <QString>

namespace quend::model {

/// Formats values for display and reads typed numbers, both by the user's locale. Does not know
/// that zero shows as an empty field; FieldFormats does that.
class DisplayFormats {
public:
    explicit DisplayFormats(const QLocale& locale);

    const QLocale& Locale() const { return m_locale; }

    /// The decimal symbol, one character. Group separators are never read.
    QChar DecimalSeparator() const { return m_separator; }

    /// "general number": no grouping, no more decimals than the value has. Uses the digits 0 to 9,
    /// as numbers are typed and stored, whatever the locale's digits are.
    QString GeneralNumber(Money amount) const;
    /// The same for a real number, to fifteen digits: 0.07337 × 100 reads 7.337.
    QString GeneralNumber(double value) const;

    /// A general number in the locale's own digits, for display among the other formats.
    QString InOwnDigits(const QString& number) const { return m_groups.Localized(number); }

    /// "currency": rounded to the cent (halves to even), with symbol and grouping.
    QString Currency(Money amount) const;
    /// The same rounded to the unit (halves to even), without decimals.
    QString WholeCurrency(Money amount) const;

    /// "#.000": three decimals, and no zero in front of the symbol (".500").
    QString ThreeDecimals(double value) const;

    /// "#.000%": a rate shown in percent.
    QString Percent(Rate rate) const;

    /// "short date", with four digits for the year in every locale.
    QString ShortDate(Date date) const;
    QString ShortDateFormat() const { return m_shortDate; }

    /// A typed amount, exact; more than four decimals are rounded, halves to even.
    /// ConversionFailure when the text is no number, OverflowFailure when no amount can hold it.
    Money ReadAmount(const QString& text) const;

    /// A typed real number. ConversionFailure when it is none, OverflowFailure when out of range.
    double ReadReal(const QString& text) const;

private:
    /// The number of so many decimals, without a sign, with the locale's symbol and sign around it.
    QString WithSymbol(const QString& number, bool negative, int decimals) const;
    QString WithSeparator(QString plainNumber) const;
    /// With a point for the decimal symbol and without a plus sign. Throws ConversionFailure.
    QString PlainNumber(const QString& text) const;

    QLocale m_locale;
    QChar m_separator;
    QString m_shortDate;
    DigitGroups m_groups;
};

} // namespace quend::model
