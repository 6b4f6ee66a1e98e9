#include "Forms.h"

#include "QuendNames.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// The text around the digits of an amount, positive and negative.
struct Habits {
    QLocale::Language language;
    QLocale::Country country;
    char16_t point;
    char16_t group;
    const char16_t* before;
    const char16_t* after;
    const char16_t* beforeNegative;
    const char16_t* afterNegative;
    const char16_t* day;
    const char16_t* symbol;
    const char16_t* code;
};

const std::array<Habits, Forms::Countries> AllHabits{{
    {QLocale::English, QLocale::UnitedStates, u'.', u',', u"$", u"", u"($", u")", u"M/d/yyyy", u"$",
     u"USD"},
    {QLocale::Spanish, QLocale::Mexico, u'.', u',', u"$", u"", u"$-", u"", u"dd/MM/yyyy", u"$",
     u"MXN"},
    {QLocale::German, QLocale::Germany, u',', u'.', u"", u"\u00a0€", u"-", u"\u00a0€",
     u"dd.MM.yyyy", u"€", u"EUR"},
}};

QString Said(const char16_t* text) { return QString::fromUtf16(text); }

/// Adds one in the last place, away from zero.
QString Upwards(QString digits) {
    for (qsizetype at = digits.size() - 1; at >= 0; --at) {
        if (digits.at(at).isDigit()) {
            const bool carries = digits.at(at) == u'9';
            digits[at] = carries ? QChar(u'0') : QChar(digits.at(at).unicode() + 1);
            if (!carries) {
                return digits;
            }
        }
    }
    return digits.insert(digits.startsWith(u'-') ? 1 : 0, u'1');
}

/// Halves away from zero.
QString WrittenOut(double number, int decimals) {
    if (std::abs(number) >= 1e15) { // beyond the precision of a double
        return QString::number(number, 'f', decimals);
    }
    constexpr int all = 1'074; // decimals of the smallest double
    std::array<char, all + 20> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.*f", all, number);
    const QString exact = QString::fromLatin1(text.data(), length);
    const qsizetype point = exact.indexOf(u'.');
    const QString kept = exact.left(decimals == 0 ? point : point + 1 + decimals);
    return exact.at(point + 1 + decimals) < u'5' ? kept : Upwards(kept);
}

int PowerOfTen(double number) {
    std::array<char, 40> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.14e", number);
    const QString scientific = QString::fromLatin1(text.data(), length);
    return scientific.mid(scientific.indexOf(u'e') + 1).toInt();
}

/// The digits of an amount before and after the decimal point.
struct Digits {
    QString whole;
    QString decimals;
};

Digits DigitsOf(Plain::Count amount) {
    const Plain::Wide all = amount < 0 ? -static_cast<Plain::Wide>(amount) : amount;
    return {QString::number(static_cast<qulonglong>(all / 10'000)),
            QString::number(static_cast<int>(all % 10'000) + 10'000).mid(1)};
}

QString WithoutEndingZeros(QString decimals) {
    while (decimals.endsWith(u'0')) {
        decimals.chop(1);
    }
    return decimals;
}

} // namespace

Forms::Forms(std::size_t country)
    : m_country(country % Countries), m_point(AllHabits.at(m_country).point) {}

QLocale Forms::Locale() const {
    return {AllHabits.at(m_country).language, AllHabits.at(m_country).country};
}

QString Forms::Currency(Plain::Count amount) const {
    if (amount == 0) {
        return {};
    }
    const Habits& habits = AllHabits.at(m_country);
    const Plain::Count cents = Plain::ToCents(amount);
    Digits digits = DigitsOf(cents);
    for (qsizetype at = digits.whole.size() - 3; at > 0; at -= 3) {
        digits.whole.insert(at, QChar(habits.group));
    }
    const QString shown = digits.whole + m_point + digits.decimals.left(2);
    return cents < 0 ? Said(habits.beforeNegative) + shown + Said(habits.afterNegative)
                     : Said(habits.before) + shown + Said(habits.after);
}

QString Forms::Number(Plain::Count amount) const {
    if (amount == 0) {
        return {};
    }
    const Digits digits = DigitsOf(amount);
    const QString decimals = WithoutEndingZeros(digits.decimals);
    return (amount < 0 ? u"-"_s : QString()) + digits.whole +
           (decimals.isEmpty() ? QString() : m_point + decimals);
}

QString Forms::Number(double number) const {
    if (number == 0) {
        return {};
    }
    // Fifteen digits, wherever the decimal point is.
    QString text = WrittenOut(number, std::max(0, 14 - PowerOfTen(number)));
    const qsizetype point = text.indexOf(u'.');
    if (point >= 0) {
        const QString decimals = WithoutEndingZeros(text.mid(point + 1));
        text = text.left(point) + (decimals.isEmpty() ? QString() : m_point + decimals);
    }
    return text;
}

QString Forms::ThreeDecimals(double number) const {
    if (number == 0) {
        return {};
    }
    QString text = WrittenOut(number, 3);
    for (const QLatin1String start : {QLatin1String("0."), QLatin1String("-0.")}) {
        if (text.startsWith(start)) {
            text.remove(start.size() - 2, 1);
            break;
        }
    }
    return text.replace(u'.', m_point);
}

QString Forms::Percent(double fraction) const {
    return fraction == 0 ? QString() : ThreeDecimals(fraction * 100) + u'%';
}

QString Forms::Day(QDate day) const {
    return day.isNull() ? QString() : day.toString(Said(AllHabits.at(m_country).day));
}

QDate Forms::ReadDay(const QString& text, int thisYear) const {
    QStringList parts = text.split(QRegularExpression(u"[^0-9]+"_s), Qt::SkipEmptyParts);
    if (parts.size() == 1 && (text.size() == 6 || text.size() == 8)) {
        parts = {text.left(2), text.mid(2, 2), text.mid(4)};
    }
    if (parts.size() != 3 || std::ranges::any_of(text, [](QChar c) { return c.isLetter(); })) {
        return {};
    }
    if (parts[0].size() == 4) { // year, month, day
        parts = {parts[1], parts[2], parts[0]};
    } else if (m_country != 0) { // day, month, year
        parts.swapItemsAt(0, 1);
    }
    int year = parts[2].toInt();
    if (parts[2].size() == 2) {
        year += thisYear / 100 * 100;
        year += year < thisYear - 19 ? 100 : year > thisYear + 80 ? -100 : 0;
    } else if (parts[2].size() != 4 || year < 1753) {
        return {};
    }
    return {year, parts[0].toInt(), parts[1].toInt()};
}

QString Forms::Term(int months, bool inMonths) const {
    return inMonths ? Number(static_cast<double>(months)) : Number(months / 12.0);
}

bool Forms::IsForm(QStringView text, int decimals) const {
    qsizetype points = 0;
    qsizetype behind = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool isDigit = c >= u'0' && c <= u'9';
        const bool isSign = (c == u'+' || c == u'-') && i == 0;
        points += c == m_point ? 1 : 0;
        behind += isDigit && points > 0 ? 1 : 0;
        if (!isDigit && !isSign && c != m_point) {
            return false;
        }
    }
    return points <= (decimals > 0 ? 1 : 0) && behind <= decimals;
}

QString Forms::Bare(const QString& text) const {
    const bool hasDigit = std::ranges::any_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!hasDigit) {
        throw NoNumber{};
    }
    QString bare = text;
    return bare.remove(u'+').replace(m_point, u'.');
}

