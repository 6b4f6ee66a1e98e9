#pragma once

#include <QLocale>
#include <QString>

/// How a locale groups the whole digits of an amount: 1,234,567 or 12,34,567 or, in Spain, 1234 but
/// 12.345. Measured from the locale; the toolkit's own grouping goes wrong where groups start at
/// five digits (1234.567), and shows amounts through a double, which loses cents.
class DigitGroups {
public:
    explicit DigitGroups(const QLocale& locale);

    /// Digits 0 to 9 in the locale's own, with its group separators.
    QString Grouped(const QString& digits) const;
    /// A number with its digits 0 to 9 in the locale's own; symbols and signs stay.
    QString Localized(const QString& number) const;

private:
    QString m_separator;
    QString m_zero;
    qsizetype m_lowest = 3;   ///< digits of the group beside the decimal symbol
    qsizetype m_higher = 3;   ///< digits of the groups above it
    qsizetype m_smallest = 4; ///< fewer digits than these are not grouped
};
