#include "FigureTexts.h"

#include "CompareTextNumbers.h"
#include "FieldValue.h"
#include "Language.h"

#include <QLocale>

#include <cmath>
#include <variant>

namespace quend::compare {

namespace {

QString Counted(int count, int one, int many, const DisplayFormats& formats) {
    return count == 1 ? GetResourceText(one)
                      : GetResourceText(many).arg(formats.InOwnDigits(QString::number(count)));
}

/// Writes each kind of value.
class Writer {
public:
    explicit Writer(const DisplayFormats& formats) : m_formats(&formats) {}

    QString operator()(std::monostate /*none*/) const { return {}; }
    QString operator()(const QString& text) const { return text; }
    QString operator()(Money amount) const { return m_formats->Currency(amount); }
    QString operator()(Rate rate) const { return m_formats->Percent(rate); }
    QString operator()(Date date) const { return m_formats->ShortDate(date); }
    QString operator()(std::int64_t count) const {
        return m_formats->InOwnDigits(QString::number(count));
    }
    QString operator()(const std::vector<CheaperStretch>& stretches) const {
        if (stretches.empty()) {
            return GetResourceText(TextNumber::CompareNever);
        }
        QString joined;
        for (const CheaperStretch& stretch : stretches) {
            const QString text = StretchText(stretch, *m_formats);
            joined = joined.isEmpty()
                         ? text
                         : GetResourceText(TextNumber::CompareNextStretch).arg(joined, text);
        }
        return joined;
    }

private:
    const DisplayFormats* m_formats;
};

} // namespace

QString Duration(int months, const DisplayFormats& formats) {
    const int years = months / MonthsPerYear;
    const int rest = months % MonthsPerYear;
    const QString inYears =
        Counted(years, TextNumber::CompareYear, TextNumber::CompareYears, formats);
    QString inMonths = Counted(rest, TextNumber::CompareMonth, TextNumber::CompareMonths, formats);
    if (years == 0) {
        return inMonths;
    }
    return rest == 0 ? inYears
                     : GetResourceText(TextNumber::CompareYearsAndMonths).arg(inYears, inMonths);
}

QString StretchText(const CheaperStretch& stretch, const DisplayFormats& formats) {
    const QString from = Duration(stretch.fromMonth, formats);
    if (!stretch.untilMonth) {
        return stretch.fromMonth <= 1 ? GetResourceText(TextNumber::CompareFromTheStart)
                                      : GetResourceText(TextNumber::CompareFromOn).arg(from);
    }
    const int last = *stretch.untilMonth - 1;
    if (last <= stretch.fromMonth) {
        return GetResourceText(TextNumber::CompareOnlyAt).arg(from);
    }
    const QString until = Duration(last, formats);
    return stretch.fromMonth <= 1 ? GetResourceText(TextNumber::CompareUpTo).arg(until)
                                  : GetResourceText(TextNumber::CompareFromTo).arg(from, until);
}

QString TextOf(const FigureValue& value, const DisplayFormats& formats) {
    return std::visit(Writer(formats), value);
}

QString PlainNumberOf(const FigureValue& value) {
    static const DisplayFormats plain(QLocale::c());
    constexpr double precision = 1e8;
    const ByType number{
        [](Money amount) { return plain.GeneralNumber(amount); },
        [](Rate rate) {
            const double percent = Percent::FromRate(rate).Value();
            return plain.GeneralNumber(std::round(percent * precision) / precision);
        },
        [](std::int64_t count) { return QString::number(count); },
        [](const auto& /*other*/) { return QString(); },
    };
    return std::visit(number, value);
}

} // namespace quend::compare
