#include "ChartWords.h"

#include "CompareTextNumbers.h"
#include "Language.h"

namespace quend::compare {

namespace {

QString Digits(const DisplayFormats& formats, int number) {
    return formats.InOwnDigits(QString::number(number));
}

/// The texts of one sentence, for a month and for today.
struct SentenceTexts {
    int later;
    int today;
};

SentenceTexts TextsFor(ChartShows shows, bool isCurrent) {
    if (shows == ChartShows::Cost) {
        return isCurrent
                   ? SentenceTexts{TextNumber::ChartCurrentCost, TextNumber::ChartCurrentCostToday}
                   : SentenceTexts{TextNumber::ChartCost, TextNumber::ChartCostToday};
    }
    return isCurrent
               ? SentenceTexts{TextNumber::ChartCurrentOwed, TextNumber::ChartCurrentOwedToday}
               : SentenceTexts{TextNumber::ChartOwed, TextNumber::ChartOwedToday};
}

} // namespace

QString NameOfShown(ChartShows shows) {
    return GetResourceText(shows == ChartShows::Cost ? TextNumber::ChartCostSoFar
                                                     : TextNumber::ChartBalance);
}

QString NameOfMonth(const DisplayFormats& formats, int month) {
    return month == 0 ? GetResourceText(TextNumber::ChartToday)
                      : GetResourceText(TextNumber::ChartMonth).arg(Digits(formats, month));
}

QString NameOfYear(const DisplayFormats& formats, int year) {
    return year == 0 ? GetResourceText(TextNumber::ChartToday)
                     : GetResourceText(TextNumber::ChartYear).arg(Digits(formats, year));
}

QString NameOfHorizon(const DisplayFormats& formats, int years) {
    return years == 1 ? GetResourceText(TextNumber::ChartHorizonOfOne)
                      : GetResourceText(TextNumber::ChartHorizon).arg(Digits(formats, years));
}

QString SentenceOf(const ChartData& data, const DisplayFormats& formats, const ChartLine& line,
                   int month) {
    const SentenceTexts texts = TextsFor(data.shows, line.IsCurrent());
    const QString amount = formats.Currency(line.By(month));
    const QString text = GetResourceText(month == 0 ? texts.today : texts.later);
    // All places at once, because a name may hold "%2".
    if (month == 0) {
        return line.IsCurrent() ? text.arg(amount) : text.arg(line.name, amount);
    }
    const QString number = Digits(formats, month);
    return line.IsCurrent() ? text.arg(number, amount) : text.arg(number, line.name, amount);
}

} // namespace quend::compare
