// Dates as users type them.

#include "TypedDate.h"
#include "QuendNames.h"

#include "CalendarDate.h"
#include "DisplayFormats.h"
#include "Printing.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace {

const Date Today = Date::FromCalendar(2026, 11, 21);

QList<QLocale> EveryLocale() {
    return QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
}

/// Year-month-day, or empty.
QString Read(const QString& text, const QLocale& locale) {
    const auto date = ReadTypedDate(text, DisplayFormats(locale), Today);
    return date ? ToCalendar(*date).toString(Qt::ISODate) : QString();
}

TEST(TypedDate, ReadsBackWhatIsShownInEveryLocale) {
    EXPECT_GT(EveryLocale().size(), 400);
    for (const QLocale& locale : EveryLocale()) {
        const DisplayFormats formats(locale);
        for (const Date date : {Date::FromCalendar(2027, 3, 1), Date::FromCalendar(2031, 12, 28),
                                Date::FromCalendar(1999, 9, 9)}) {
            const QString shown = formats.ShortDate(date);
            EXPECT_EQ(ReadTypedDate(shown, formats, Today), date)
                << locale.name().toStdString() << ": " << shown.toStdString();
            for (const QChar key : shown) {
                EXPECT_TRUE(MayTypeDate(key, formats)) << locale.name().toStdString();
            }
        }
    }
}

TEST(TypedDate, FindsThePartsOfWhatIsShownInEveryLocale) {
    for (const QLocale& locale : EveryLocale()) {
        const DisplayFormats formats(locale);
        const QString shown = formats.ShortDate(Date::FromCalendar(2027, 3, 1));
        const auto parts = DateParts(shown, formats);
        ASSERT_GE(parts.size(), 3U) << shown.toStdString();
        QString units;
        for (const DatePart& part : parts) {
            units += part.unit == 0 ? QString() : QString(QLatin1Char(part.unit));
            if (part.unit == 'y') {
                EXPECT_GE(part.length, 4) << shown.toStdString();
            }
        }
        EXPECT_EQ(units.size(), 3) << shown.toStdString();
    }
}

TEST(TypedDate, IsReadAsPeopleWriteIt) {
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    const QLocale slovak(QLocale::Slovak, QLocale::Slovakia);
    const QLocale hungarian(QLocale::Hungarian, QLocale::Hungary);
    const QLocale bulgarian(QLocale::Bulgarian, QLocale::Bulgaria);
    struct {
        const QLocale& locale;
        QStringView typed;
        QStringView date; ///< empty: not a date
    } const table[]{
        {american, u"3/1/2027", u"2027-03-01"},
        {american, u"03/01/2027", u"2027-03-01"},
        {american, u"3-1-2027", u"2027-03-01"},
        {american, u" 3 . 1 2027 ", u"2027-03-01"},
        {american, u"03012027", u"2027-03-01"},
        {american, u"030127", u"2027-03-01"},
        {american, u"2027-03-01", u"2027-03-01"}, // a leading year means the same everywhere
        {american, u"Mar 1, 2027", u"2027-03-01"},
        {american, u"2/29/2028", u"2028-02-29"},
        {american, u"3/1/27", u"2027-03-01"},
        {american, u"3/1/06", u"2106-03-01"}, // eighty years ahead
        {american, u"3/1/07", u"2007-03-01"}, // nineteen years back
        {american, u"3/1/99", u"2099-03-01"},
        {american, u"1/1/1753", u"1753-01-01"},
        {american, u"12/31/9999", u"9999-12-31"},
        {american, u"2/29/2027", u""},
        {american, u"2/31/2026", u""},
        {american, u"13/1/2026", u""},
        {american, u"0/1/2026", u""},
        {american, u"1/1/1700", u""},
        {american, u"12/31/1752", u""},
        {american, u"1/1/10000", u""},
        {american, u"3/1/7", u""},
        {american, u"3/1/027", u""},
        {american, u"3/1", u""},
        {american, u"3/1/2027/4", u""},
        {american, u"3012027", u""},
        {american, u"", u""},
        {american, u" ", u""},
        {american, u"tomorrow", u""},
        {american, u"3/1/2027x", u""},
        {american, u"99999999999999999999/1/2027", u""},
        {slovak, u"1. 3. 2027", u"2027-03-01"},
        {slovak, u"1.3.2027", u"2027-03-01"},
        {slovak, u"1 3 27", u"2027-03-01"},
        {slovak, u"01032027", u"2027-03-01"},
        {hungarian, u"2027. 03. 01.", u"2027-03-01"},
        {hungarian, u"27. 3. 1", u"2027-03-01"},
        {hungarian, u"20270301", u"2027-03-01"},
        {bulgarian, u"1.03.2027 г.", u"2027-03-01"},
        {bulgarian, u"1.03.2027", u"2027-03-01"},
        {QLocale::c(), u"1 Mar 2027", u"2027-03-01"},
        {QLocale::c(), u"1 march 2027", u"2027-03-01"},
        {QLocale::c(), u"1 3 2027", u"2027-03-01"},
    };
    for (const auto& row : table) {
        EXPECT_EQ(Read(row.typed.toString(), row.locale), row.date)
            << row.typed.toString().toStdString();
    }
}

TEST(TypedDate, TakesLettersOnlyWhereDatesHaveSome) {
    const DisplayFormats american(QLocale(QLocale::English, QLocale::UnitedStates));
    const DisplayFormats bulgarian(QLocale(QLocale::Bulgarian, QLocale::Bulgaria));
    const DisplayFormats plain(QLocale::c());
    for (const QChar key : QStringLiteral("0 9./-,\u0663")) {
        EXPECT_TRUE(MayTypeDate(key, american)) << int{key.unicode()};
    }
    EXPECT_FALSE(MayTypeDate(u'a', american));
    EXPECT_FALSE(MayTypeDate(u'a', bulgarian));
    EXPECT_TRUE(MayTypeDate(u'г', bulgarian));
    EXPECT_TRUE(MayTypeDate(u'a', plain));
}

} // namespace
