#include "DisplayFormats.h"
#include "QuendNames.h"

#include "Failure.h"
#include "Printing.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <clocale>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

DisplayFormats FormatsOf(const QString& locale) { return DisplayFormats(QLocale(locale)); }

constexpr std::int64_t Largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t Lowest = std::numeric_limits<std::int64_t>::min();

enum class Outcome { Read, NoNumber, TooLarge };

/// The value read, or the failure.
template <class Reading>
Outcome OutcomeOf(Reading reading) {
    try {
        reading();
        return Outcome::Read;
    } catch (const ConversionFailure&) {
        return Outcome::NoNumber;
    } catch (const OverflowFailure&) {
        return Outcome::TooLarge;
    }
}

struct RefusedCase {
    QString locale;
    QString text;
};

/// For both readings.
TEST(ReadNumbers, RefusesWhatIsNoNumber) {
    // clang-format off
    const std::vector<RefusedCase> cases{
        {u"en_US"_s, u""_s},
        {u"en_US"_s, u"-"_s},
        {u"en_US"_s, u"+"_s},
        {u"en_US"_s, u"."_s},
        {u"en_US"_s, u"-."_s},
        {u"en_US"_s, u"1,234"_s},
        {u"en_US"_s, u"1,234.56"_s},
        {u"en_US"_s, u"6,875"_s},
        {u"en_US"_s, u"1.2.3"_s},
        {u"en_US"_s, u"5-"_s},
        {u"en_US"_s, u"--5"_s},
        {u"en_US"_s, u" 5"_s},
        {u"en_US"_s, u"5 "_s},
        {u"en_US"_s, u"1e3"_s},
        {u"en_US"_s, u"nan"_s},
        {u"en_US"_s, u"inf"_s},
        {u"en_US"_s, u"0x1F"_s},
        {u"en_US"_s, u"$5.00"_s},
        {u"en_US"_s, u"6.5%"_s},
        {u"en_US"_s, u"٥"_s},
        {u"de_DE"_s, u"6.5"_s},
        {u"de_DE"_s, u"1.234"_s},
        {u"de_DE"_s, u","_s},
        {u"es_ES"_s, u"1.234,56"_s},
        {u"fr_FR"_s, u"1 234"_s},
        {u"ar_EG"_s, u"6.5"_s},
    };
    // clang-format on
    for (const auto& [locale, text] : cases) {
        const DisplayFormats formats = FormatsOf(locale);
        EXPECT_EQ(OutcomeOf([&, &typed = text] { formats.ReadAmount(typed); }), Outcome::NoNumber)
            << text.toStdString();
        EXPECT_EQ(OutcomeOf([&, &typed = text] { formats.ReadReal(typed); }), Outcome::NoNumber)
            << text.toStdString();
    }
}

struct ReadAmountCase {
    QString locale;
    QString text;
    std::optional<std::int64_t> tenThousandths; ///< none if no amount can hold it
};

void ExpectRead(const std::vector<ReadAmountCase>& cases) {
    for (const auto& [locale, text, expected] : cases) {
        std::optional<std::int64_t> read;
        const Outcome outcome = OutcomeOf([&, &typed = text, &from = locale] {
            read = FormatsOf(from).ReadAmount(typed).TenThousandths();
        });
        EXPECT_EQ(read, expected) << text.toStdString();
        EXPECT_EQ(outcome, expected ? Outcome::Read : Outcome::TooLarge) << text.toStdString();
    }
}

