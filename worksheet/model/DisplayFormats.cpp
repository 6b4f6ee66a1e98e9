#include "DisplayFormats.h"

#include "CalendarDate.h"
#include "Failure.h"
#include "IsValidNumber.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quend::model {

namespace {

constexpr int SignificantDigits = 15;
constexpr int AllDecimals = std::numeric_limits<int>::max();

QString WithoutTrailingZeros(QString number) {
    if (number.contains(u'.')) {
        while (number.endsWith(u'0')) {
            number.chop(1);
        }
        if (number.endsWith(u'.')) {
            number.chop(1);
        }
    }
    return number;
}

/// With a two-digit year a payoff in 2056 would be read back as 1956.
QString WithFourDigitYear(QString format) {
    if (!format.contains(QLatin1String("yyyy"))) {
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    }
    return format;
}

/// Whether the digits that are cut off round the preceding number away from zero: halves to even.
bool RoundsAway(const QString& cutOff, bool isOdd) {
    if (cutOff.isEmpty() || cutOff.front() != u'5') {
        return !cutOff.isEmpty() && cutOff.front() > u'5';
    }
    const bool isHalf = std::ranges::all_of(cutOff.mid(1), [](QChar c) { return c == u'0'; });
    return !isHalf || isOdd;
}

bool HasDigit(QStringView text) {
    return std::ranges::any_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

DisplayFormats::DisplayFormats(const QLocale& locale)
    : m_locale(locale), m_separator(locale.decimalPoint().front()),
      m_shortDate(WithFourDigitYear(locale.dateFormat(QLocale::ShortFormat))), m_groups(locale) {}

QString DisplayFormats::WithSeparator(QString plainNumber) const {
    return plainNumber.replace(u'.', m_separator);
}

QString DisplayFormats::GeneralNumber(Money amount) const {
    constexpr std::int64_t unit = 10'000;
    const std::int64_t count = amount.TenThousandths();
    const QString sign = count < 0 ? QStringLiteral("-") : QString();
    const QString decimals =
        QString::number(std::abs(count % unit)).rightJustified(4, QLatin1Char('0'));
    return WithSeparator(
        sign + WithoutTrailingZeros(QString::number(std::abs(count / unit)) + u'.' + decimals));
}

QString DisplayFormats::GeneralNumber(double value) const {
    const int magnitude =
        value == 0 ? 0 : static_cast<int>(std::floor(std::log10(std::abs(value))));
    const int decimals = std::max(0, SignificantDigits - 1 - magnitude);
    return WithSeparator(WithoutTrailingZeros(QString::number(value, 'f', decimals)));
}

QString DisplayFormats::WithSymbol(const QString& number, bool negative, int decimals) const {
    // The locale places symbol and sign around one unit; the exact digits then replace the one.
    const QString one = m_locale.toString(1.0, 'f', decimals);
    QString shown = m_locale.toCurrencyString(negative ? -1.0 : 1.0, QString(), decimals);
    return shown.replace(one, number);
}

QString DisplayFormats::Currency(Money amount) const {
    constexpr std::int64_t perCent = 100;
    const std::int64_t cents = amount.RoundedToCents().TenThousandths() / perCent;
    const QString digits = QString::number(std::abs(cents)).rightJustified(3, QLatin1Char('0'));
    const QString number = m_groups.Grouped(digits.chopped(2)) + m_locale.decimalPoint() +
                           m_groups.Localized(digits.last(2));
    return WithSymbol(number, cents < 0, 2);
}

QString DisplayFormats::WholeCurrency(Money amount) const {
    constexpr std::int64_t perUnit = 10'000;
    const std::int64_t rest = std::abs(amount.TenThousandths() % perUnit);
    std::int64_t units = std::abs(amount.TenThousandths() / perUnit);
    if (rest > perUnit / 2 || (rest == perUnit / 2 && units % 2 == 1)) {
        ++units;
    }
    return WithSymbol(m_groups.Grouped(QString::number(units)), amount < Money() && units > 0, 0);
}

QString DisplayFormats::ThreeDecimals(double value) const {
    QString number = QString::number(value, 'f', 3);
    if (std::abs(value) < 1 && number.contains(QLatin1String("0."))) {
        number.remove(number.indexOf(u'0'), 1);
    }
    return InOwnDigits(WithSeparator(number));
}

QString DisplayFormats::Percent(Rate rate) const {
    return ThreeDecimals(calc::Percent::FromRate(rate).Value()) + u'%';
}

QString DisplayFormats::ShortDate(Date date) const {
    return m_locale.toString(ToCalendar(date), m_shortDate);
}

Money DisplayFormats::ReadAmount(const QString& text) const {
    QString plain = PlainNumber(text);
    const bool negative = plain.startsWith(u'-');
    plain.remove(u'-');
    const qsizetype point = plain.indexOf(u'.');
    const QString whole = point < 0 ? plain : plain.left(point);
    const QString decimals = point < 0 ? QString() : plain.mid(point + 1);
    // Uses an integer: a double would lose cents in large amounts.
    const QString count = whole + decimals.left(4).leftJustified(4, u'0');
    bool fits = false;
    const qlonglong tenThousandths =
        ((negative ? QStringLiteral("-") : QString()) + count).toLongLong(&fits);
    if (!fits) {
        throw OverflowFailure(ProgramSource);
    }
    const Money amount = Money::FromTenThousandths(tenThousandths);
    if (!RoundsAway(decimals.mid(4), (tenThousandths & 1) != 0)) {
        return amount;
    }
    return amount + Money::FromTenThousandths(negative ? -1 : 1);
}

double DisplayFormats::ReadReal(const QString& text) const {
    // Not strtod, because it follows the locale of the process.
    const double value = QLocale::c().toDouble(PlainNumber(text));
    if (!std::isfinite(value)) {
        throw OverflowFailure(ProgramSource);
    }
    return value;
}

QString DisplayFormats::PlainNumber(const QString& text) const {
    if (!IsValidNumber(text, AllDecimals, m_separator) || !HasDigit(text)) {
        throw ConversionFailure(ProgramSource);
    }
    QString plain = text;
    return plain.replace(m_separator, u'.').remove(u'+');
}

} // namespace quend::model
