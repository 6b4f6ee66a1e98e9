#include "DisplayFormats.h"

#include "Printing.h"

#include <QDate>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <vector>

namespace {

DisplayFormats FormatsOf(const QString& locale) { return DisplayFormats(QLocale(locale)); }

/// No-break blanks and marks of direction are the toolkit's affair.
QString Plain(QString text) {
    for (const QChar mark : {QChar(0x200e), QChar(0x200f), QChar(0x061c)}) {
        text.remove(mark);
    }
    return text.replace(QChar(0xa0), u' ').replace(QChar(0x202f), u' ');
}

constexpr std::int64_t Largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t Lowest = std::numeric_limits<std::int64_t>::min();

struct AmountCase {
    QString locale;
    std::int64_t tenThousandths;
    QString text;
};

TEST(DisplayFormats, GeneralNumberOfAnAmountIsExact) {
    // clang-format off
    const std::vector<AmountCase> cases{
        {u"en_US"_qs, 0,           u"0"_qs},
        {u"en_US"_qs, 10'000,      u"1"_qs},
        {u"en_US"_qs, 1'000'000,   u"100"_qs}, // zeros in front of the symbol stay
        {u"en_US"_qs, 12'345'000,  u"1234.5"_qs}, // no grouping, no trailing zeros
        {u"en_US"_qs, 12'345'600,  u"1234.56"_qs},
        {u"en_US"_qs, 12'345'678,  u"1234.5678"_qs},
        {u"en_US"_qs, 1,           u"0.0001"_qs},
        {u"en_US"_qs, -1,          u"-0.0001"_qs},
        {u"en_US"_qs, -5'000,      u"-0.5"_qs},
        {u"en_US"_qs, -12'345'000, u"-1234.5"_qs},
        {u"en_US"_qs, Largest,     u"922337203685477.5807"_qs},
        {u"en_US"_qs, Lowest,      u"-922337203685477.5808"_qs},
        {u"es_MX"_qs, 12'345'000,  u"1234.5"_qs},
        {u"es_ES"_qs, 12'345'000,  u"1234,5"_qs},
        {u"de_DE"_qs, -12'345'600, u"-1234,56"_qs},
        {u"C"_qs,     12'345'000,  u"1234.5"_qs},
        {u"ar_EG"_qs, 12'345'000,  u"1234\u066b5"_qs},
    };
    // clang-format on
    for (const auto& [locale, count, text] : cases) {
        EXPECT_EQ(FormatsOf(locale).GeneralNumber(Money::FromTenThousandths(count)), text)
            << locale.toStdString();
    }
}

struct RealCase {
    QString locale;
    double value;
    QString text;
};

TEST(DisplayFormats, GeneralNumberOfARealHasFifteenDigits) {
    // clang-format off
    const std::vector<RealCase> cases{
        {u"en_US"_qs, 0,                   u"0"_qs},
        {u"en_US"_qs, 15.5,                u"15.5"_qs},
        {u"en_US"_qs, 0.07337 * 100,       u"7.337"_qs}, // not 7.337000000000001
        {u"en_US"_qs, 0.06875 * 100,       u"6.875"_qs},
        {u"en_US"_qs, 0.07 * 100,          u"7"_qs},
        {u"en_US"_qs, 0.1 + 0.2,           u"0.3"_qs},
        {u"en_US"_qs, -0.125,              u"-0.125"_qs},
        {u"en_US"_qs, 100,                 u"100"_qs},
        {u"en_US"_qs, 1.0 / 3,             u"0.333333333333333"_qs},
        {u"en_US"_qs, 100.0 / 12,          u"8.33333333333333"_qs},
        {u"en_US"_qs, 0.000001,            u"0.000001"_qs}, // never 1E-06
        {u"en_US"_qs, 123456789012345678., u"123456789012345680"_qs},
        {u"en_US"_qs, 1e15,                u"1000000000000000"_qs},
        {u"es_ES"_qs, 6.5,                 u"6,5"_qs},
        {u"de_DE"_qs, 1234.5,              u"1234,5"_qs},
        {u"C"_qs,     6.5,                 u"6.5"_qs},
        {u"ar_EG"_qs, 6.5,                 u"6\u066b5"_qs},
    };
    // clang-format on
    for (const auto& [locale, value, text] : cases) {
        EXPECT_EQ(FormatsOf(locale).GeneralNumber(value), text) << locale.toStdString();
    }
}

TEST(DisplayFormats, CurrencyHasSymbolGroupingAndWholeCents) {
    // clang-format off
    const std::vector<AmountCase> cases{
        {u"en_US"_qs, 12'345'000,              u"$1,234.50"_qs},
        {u"en_US"_qs, -12'345'000,             u"($1,234.50)"_qs},
        {u"en_US"_qs, 12'345'678'900,          u"$1,234,567.89"_qs},
        {u"en_US"_qs, 0,                       u"$0.00"_qs},
        {u"en_US"_qs, 50,                      u"$0.00"_qs}, // half a cent goes to the even one
        {u"en_US"_qs, 150,                     u"$0.02"_qs},
        {u"en_US"_qs, 250,                     u"$0.02"_qs},
        {u"en_US"_qs, 251,                     u"$0.03"_qs},
        {u"en_US"_qs, -50,                     u"$0.00"_qs}, // and no cent at all has no sign
        {u"en_US"_qs, -150,                    u"($0.02)"_qs},
        {u"en_US"_qs, 10'050,                  u"$1.00"_qs},
        {u"en_US"_qs, 10'150,                  u"$1.02"_qs},
        {u"en_US"_qs, 102'847'917,             u"$10,284.79"_qs},
        {u"es_MX"_qs, 12'345'000,              u"$1,234.50"_qs},
        {u"es_MX"_qs, -12'345'000,             u"$-1,234.50"_qs},
        {u"es_ES"_qs, 12'345'000,              u"1234,50 €"_qs}, // four digits stand ungrouped in Spain
        {u"es_ES"_qs, 123'450'000,             u"12.345,00 €"_qs},
        {u"es_ES"_qs, -12'345'000,             u"-1234,50 €"_qs},
        {u"de_DE"_qs, 12'345'678'900,          u"1.234.567,89 €"_qs},
        {u"de_DE"_qs, -12'345'000,             u"-1.234,50 €"_qs},
        {u"C"_qs,     12'345'000,              u"1234.50"_qs},
        {u"C"_qs,     -12'345'000,             u"-1234.50"_qs},
        {u"ar_EG"_qs, 12'345'000,              u"١٬٢٣٤٫٥٠ ج.م."_qs},
        {u"en_US"_qs, 900'719'925'474'099'200, u"$90,071,992,547,409.92"_qs},
    };
    // clang-format on
    for (const auto& [locale, count, text] : cases) {
        EXPECT_EQ(Plain(FormatsOf(locale).Currency(Money::FromTenThousandths(count))), text)
            << locale.toStdString();
    }
}

struct GroupCase {
    QString locale;
    QString million;  ///< 1,234,567.89
    QString thousand; ///< -1,234.50
};

TEST(DisplayFormats, CurrencyGroupsAsTheCountryDoes) {
    // clang-format off
    const std::vector<GroupCase> cases{
        // locale          million                 thousand
        {u"en_US"_qs,      u"$1,234,567.89"_qs,    u"($1,234.50)"_qs},
        {u"es_MX"_qs,      u"$1,234,567.89"_qs,    u"$-1,234.50"_qs},
        {u"es_ES"_qs,      u"1.234.567,89 €"_qs,   u"-1234,50 €"_qs},
        {u"pt_PT"_qs,      u"1 234 567,89 €"_qs,   u"(1234,50 €)"_qs},
        {u"pl_PL"_qs,      u"1 234 567,89 zł"_qs,  u"(1234,50 zł)"_qs},
        {u"hi_IN"_qs,      u"₹12,34,567.89"_qs,    u"₹-1,234.50"_qs},
        {u"fr_CH"_qs,      u"1 234 567,89 CHF"_qs, u"(1 234,50 CHF)"_qs},
        {u"C"_qs,          u"1234567.89"_qs,       u"-1234.50"_qs},
        {u"ff_Adlm_GN"_qs, u"FG 𞥑⹁𞥒𞥓𞥔⹁𞥕𞥖𞥗.𞥘𞥙"_qs,  u"FG -𞥑⹁𞥒𞥓𞥔.𞥕𞥐"_qs},
    };
    // clang-format on
    for (const auto& [locale, million, thousand] : cases) {
        const DisplayFormats formats = FormatsOf(locale);
        EXPECT_EQ(Plain(formats.Currency(Money::FromDouble(1'234'567.89))), million);
        EXPECT_EQ(Plain(formats.Currency(Money::FromDouble(-1'234.5))), thousand);
    }
}

TEST(DisplayFormats, CurrencyIsExactToTheLargestAmount) {
    const DisplayFormats formats = FormatsOf(u"en_US"_qs);
    EXPECT_EQ(formats.Currency(Money::FromTenThousandths(Largest)), u"$922,337,203,685,477.58"_qs);
    EXPECT_EQ(formats.Currency(Money::FromTenThousandths(Lowest)), u"($922,337,203,685,477.58)"_qs);
}

TEST(DisplayFormats, ThreeDecimalsDropsTheZeroInFront) {
    // clang-format off
    const std::vector<RealCase> cases{
        {u"en_US"_qs, 0.5,       u".500"_qs},
        {u"en_US"_qs, -0.5,      u"-.500"_qs},
        {u"en_US"_qs, 0,         u".000"_qs},
        {u"en_US"_qs, 1,         u"1.000"_qs},
        {u"en_US"_qs, -1.25,     u"-1.250"_qs},
        {u"en_US"_qs, 10,        u"10.000"_qs},
        {u"en_US"_qs, 100.5,     u"100.500"_qs},
        {u"en_US"_qs, 1234.5678, u"1234.568"_qs}, // no grouping
        {u"en_US"_qs, 0.9994,    u".999"_qs},
        {u"en_US"_qs, 0.9996,    u"1.000"_qs},
        {u"en_US"_qs, -0.9996,   u"-1.000"_qs},
        {u"en_US"_qs, 20.005,    u"20.005"_qs},
        {u"es_MX"_qs, 0.5,       u".500"_qs},
        {u"es_ES"_qs, 0.5,       u",500"_qs},
        {u"de_DE"_qs, -0.5,      u"-,500"_qs},
        {u"de_DE"_qs, 1.5,       u"1,500"_qs},
        {u"C"_qs,     0.5,       u".500"_qs},
        {u"ar_EG"_qs, 1.5,       u"١\u066b٥٠٠"_qs},
        {u"fa_IR"_qs, -0.25,     u"-\u066b۲۵۰"_qs},
        {u"ff_Adlm_GN"_qs, 12.5, u"𞥑𞥒.𞥕𞥐𞥐"_qs},
    };
    // clang-format on
    for (const auto& [locale, value, text] : cases) {
        EXPECT_EQ(FormatsOf(locale).ThreeDecimals(value), text) << locale.toStdString();
    }
}

TEST(DisplayFormats, PercentShowsAFraction) {
    // clang-format off
    const std::vector<RealCase> cases{
        {u"en_US"_qs, 0.065,   u"6.500%"_qs},
        {u"en_US"_qs, 0.07337, u"7.337%"_qs},
        {u"en_US"_qs, 0.005,   u".500%"_qs},
        {u"en_US"_qs, -0.005,  u"-.500%"_qs},
        {u"en_US"_qs, 0.00001, u".001%"_qs},
        {u"en_US"_qs, 0.01,    u"1.000%"_qs},
        {u"en_US"_qs, 1,       u"100.000%"_qs},
        {u"en_US"_qs, 12.5,    u"1250.000%"_qs},
        {u"es_ES"_qs, 0.065,   u"6,500%"_qs},
        {u"de_DE"_qs, 0.005,   u",500%"_qs},
        {u"ar_EG"_qs, 0.065,   u"٦\u066b٥٠٠%"_qs},
        {u"fa_IR"_qs, 0.065,   u"۶\u066b۵۰۰%"_qs},
    };
    // clang-format on
    for (const auto& [locale, value, text] : cases) {
        EXPECT_EQ(FormatsOf(locale).Percent(value), text) << locale.toStdString();
    }
}

struct TextCase {
    QString locale;
    QString text;
};

TEST(DisplayFormats, ShortDateFollowsTheLocale) {
    // clang-format off
    const std::vector<TextCase> cases{
        {u"en_US"_qs, u"3/9/2056"_qs},
        {u"es_MX"_qs, u"09/03/2056"_qs},
        {u"es_ES"_qs, u"9/3/2056"_qs},
        {u"de_DE"_qs, u"09.03.2056"_qs},
        {u"C"_qs,     u"9 Mar 2056"_qs},
        {u"ar_EG"_qs, u"٩/٣/٢٠٥٦"_qs},
        {u"sv_SE"_qs, u"2056-03-09"_qs},
        {u"ja_JP"_qs, u"2056/03/09"_qs},
    };
    // clang-format on
    for (const auto& [locale, text] : cases) {
        EXPECT_EQ(Plain(FormatsOf(locale).ShortDate(Date::FromCalendar(2056, 3, 9))), text)
            << locale.toStdString();
    }
}

std::vector<QLocale> AllLocales() {
    const QList<QLocale> all =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    return {all.begin(), all.end()};
}

/// Below the first group separator the toolkit shows amounts as each country writes them.
TEST(DisplayFormats, CurrencyFollowsEveryLocale) {
    for (const QLocale& locale : AllLocales()) {
        const DisplayFormats formats(locale);
        for (const double units : {0.0, 0.05, 1.0, 999.99, -1.0, -0.5, -123.45}) {
            EXPECT_EQ(formats.Currency(Money::FromDouble(units)),
                      locale.toCurrencyString(units, QString(), 2))
                << locale.name().toStdString();
        }
    }
}

/// With two digits 2056 could not be told from 1956.
TEST(DisplayFormats, ShortDateHasAFourDigitYearInEveryLocale) {
    const std::vector<QLocale> locales = AllLocales();
    ASSERT_GT(locales.size(), 300U);
    for (const QLocale& locale : locales) {
        const DisplayFormats formats(locale);
        EXPECT_EQ(formats.ShortDateFormat().count(u'y'), 4) << locale.name().toStdString();
        for (const int year : {1956, 2056}) {
            const QString digits = locale.toString(QDate(year, 1, 1), u"yyyy");
            const QString text = formats.ShortDate(Date::FromCalendar(year, 10, 9));
            EXPECT_EQ(text.count(digits), 1) << locale.name().toStdString() << text.toStdString();
        }
    }
}

TEST(DisplayFormats, ReadsBackTheDecimalSymbolOfEveryLocale) {
    for (const QLocale& locale : AllLocales()) {
        const DisplayFormats formats(locale);
        EXPECT_EQ(QString(formats.DecimalSeparator()), locale.decimalPoint())
            << locale.name().toStdString();
        EXPECT_EQ(formats.ReadAmount(formats.GeneralNumber(Money::FromDouble(1234.56))),
                  Money::FromDouble(1234.56))
            << locale.name().toStdString();
    }
}

} // namespace