double Forms::ReadReal(const QString& text) const {
    if (text.isEmpty()) {
        return 0;
    }
    const std::string bare = Bare(text).toStdString();
    double number = 0;
    const auto read = std::from_chars(bare.data(), bare.data() + bare.size(), number);
    if (read.ec == std::errc::result_out_of_range) {
        throw Plain::TooLarge{};
    }
    return number;
}

Plain::Count Forms::ReadAmount(const QString& text) const {
    if (text.isEmpty()) {
        return 0;
    }
    const QString bare = Bare(text);
    const bool isNegative = bare.startsWith(u'-');
    const qsizetype point = bare.indexOf(u'.');
    const qsizetype decimals = point < 0 ? 0 : bare.size() - point - 1;
    Plain::Wide count = 0;
    QString digits = bare + QString(4 - decimals, u'0');
    for (const QChar c : digits.remove(u'.').remove(u'-')) {
        count = count * 10 + (c.unicode() - u'0');
        if (count > static_cast<Plain::Wide>(1) << 64) {
            throw Plain::TooLarge{};
        }
    }
    count = isNegative ? -count : count;
    using Limits = std::numeric_limits<Plain::Count>;
    if (count < Limits::min() || count > Limits::max()) {
        throw Plain::TooLarge{};
    }
    return static_cast<Plain::Count>(count);
}

std::optional<QString> Forms::FromCell(QString cell, bool isAmount, bool isPercent) const {
    const Habits& habits = AllHabits.at(m_country);
    if (isAmount) {
        cell.remove(Said(habits.symbol)).remove(Said(habits.code));
    } else if (isPercent) {
        cell.remove(u'%');
    }
    cell = cell.trimmed();
    if (cell.size() > 2 && cell.startsWith(u'(') && cell.endsWith(u')')) {
        cell = u'-' + cell.mid(1).chopped(1).trimmed();
    }
    cell.replace(u'−', u'-');
    QStringList groups = cell.split(QChar(habits.group));
    if (groups.size() == 1) {
        return cell;
    }
    const auto digitsAtStart = [](const QString& text) {
        return std::ranges::find_if(text, [](QChar c) { return c < u'0' || c > u'9'; }) -
               text.begin();
    };
    const auto isGroup = [&](const QString& group, qsizetype least, qsizetype most) {
        return digitsAtStart(group) == group.size() && group.size() >= least &&
               group.size() <= most;
    };
    QString first = groups.takeFirst();
    const QString last = groups.takeLast();
    first.remove(0, first.startsWith(u'-') || first.startsWith(u'+') ? 1 : 0);
    const bool areGroups =
        isGroup(first, 1, 3) && digitsAtStart(last) == 3 &&
        std::ranges::all_of(groups, [&](const QString& group) { return isGroup(group, 2, 3); });
    return areGroups ? std::optional(cell.remove(QChar(habits.group))) : std::nullopt;
}
