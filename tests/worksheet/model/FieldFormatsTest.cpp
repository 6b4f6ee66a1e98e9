#include "FieldValue.h"
#include "QuendNames.h"

#include "Failure.h"
#include "Printing.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

// How failed comparisons print a term.
inline void PrintTo(Months term, std::ostream* out) { *out << term.count << " months"; }

namespace {

using enum ValueKind;

enum class Unit { Months, Years };

FieldFormats TextsIn(const QString& locale, Unit unit) {
    return {DisplayFormats(QLocale(locale)), unit == Unit::Months};
}

FieldValue Units(double units) { return Money::FromDouble(units); }
FieldValue Yearly(double fraction) { return calc::Rate::FromFraction(fraction); }
FieldValue Points(double percent) { return calc::Percent::FromPercent(percent); }

struct ShowCase {
    FieldValue number;
    Unit unit;
    QString entry;
    QString display;
};

TEST(FieldFormats, ShowsBareForEntryAndDressedForDisplay) {
    // clang-format off
    const std::vector<ShowCase> cases{
        // number          terms in      for entry               for display
        {Units(1234.5),   Unit::Months, u"1234.5"_s,           u"$1,234.50"_s},
        {Units(-1234.5),  Unit::Years,  u"-1234.5"_s,          u"($1,234.50)"_s},
        {Units(0.0049),   Unit::Months, u"0.0049"_s,           u"$0.00"_s},
        {Units(0),        Unit::Months, u""_s,                 u""_s},
        {Yearly(0.065),   Unit::Months, u"6.5"_s,              u"6.500%"_s},
        {Yearly(0.07337), Unit::Months, u"7.337"_s,            u"7.337%"_s},
        {Yearly(-0.005),  Unit::Years,  u"-0.5"_s,             u"-.500%"_s},
        {Yearly(0.0),     Unit::Months, u""_s,                 u""_s},
        {Yearly(-0.0),    Unit::Months, u""_s,                 u""_s},
        {Points(1.5),     Unit::Months, u"1.5"_s,              u"1.500"_s},
        {Points(0.5),     Unit::Months, u"0.5"_s,              u".500"_s},
        {Points(0.0),     Unit::Months, u""_s,                 u""_s},
        {Months{360},     Unit::Months, u"360"_s,              u"360"_s},
        {Months{360},     Unit::Years,  u"30"_s,               u"30"_s},
        {Months{186},     Unit::Years,  u"15.5"_s,             u"15.5"_s},
        {Months{100},     Unit::Years,  u"8.33333333333333"_s, u"8.33333333333333"_s},
        {Months{-12},     Unit::Years,  u"-1"_s,               u"-1"_s},
        {Months{0},       Unit::Months, u""_s,                 u""_s},
        {Months{12000},   Unit::Months, u"12000"_s,            u"12000"_s},
        {Months{0},       Unit::Years,  u""_s,                 u""_s},
    };
    // clang-format on
    for (const ShowCase& c : cases) {
        const FieldFormats texts = TextsIn(u"en_US"_s, c.unit);
        EXPECT_EQ(texts.EntryText(c.number), c.entry);
        EXPECT_EQ(texts.DisplayText(c.number), c.display);
    }
}

TEST(FieldFormats, ShowsTermsWithTheDecimalSymbolOfTheLocale) {
    EXPECT_EQ(TextsIn(u"de_DE"_s, Unit::Years).EntryText(Months{186}), u"15,5"_s);
    EXPECT_EQ(TextsIn(u"de_DE"_s, Unit::Years).DisplayText(Months{186}), u"15,5"_s);
}

struct ReadCase {
    ValueKind kind;
    QString text;
    Unit unit;
    FieldValue number;
};

constexpr int LargestTerm = std::numeric_limits<int>::max();

TEST(FieldFormats, ReadsWhatTheKindHolds) {
    // clang-format off
    const std::vector<ReadCase> cases{
        // kind          text              terms in      number
        {Amount,         u"1234.56"_s,    Unit::Months, Units(1234.56)},
        {Amount,         u"-5"_s,         Unit::Months, Units(-5)},
        {Amount,         u""_s,           Unit::Months, Units(0)},
        {Rate,           u"6.5"_s,        Unit::Months, Yearly(6.5 / 100)},
        {Rate,           u"6.875"_s,      Unit::Months, Yearly(6.875 / 100)},
        {Rate,           u"-.5"_s,        Unit::Months, Yearly(-0.005)},
        {Rate,           u""_s,           Unit::Months, Yearly(0.0)},
        {Percent,        u"1.25"_s,       Unit::Months, Points(1.25)},
        {Percent,        u""_s,           Unit::Months, Points(0.0)},
        {WholeTerm,      u""_s,           Unit::Months, Months{0}},
        {WholeTerm,      u""_s,           Unit::Years,  Months{0}},
        {FractionalTerm, u""_s,           Unit::Years,  Months{0}},
        {WholeTerm,      u"360"_s,        Unit::Months, Months{360}},
        {FractionalTerm, u"360"_s,        Unit::Months, Months{360}},
        {WholeTerm,      u"30"_s,         Unit::Years,  Months{360}},
        {FractionalTerm, u"30"_s,         Unit::Years,  Months{360}},
        {WholeTerm,      u"12.5"_s,       Unit::Years,  Months{144}}, // 12 years
        {FractionalTerm, u"12.5"_s,       Unit::Years,  Months{150}}, // and six months
        {WholeTerm,      u"13.5"_s,       Unit::Years,  Months{168}}, // 14 years: halves to even
        {WholeTerm,      u"30.5"_s,       Unit::Years,  Months{360}},
        {WholeTerm,      u"30.501"_s,     Unit::Years,  Months{372}},
        {WholeTerm,      u"12.5"_s,       Unit::Months, Months{12}},
        {WholeTerm,      u"13.5"_s,       Unit::Months, Months{14}},
        {FractionalTerm, u"12.5"_s,       Unit::Months, Months{12}},
        {FractionalTerm, u"0.125"_s,      Unit::Years,  Months{2}}, // 1.5 months
        {FractionalTerm, u"0.375"_s,      Unit::Years,  Months{4}}, // 4.5 months
        {WholeTerm,      u"-12"_s,        Unit::Years,  Months{-144}},
        {WholeTerm,      u"2147483647"_s, Unit::Months, Months{LargestTerm}},
        {WholeTerm,      u"178956970"_s,  Unit::Years,  Months{2'147'483'640}},
        {FractionalTerm, u"178956970"_s,  Unit::Years,  Months{2'147'483'640}},
    };
    // clang-format on
    for (const ReadCase& c : cases) {
        EXPECT_TRUE(TextsIn(u"en_US"_s, c.unit).Read(c.kind, c.text) == c.number)
            << c.text.toStdString() << " of kind " << static_cast<int>(c.kind);
    }
}

TEST(FieldFormats, ReadsTheDecimalSymbolOfTheLocale) {
    const FieldFormats texts = TextsIn(u"de_DE"_s, Unit::Years);
    EXPECT_TRUE(texts.Read(Amount, u"6,5"_s) == Units(6.5));
    EXPECT_TRUE(texts.Read(Rate, u"6,5"_s) == Yearly(0.065));
    EXPECT_TRUE(texts.Read(FractionalTerm, u"12,5"_s) == FieldValue(Months{150}));
    EXPECT_THROW(static_cast<void>(texts.Read(Rate, u"6.5"_s)), ConversionFailure);
}

struct BadCase {
    ValueKind kind;
    QString text;
    Unit unit;
    bool tooLarge; ///< else it is no number
};

TEST(FieldFormats, ReadingFailsWithItsReason) {
    // clang-format off
    const std::vector<BadCase> cases{
        {Amount,         u"-"_s,                    Unit::Months, false},
        {Amount,         u"."_s,                    Unit::Months, false},
        {Amount,         u"1,234"_s,                Unit::Months, false},
        {Amount,         u"922337203685477.5808"_s, Unit::Months, true},
        {Rate,           u"6.5%"_s,                 Unit::Months, false},
        {Rate,           u"9"_s.repeated(400),      Unit::Months, true},
        {Percent,        u"+"_s,                    Unit::Months, false},
        {Percent,        u"9"_s.repeated(400),      Unit::Months, true},
        {WholeTerm,      u"-"_s,                    Unit::Months, false},
        {WholeTerm,      u"2147483648"_s,           Unit::Months, true},
        {WholeTerm,      u"-2147483649"_s,          Unit::Months, true},
        {WholeTerm,      u"178956971"_s,            Unit::Years,  true},
        {WholeTerm,      u"2147483647"_s,           Unit::Years,  true},
        {WholeTerm,      u"9"_s.repeated(400),      Unit::Years,  true},
        {FractionalTerm, u"."_s,                    Unit::Years,  false},
        {FractionalTerm, u"2147483648"_s,           Unit::Months, true},
        {FractionalTerm, u"178956971"_s,            Unit::Years,  true},
    };
    // clang-format on
    for (const BadCase& c : cases) {
        const FieldFormats texts = TextsIn(u"en_US"_s, c.unit);
        const auto read = [&] { static_cast<void>(texts.Read(c.kind, c.text)); };
        if (c.tooLarge) {
            EXPECT_THROW(read(), OverflowFailure) << c.text.toStdString();
        } else {
            EXPECT_THROW(read(), ConversionFailure) << c.text.toStdString();
        }
    }
}

TEST(FieldFormats, KnowsZero) {
    EXPECT_TRUE(IsZero(Money()));
    EXPECT_TRUE(IsZero(Yearly(0.0)));
    EXPECT_TRUE(IsZero(Points(-0.0)));
    EXPECT_TRUE(IsZero(Months{}));
    EXPECT_FALSE(IsZero(Money::FromTenThousandths(1)));
    EXPECT_FALSE(IsZero(Yearly(1e-300)));
    EXPECT_FALSE(IsZero(Months{-1}));
}

} // namespace
