#include "TypedDate.h"

#include "CalendarDate.h"
#include "DisplayFormats.h"

#include <QDate>
#include <QLocale>

#include <algorithm>

namespace quend::model {

namespace {

/// A date format without its quoted parts.
struct Format {
    QString units; ///< 'd', 'M' and 'y', each once
    QString literals;
    bool hasNames = false;
};

Format Taken(const QString& format) {
    Format taken;
    bool quoted = false;
    for (const QChar c : format) {
        if (c == u'\'') {
            quoted = !quoted;
        } else if (quoted) {
            taken.literals += c;
        } else if ((c == u'd' || c == u'M' || c == u'y') && !taken.units.contains(c)) {
            taken.units += c;
        }
    }
    taken.hasNames = format.contains(QLatin1String("MMM"));
    return taken;
}

bool IsDigit(char32_t c) { return QChar::digitValue(c) >= 0; }
bool IsLetter(char32_t c) { return QChar::isLetter(c) || QChar::isMark(c); }

/// A sequence of digits or of letters.
struct Run {
    qsizetype start = 0;
    QString text;
    QString digits; ///< the same in Latin digits; empty for letters
};

std::vector<Run> RunsOf(const QString& text) {
    std::vector<Run> runs;
    enum class Kind { Other, Digits, Letters } before = Kind::Other;
    qsizetype place = 0;
    for (const char32_t c : text.toUcs4()) {
        const Kind kind = IsDigit(c) ? Kind::Digits : IsLetter(c) ? Kind::Letters : Kind::Other;
        const QString here = QString::fromUcs4(&c, 1);
        if (kind != Kind::Other && kind != before) {
            runs.push_back({place, {}, {}});
        }
        if (kind != Kind::Other) {
            runs.back().text += here;
        }
        if (kind == Kind::Digits) {
            runs.back().digits += QString::number(QChar::digitValue(c));
        }
        before = kind;
        place += here.size();
    }
    return runs;
}

/// 0 if it is not the name of a month.
int MonthNamed(const QString& name, const QLocale& locale) {
    for (int month = 1; month <= 12; ++month) {
        for (const auto length : {QLocale::ShortFormat, QLocale::LongFormat}) {
            if (name.compare(locale.monthName(month, length), Qt::CaseInsensitive) == 0 ||
                name.compare(locale.standaloneMonthName(month, length), Qt::CaseInsensitive) == 0) {
                return month;
            }
        }
    }
    return 0;
}

/// Splits "03012027" or "030127", which has no separators.
QStringList CutInParts(const QString& digits, const QString& units) {
    QStringList parts;
    qsizetype from = 0;
    for (const QChar unit : units) {
        const qsizetype length = unit == u'y' ? digits.size() - 4 : 2;
        parts.append(digits.mid(from, length));
        from += length;
    }
    return parts;
}

/// From nineteen years ago to eighty years ahead; 0 if it is not a year.
int YearOf(const QString& digits, int thisYear) {
    constexpr int century = 100;
    const int first = thisYear - 19;
    const int year = digits.toInt();
    if (digits.size() == 2) {
        return first + ((year - first) % century + century) % century;
    }
    return digits.size() == 4 && year >= FirstTypedYear && year <= LastTypedYear ? year : 0;
}

} // namespace

std::vector<DatePart> DateParts(const QString& text, const DisplayFormats& formats) {
    const QString units = Taken(formats.ShortDateFormat()).units;
    std::vector<DatePart> parts;
    for (const Run& run : RunsOf(text)) {
        const auto index = static_cast<qsizetype>(parts.size());
        const char unit = index < units.size() ? units.at(index).toLatin1() : '\0';
        parts.push_back({run.start, run.text.size(), unit});
    }
    return parts;
}

bool MayTypeDate(QChar key, const DisplayFormats& formats) {
    const Format format = Taken(formats.ShortDateFormat());
    return key.isSurrogate() || !IsLetter(key.unicode()) || format.hasNames ||
           format.literals.contains(key);
}

std::optional<Date> ReadTypedDate(const QString& text, const DisplayFormats& formats, Date today) {
    const Format format = Taken(formats.ShortDateFormat());
    QString units = format.units;
    QStringList numbers;
    int month = 0;
    for (const Run& run : RunsOf(text)) {
        if (!run.digits.isEmpty()) {
            numbers.append(run.digits);
        } else if (const int named = MonthNamed(run.text, formats.Locale());
                   named != 0 && month == 0) {
            month = named;
            units.remove(u'M');
        } else if (!format.literals.contains(run.text)) {
            return {};
        }
    }
    if (numbers.size() == 1 && month == 0 && (numbers[0].size() == 8 || numbers[0].size() == 6)) {
        numbers = CutInParts(numbers[0], units);
    }
    if (numbers.size() != units.size() || numbers.size() < 2) {
        return {};
    }
    if (numbers[0].size() == 4 && month == 0) {
        units = QStringLiteral("yMd");
    }
    const auto number = [&](char16_t unit) { return numbers.at(units.indexOf(QChar(unit))); };
    const QDate day(YearOf(number(u'y'), static_cast<int>(today.Calendar().year())),
                    month != 0 ? month : number(u'M').toInt(), number(u'd').toInt());
    return day.isValid() ? std::optional(FromCalendar(day)) : std::nullopt;
}

} // namespace quend::model
