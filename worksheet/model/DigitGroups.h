#pragma once

#include <QLocale>
#include <QString>

namespace quend::model {

/// How a locale groups the whole digits of an amount: 1,234,567 or 12,34,567 or, in Spain, 1234 but
/// 12.345. The grouping is measured from the locale. Qt's own grouping is wrong where groups start
/// at five digits (1234.567), and it formats amounts through a double, which loses cents.
class DigitGroups {
public:
    explicit DigitGroups(const QLocale& locale);

    /// Replaces the digits 0 to 9 by those of the locale and adds its group separators.
    QString Grouped(const QString& digits) const;
    /// Replaces the digits 0 to 9 by those of the locale; symbols and signs stay.
    QString Localized(const QString& number) const;

private:
    QString m_separator;
    QString m_zero;
    qsizetype m_lowest = 3;   ///< digits of the group beside the decimal symbol
    qsizetype m_higher = 3;   ///< digits of every higher group
    qsizetype m_smallest = 4; ///< a number with fewer digits is not grouped
};

} // namespace quend::model
