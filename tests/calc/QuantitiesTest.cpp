#include "Quantities.h"
#include "QuendNames.h"

#include "Conversions.h"
#include "Date.h"
#include "Failure.h"
#include "Money.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using OtherCode = StoredCode<struct OtherCodeKind>;
static_assert(AreApart<Money, Date, Rate, Percent, Months, FrequencyCode, OtherCode>);
static_assert(!IsApart<int, double>); // the check itself finds a conversion

constexpr Rate SixAndAHalf = Rate::FromFraction(0.065);
static_assert(SixAndAHalf.Fraction() == 0.065 && SixAndAHalf > Rate());
static_assert(Rate().IsZero() && Rate::FromFraction(-0.0).IsZero() && !SixAndAHalf.IsZero());
static_assert(Percent().IsZero() && !Percent::FromPercent(-0.5).IsZero());
static_assert(Months().IsZero() && Months{1} < Months{2});

constexpr int Most = std::numeric_limits<int>::max();

struct RoundingCase {
    double value;
    std::optional<int> months; ///< none means OverflowFailure
    std::optional<int> ofYears;
    std::optional<int> ofWholeYears;
};

std::optional<int> CountOf(Months (*read)(double), double value) {
    try {
        return read(value).count;
    } catch (const OverflowFailure&) {
        return {};
    }
}

TEST(Quantities, RoundsATermToWholeMonthsHalvesToEven) {
    constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
    constexpr std::nullopt_t Fails = std::nullopt;
    // clang-format off
    const std::vector<RoundingCase> cases{
        //          value       months        ofYears   ofWholeYears
        {             0.0,           0,             0,             0 },
        {             0.5,           0,             6,             0 },
        {             1.5,           2,            18,            24 },
        {             2.5,           2,            30,            24 },
        {            12.5,          12,           150,           144 },
        {            -2.5,          -2,           -30,           -24 },
        {           0.125,           0,             2,             0 }, // 1.5 months
        {   178'956'970.0, 178'956'970, 2'147'483'640, 2'147'483'640 },
        {   178'956'971.0, 178'956'971,         Fails,         Fails },
        { 2'147'483'647.0,        Most,         Fails,         Fails },
        { 2'147'483'647.5,       Fails,         Fails,         Fails }, // rounds to 2^31
        {-2'147'483'647.0,       -Most,         Fails,         Fails },
        {-2'147'483'648.0,       Fails,         Fails,         Fails },
        {      NotANumber,       Fails,         Fails,         Fails },
    };
    // clang-format on
    for (const auto& [value, months, ofYears, ofWholeYears] : cases) {
        SCOPED_TRACE(value);
        EXPECT_EQ(CountOf(Months::Nearest, value), months);
        EXPECT_EQ(CountOf(Months::FromYears, value), ofYears);
        EXPECT_EQ(CountOf(Months::FromWholeYears, value), ofWholeYears);
    }
}

TEST(Quantities, Convert) {
    EXPECT_EQ(Percent::FromPercent(50.0).ToRate(), Rate::FromFraction(0.5));
    EXPECT_EQ(Percent::FromRate(Rate::FromFraction(0.5)), Percent::FromPercent(50.0));
    EXPECT_EQ(Percent::FromPercent(1.5).Of(200.0), 3.0);
    EXPECT_EQ(Months{30}.InYears(), 2.5);
}

TEST(Quantities, KeepsAnyCodeUnchanged) {
    for (const QString& text : {u"M"_s, u"x1"_s, u" "_s, u"m "_s}) {
        EXPECT_EQ(FrequencyCode(text).Text(), text);
        EXPECT_FALSE(FrequencyCode(text).IsNone());
        EXPECT_NE(FrequencyCode(text), FrequencyCode());
    }
    EXPECT_TRUE(FrequencyCode().IsNone());
    EXPECT_TRUE(FrequencyCode(u""_s).IsNone());
    EXPECT_LT(FrequencyCode(u"B"_s), FrequencyCode(u"M"_s));
}

} // namespace
