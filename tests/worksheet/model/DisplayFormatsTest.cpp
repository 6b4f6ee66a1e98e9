#include "DisplayFormats.h"
#include "QuendNames.h"

#include "Printing.h"

#include <QDate>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

DisplayFormats FormatsOf(const QString& locale) { return DisplayFormats(QLocale(locale)); }

/// Removes no-break blanks and direction marks, which depend on Qt.
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
        {u"en_US"_s, 0,           u"0"_s},
        {u"en_US"_s, 10'000,      u"1"_s},
        {u"en_US"_s, 1'000'000,   u"100"_s}, // zeros in front of the symbol stay
        {u"en_US"_s, 12'345'000,  u"1234.5"_s}, // no grouping, no trailing zeros
        {u"en_US"_s, 12'345'600,  u"1234.56"_s},
        {u"en_US"_s, 12'345'678,  u"1234.5678"_s},
        {u"en_US"_s, 1,           u"0.0001"_s},
        {u"en_US"_s, -1,          u"-0.0001"_s},
        {u"en_US"_s, -5'000,      u"-0.5"_s},
        {u"en_US"_s, -12'345'000, u"-1234.5"_s},
        {u"en_US"_s, Largest,     u"922337203685477.5807"_s},
        {u"en_US"_s, Lowest,      u"-922337203685477.5808"_s},
        {u"es_MX"_s, 12'345'000,  u"1234.5"_s},
        {u"es_ES"_s, 12'345'000,  u"1234,5"_s},
        {u"de_DE"_s, -12'345'600, u"-1234,56"_s},
        {u"C"_s,     12'345'000,  u"1234.5"_s},
        {u"ar_EG"_s, 12'345'000,  u"1234\u066b5"_s},
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
        {u"en_US"_s, 0,                   u"0"_s},
        {u"en_US"_s, 15.5,                u"15.5"_s},
        {u"en_US"_s, 0.07337 * 100,       u"7.337"_s}, // not 7.337000000000001
        {u"en_US"_s, 0.06875 * 100,       u"6.875"_s},
        {u"en_US"_s, 0.07 * 100,          u"7"_s},
        {u"en_US"_s, 0.1 + 0.2,           u"0.3"_s},
        {u"en_US"_s, -0.125,              u"-0.125"_s},
        {u"en_US"_s, 100,                 u"100"_s},
        {u"en_US"_s, 1.0 / 3,             u"0.333333333333333"_s},
        {u"en_US"_s, 100.0 / 12,          u"8.33333333333333"_s},
        {u"en_US"_s, 0.000001,            u"0.000001"_s}, // never 1E-06
        {u"en_US"_s, 123456789012345678., u"123456789012345680"_s},
        {u"en_US"_s, 1e15,                u"1000000000000000"_s},
        {u"es_ES"_s, 6.5,                 u"6,5"_s},
        {u"de_DE"_s, 1234.5,              u"1234,5"_s},
        {u"C"_s,     6.5,                 u"6.5"_s},
        {u"ar_EG"_s, 6.5,                 u"6\u066b5"_s},
    };
    // clang-format on
    for (const auto& [locale, value, text] : cases) {
        EXPECT_EQ(FormatsOf(locale).GeneralNumber(value), text) << locale.toStdString();
    }
}

