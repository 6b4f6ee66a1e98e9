#include "StoredTexts.h"

#include "CalendarDate.h"
#include "Failure.h"

#include <QLocale>

#include <cmath>
#include <initializer_list>
#include <limits>

namespace quend::storage {

namespace {

bool IsDecimalSymbol(QChar c) {
    constexpr QChar arabic(0x066B);
    return c == u'.' || c == u',' || c == arabic;
}

} // namespace

std::string StoredTexts::Write(Money amount) const {
    return m_formats.GeneralNumber(amount).toStdString();
}

std::string StoredTexts::Write(double number) const {
    return m_formats.GeneralNumber(number).toStdString();
}

std::string StoredTexts::Write(Date date) const {
    return date.IsNone() ? std::string() : m_formats.ShortDate(date).toStdString();
}

std::string StoredTexts::DateFormat() const { return m_formats.ShortDateFormat().toStdString(); }

/// Leaves a second symbol in place, so that the text is not a valid number.
QString StoredTexts::InOwnSymbol(const std::string& number) const {
    QString text = QString::fromStdString(number);
    for (QChar& c : text) {
        if (IsDecimalSymbol(c)) {
            c = m_formats.DecimalSeparator();
        }
    }
    return text;
}

Money StoredTexts::ReadAmount(const std::string& text) const {
    return m_formats.ReadAmount(InOwnSymbol(text));
}

double StoredTexts::ReadReal(const std::string& text) const {
    return m_formats.ReadReal(InOwnSymbol(text));
}

int StoredTexts::ReadMonths(const std::string& text) const {
    const double months = std::nearbyint(ReadReal(text));
    if (!(std::abs(months) <= std::numeric_limits<int>::max())) {
        throw OverflowFailure(ProgramSource);
    }
    return static_cast<int>(months);
}

Date StoredTexts::ReadDate(const std::string& text) const {
    const QString date = QString::fromStdString(text);
    struct Reading {
        QLocale locale; // for the names of months
        QString format;
    };
    const QString own = m_formats.ShortDateFormat();
    for (const Reading& reading :
         {Reading{m_formats.Locale(), m_writtenDateFormat},
          Reading{QLocale::c(), m_writtenDateFormat}, Reading{m_formats.Locale(), own}}) {
        const QDate day = reading.locale.toDate(date, reading.format);
        if (!reading.format.isEmpty() && day.isValid()) {
            return FromCalendar(day);
        }
    }
    throw ConversionFailure(ProgramSource);
}

} // namespace quend::storage
