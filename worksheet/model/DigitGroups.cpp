#include "DigitGroups.h"

#include <QStringList>

#include <algorithm>
#include <limits>

namespace quend::model {

DigitGroups::DigitGroups(const QLocale& locale)
    : m_separator(locale.groupSeparator()), m_zero(locale.zeroDigit()) {
    // Its highest group has two digits, so that every locale groups it, whatever its minimum is.
    const QStringList groups = locale.toString(12'345'678'901'234LL).split(m_separator);
    if (m_separator.isEmpty() || groups.size() < 3) {
        m_smallest = std::numeric_limits<qsizetype>::max();
        return;
    }
    m_lowest = groups.last().size() / m_zero.size();
    m_higher = groups.at(groups.size() - 2).size() / m_zero.size();
    m_smallest = locale.toString(1'234).contains(m_separator) ? m_lowest + 1 : m_lowest + 2;
}

QString DigitGroups::Grouped(const QString& digits) const {
    if (digits.size() < m_smallest) {
        return Localized(digits);
    }
    QString grouped = Localized(digits.last(m_lowest));
    QString rest = digits.chopped(m_lowest);
    while (!rest.isEmpty()) {
        const qsizetype taken = std::min(m_higher, rest.size());
        grouped.prepend(Localized(rest.last(taken)) + m_separator);
        rest.chop(taken);
    }
    return grouped;
}

QString DigitGroups::Localized(const QString& number) const {
    if (m_zero == u'0') {
        return number;
    }
    QString localized;
    for (const QChar digit : number) {
        if (digit < u'0' || digit > u'9') {
            localized += digit;
            continue;
        }
        // The digits of a script have consecutive code points, in some scripts beyond U+FFFF.
        const char32_t zero = m_zero.toUcs4().first();
        const char32_t shown = zero + static_cast<char32_t>(digit.unicode() - u'0');
        localized += QString::fromUcs4(&shown, 1);
    }
    return localized;
}

} // namespace quend::model