TEST(DisplayFormats, CurrencyHasSymbolGroupingAndWholeCents) {
    // clang-format off
    const std::vector<AmountCase> cases{
        {u"en_US"_s, 12'345'000,              u"$1,234.50"_s},
        {u"en_US"_s, -12'345'000,             u"($1,234.50)"_s},
        {u"en_US"_s, 12'345'678'900,          u"$1,234,567.89"_s},
        {u"en_US"_s, 0,                       u"$0.00"_s},
        {u"en_US"_s, 50,                      u"$0.00"_s}, // half a cent rounds to even
        {u"en_US"_s, 150,                     u"$0.02"_s},
        {u"en_US"_s, 250,                     u"$0.02"_s},
        {u"en_US"_s, 251,                     u"$0.03"_s},
        {u"en_US"_s, -50,                     u"$0.00"_s}, // zero has no sign
        {u"en_US"_s, -150,                    u"($0.02)"_s},
        {u"en_US"_s, 10'050,                  u"$1.00"_s},
        {u"en_US"_s, 10'150,                  u"$1.02"_s},
        {u"en_US"_s, 102'847'917,             u"$10,284.79"_s},
        {u"es_MX"_s, 12'345'000,              u"$1,234.50"_s},
        {u"es_MX"_s, -12'345'000,             u"$-1,234.50"_s},
        {u"es_ES"_s, 12'345'000,              u"1234,50 €"_s}, // Spain does not group four digits
        {u"es_ES"_s, 123'450'000,             u"12.345,00 €"_s},
        {u"es_ES"_s, -12'345'000,             u"-1234,50 €"_s},
        {u"de_DE"_s, 12'345'678'900,          u"1.234.567,89 €"_s},
        {u"de_DE"_s, -12'345'000,             u"-1.234,50 €"_s},
        {u"C"_s,     12'345'000,              u"1234.50"_s},
        {u"C"_s,     -12'345'000,             u"-1234.50"_s},
        {u"ar_EG"_s, 12'345'000,              u"١٬٢٣٤٫٥٠ ج.م."_s},
        {u"en_US"_s, 900'719'925'474'099'200, u"$90,071,992,547,409.92"_s},
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
        {u"en_US"_s,      u"$1,234,567.89"_s,    u"($1,234.50)"_s},
        {u"es_MX"_s,      u"$1,234,567.89"_s,    u"$-1,234.50"_s},
        {u"es_ES"_s,      u"1.234.567,89 €"_s,   u"-1234,50 €"_s},
        {u"pt_PT"_s,      u"1 234 567,89 €"_s,   u"(1234,50 €)"_s},
        {u"pl_PL"_s,      u"1 234 567,89 zł"_s,  u"(1234,50 zł)"_s},
        {u"hi_IN"_s,      u"₹12,34,567.89"_s,    u"₹-1,234.50"_s},
        {u"fr_CH"_s,      u"1 234 567,89 CHF"_s, u"(1 234,50 CHF)"_s},
        {u"C"_s,          u"1234567.89"_s,       u"-1234.50"_s},
        {u"ff_Adlm_GN"_s, u"FG 𞥑⹁𞥒𞥓𞥔⹁𞥕𞥖𞥗.𞥘𞥙"_s,  u"FG -𞥑⹁𞥒𞥓𞥔.𞥕𞥐"_s},
    };
    // clang-format on
    for (const auto& [locale, million, thousand] : cases) {
        const DisplayFormats formats = FormatsOf(locale);
        EXPECT_EQ(Plain(formats.Currency(Money::FromDouble(1'234'567.89))), million);
        EXPECT_EQ(Plain(formats.Currency(Money::FromDouble(-1'234.5))), thousand);
    }
}

TEST(DisplayFormats, CurrencyIsExactToTheLargestAmount) {
    const DisplayFormats formats = FormatsOf(u"en_US"_s);
    EXPECT_EQ(formats.Currency(Money::FromTenThousandths(Largest)), u"$922,337,203,685,477.58"_s);
    EXPECT_EQ(formats.Currency(Money::FromTenThousandths(Lowest)), u"($922,337,203,685,477.58)"_s);
}

TEST(DisplayFormats, WholeCurrencyRoundsToUnits) {
    // clang-format off
    const std::vector<AmountCase> cases{
        {u"en_US"_s, 643'104'900,  u"$64,310"_s},
        {u"en_US"_s, 643'105'000,  u"$64,310"_s}, // halves to even
        {u"en_US"_s, 643'115'000,  u"$64,312"_s},
        {u"en_US"_s, -643'105'001, u"($64,311)"_s},
        {u"en_US"_s, -5'000,       u"$0"_s}, // zero has no sign
        {u"en_US"_s, Largest,      u"$922,337,203,685,478"_s},
        {u"en_US"_s, Lowest,       u"($922,337,203,685,478)"_s},
        {u"es_ES"_s, 12'345'000,   u"1234 €"_s},
        {u"es_ES"_s, 643'104'900,  u"64.310 €"_s},
        {u"es_MX"_s, -12'345'000,  u"$-1,234"_s},
        {u"ar_EG"_s, 12'345'000,   u"١٬٢٣٤ ج.م."_s},
    };
    // clang-format on
    for (const auto& [locale, count, text] : cases) {
        EXPECT_EQ(Plain(FormatsOf(locale).WholeCurrency(Money::FromTenThousandths(count))), text)
            << locale.toStdString();
    }
}

TEST(DisplayFormats, ThreeDecimalsDropsTheZeroInFront) {
    // clang-format off
    const std::vector<RealCase> cases{
        {u"en_US"_s, 0.5,       u".500"_s},
        {u"en_US"_s, -0.5,      u"-.500"_s},
        {u"en_US"_s, 0,         u".000"_s},
        {u"en_US"_s, 1,         u"1.000"_s},
        {u"en_US"_s, -1.25,     u"-1.250"_s},
        {u"en_US"_s, 10,        u"10.000"_s},
        {u"en_US"_s, 100.5,     u"100.500"_s},
        {u"en_US"_s, 1234.5678, u"1234.568"_s}, // no grouping
        {u"en_US"_s, 0.9994,    u".999"_s},
        {u"en_US"_s, 0.9996,    u"1.000"_s},
        {u"en_US"_s, -0.9996,   u"-1.000"_s},
        {u"en_US"_s, 20.005,    u"20.005"_s},
        {u"es_MX"_s, 0.5,       u".500"_s},
        {u"es_ES"_s, 0.5,       u",500"_s},
        {u"de_DE"_s, -0.5,      u"-,500"_s},
        {u"de_DE"_s, 1.5,       u"1,500"_s},
        {u"C"_s,     0.5,       u".500"_s},
        {u"ar_EG"_s, 1.5,       u"١\u066b٥٠٠"_s},
        {u"fa_IR"_s, -0.25,     u"-\u066b۲۵۰"_s},
        {u"ff_Adlm_GN"_s, 12.5, u"𞥑𞥒.𞥕𞥐𞥐"_s},
    };
    // clang-format on
    for (const auto& [locale, value, text] : cases) {
        EXPECT_EQ(FormatsOf(locale).ThreeDecimals(value), text) << locale.toStdString();
    }
}

TEST(DisplayFormats, PercentShowsAFraction) {
    // clang-format off
    const std::vector<RealCase> cases{
        {u"en_US"_s, 0.065,   u"6.500%"_s},
        {u"en_US"_s, 0.07337, u"7.337%"_s},
        {u"en_US"_s, 0.005,   u".500%"_s},
        {u"en_US"_s, -0.005,  u"-.500%"_s},
        {u"en_US"_s, 0.00001, u".001%"_s},
        {u"en_US"_s, 0.01,    u"1.000%"_s},
        {u"en_US"_s, 1,       u"100.000%"_s},
        {u"en_US"_s, 12.5,    u"1250.000%"_s},
        {u"es_ES"_s, 0.065,   u"6,500%"_s},
        {u"de_DE"_s, 0.005,   u",500%"_s},
        {u"ar_EG"_s, 0.065,   u"٦\u066b٥٠٠%"_s},
        {u"fa_IR"_s, 0.065,   u"۶\u066b۵۰۰%"_s},
    };
    // clang-format on
    for (const auto& [locale, value, text] : cases) {
        EXPECT_EQ(FormatsOf(locale).Percent(Rate::FromFraction(value)), text)
            << locale.toStdString();
    }
}

struct TextCase {
    QString locale;
    QString text;
};

TEST(DisplayFormats, ShortDateFollowsTheLocale) {
    // clang-format off
    const std::vector<TextCase> cases{
        {u"en_US"_s, u"3/9/2056"_s},
        {u"es_MX"_s, u"09/03/2056"_s},
        {u"es_ES"_s, u"9/3/2056"_s},
        {u"de_DE"_s, u"09.03.2056"_s},
        {u"C"_s,     u"9 Mar 2056"_s},
        {u"ar_EG"_s, u"٩/٣/٢٠٥٦"_s},
        {u"sv_SE"_s, u"2056-03-09"_s},
        {u"ja_JP"_s, u"2056/03/09"_s},
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

/// Below the first group separator Qt formats amounts as each country does.
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

/// With two digits 2056 would look like 1956.
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
