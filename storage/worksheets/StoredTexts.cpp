#include "StoredTexts.h"

#include "CalendarDate.h"
#include "Failure.h"

#include <QLocale>

#include <initializer_list>

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

std::string StoredTexts::Write(Percent percent) const {
    return m_formats.GeneralNumber(percent.Value()).toStdString();
}

std::string StoredTexts::Write(Rate rate) const { return Write(Percent::FromRate(rate)); }

std::string StoredTexts::Write(Months term) const {
    return m_formats.GeneralNumber(static_cast<double>(term.count)).toStdString();
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

Percent StoredTexts::ReadPercent(const std::string& text) const {
    return Percent::FromPercent(m_formats.ReadReal(InOwnSymbol(text)));
}

Rate StoredTexts::ReadRate(const std::string& text) const { return ReadPercent(text).ToRate(); }

Months StoredTexts::ReadMonths(const std::string& text) const {
    return Months::Nearest(m_formats.ReadReal(InOwnSymbol(text)));
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