TEST(ReadNumbers, ReadsAmountsExactly) {
    // clang-format off
    const std::vector<ReadAmountCase> cases{
        {u"en_US"_s, u"0"_s,                             0},
        {u"en_US"_s, u"-0"_s,                            0},
        {u"en_US"_s, u"1234.56"_s,                       12'345'600},
        {u"en_US"_s, u"0001"_s,                          10'000},
        {u"en_US"_s, u"5."_s,                            50'000},
        {u"en_US"_s, u".5"_s,                            5'000},
        {u"en_US"_s, u"+.5"_s,                           5'000},
        {u"en_US"_s, u"-.05"_s,                          -500},
        {u"en_US"_s, u"-1234.56"_s,                      -12'345'600},
        {u"en_US"_s, u"1.2345"_s,                        12'345},
        {u"en_US"_s, u"0.00005"_s,                       0}, // more than four decimals: halves to even
        {u"en_US"_s, u"0.000251"_s,                      3},
        {u"en_US"_s, u"9007199254740.9931"_s,            90'071'992'547'409'931}, // no double holds it
        {u"en_US"_s, u"12345678901234567"_s,             std::nullopt},
        {u"en_US"_s, u"922337203685477.5807"_s,          Largest},
        {u"en_US"_s, u"922337203685477.5808"_s,          std::nullopt},
        {u"en_US"_s, u"-922337203685477.5808"_s,         Lowest},
        {u"en_US"_s, u"-922337203685477.5809"_s,         std::nullopt},
        {u"en_US"_s, u"922337203685478"_s,               std::nullopt},
        {u"en_US"_s, u"9"_s.repeated(400),               std::nullopt},
        {u"en_US"_s, u"1"_s.repeated(30) + u".00000"_s, std::nullopt},
        {u"en_US"_s, u"0"_s.repeated(400),               0},
        {u"de_DE"_s, u"1234,56"_s,                       12'345'600},
        {u"es_ES"_s, u"-,5"_s,                           -5'000},
        {u"C"_s,     u"1234.56"_s,                       12'345'600},
        {u"ar_EG"_s, u"6\u066b5"_s,                      65'000},
    };
    // clang-format on
    ExpectRead(cases);
}

/// Decimals that a double cannot represent are still read as typed.
TEST(ReadNumbers, RoundsMoreThanFourDecimalsAsTyped) {
    // clang-format off
    const std::vector<ReadAmountCase> cases{
        // locale     text                         ten-thousandths
        {u"en_US"_s, u"0.00005"_s,               0},
        {u"en_US"_s, u"0.00015"_s,               2},
        {u"en_US"_s, u"0.00025"_s,               2},
        {u"en_US"_s, u"-0.00015"_s,              -2},
        {u"en_US"_s, u"900719925474099.30000"_s, 9'007'199'254'740'993'000},
        {u"en_US"_s, u"922337203685477.58070"_s, Largest},
        {u"en_US"_s, u"922337203685477.58075"_s, std::nullopt},
    };
    // clang-format on
    ExpectRead(cases);
}

struct ReadRealCase {
    QString locale;
    QString text;
    std::optional<double> value; ///< none if it is out of range
};

TEST(ReadNumbers, ReadsRealNumbersToTheLastDigit) {
    // clang-format off
    const std::vector<ReadRealCase> cases{
        {u"en_US"_s, u"0"_s,                         0.0},
        {u"en_US"_s, u"6.5"_s,                       6.5},
        {u"en_US"_s, u"-6.5"_s,                      -6.5},
        {u"en_US"_s, u"+6.5"_s,                      6.5},
        {u"en_US"_s, u".125"_s,                      0.125},
        {u"en_US"_s, u"5."_s,                        5.0},
        {u"en_US"_s, u"0.10000000000000001"_s,       0.10000000000000001}, // seventeen digits
        {u"en_US"_s, u"0.30000000000000004"_s,       0.30000000000000004},
        {u"en_US"_s, u"1.7976931348623157"_s,        1.7976931348623157},
        {u"en_US"_s, u"12345678901234567"_s,         12345678901234567.0},
        {u"en_US"_s, u"9"_s.repeated(308),           1e308},
        {u"en_US"_s, u"9"_s.repeated(400),           std::nullopt},
        {u"en_US"_s, u"-"_s + u"9"_s.repeated(400), std::nullopt},
        {u"de_DE"_s, u"6,5"_s,                       6.5},
        {u"es_ES"_s, u",5"_s,                        0.5},
        {u"ar_EG"_s, u"6\u066b5"_s,                  6.5},
    };
    // clang-format on
    for (const auto& [locale, text, expected] : cases) {
        std::optional<double> read;
        const Outcome outcome = OutcomeOf(
            [&, &typed = text, &from = locale] { read = FormatsOf(from).ReadReal(typed); });
        EXPECT_EQ(read, expected) << text.toStdString();
        EXPECT_EQ(outcome, expected ? Outcome::Read : Outcome::TooLarge) << text.toStdString();
    }
}

/// Creates a locale of the C library that writes 6.5 as 6,5; false if that is not possible.
bool MakeCommaLocale(const QTemporaryDir& folder) {
    QFile source(folder.filePath(u"source"_s));
    if (!source.open(QIODevice::WriteOnly)) {
        return false;
    }
    source.write(
        "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \"\"\ngrouping -1\nEND LC_NUMERIC\n");
    source.close();
    QProcess localedef;
    localedef.start(u"localedef"_s, {u"-c"_s, u"-i"_s, source.fileName(), u"-f"_s, u"UTF-8"_s,
                                     folder.filePath(u"comma.UTF-8"_s)});
    return localedef.waitForFinished();
}

/// Qt gives the C library the user's locale, in which strtod may stop at a point.
TEST(ReadNumbers, ReadsRealNumbersWhateverTheCLibraryReads) {
    const QTemporaryDir folder;
    if (!MakeCommaLocale(folder)) {
        GTEST_SKIP() << "no localedef";
    }
    const DisplayFormats formats = FormatsOf(u"en_US"_s);
    qputenv("LOCPATH", folder.path().toUtf8());
    const bool comma = std::setlocale(LC_NUMERIC, "comma.UTF-8") != nullptr;
    const double read = formats.ReadReal(u"6.5"_s);
    const QString shown = formats.GeneralNumber(6.5) + formats.ThreeDecimals(6.5);
    EXPECT_NE(std::setlocale(LC_NUMERIC, "C"), nullptr);
    qunsetenv("LOCPATH");
    if (!comma) {
        GTEST_SKIP() << "localedef made no locale";
    }
    EXPECT_EQ(read, 6.5);
    EXPECT_EQ(shown, u"6.56.500"_s);
}

TEST(ReadNumbers, ReadsAnyNumberOfZerosAsZero) {
    EXPECT_EQ(FormatsOf(u"en_US"_s).ReadReal(u"0"_s.repeated(400)), 0.0);
}

} // namespace
