#include "FigureTexts.h"
#include "SampleComparison.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <vector>

using namespace quend::compare;
using namespace Qt::StringLiterals;

namespace {

TEST(FigureTexts, Durations) {
    struct Case {
        int months;
        QString english;
        QString spanish;
    };
    const std::array cases{
        // months  English                Spanish
        Case{1, u"1 month"_s, u"1 mes"_s},
        Case{2, u"2 months"_s, u"2 meses"_s},
        Case{11, u"11 months"_s, u"11 meses"_s},
        Case{12, u"1 year"_s, u"1 año"_s},
        Case{13, u"1 year 1 month"_s, u"1 año y 1 mes"_s},
        Case{23, u"1 year 11 months"_s, u"1 año y 11 meses"_s},
        Case{24, u"2 years"_s, u"2 años"_s},
        Case{37, u"3 years 1 month"_s, u"3 años y 1 mes"_s},
        Case{1'199, u"99 years 11 months"_s, u"99 años y 11 meses"_s},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(Duration(row.months, Switch(Texts::English, "en_US")), row.english);
        EXPECT_EQ(Duration(row.months, Switch(Texts::Spanish, "es_MX")), row.spanish);
    }
    EXPECT_EQ(Duration(27, Switch(Texts::English, "ar_EG")), u"٢ years ٣ months"_s);
}

TEST(FigureTexts, StretchesEndWithTheLastMonthInside) {
    struct Case {
        std::vector<CheaperStretch> stretches;
        QString english;
        QString spanish;
    };
    const std::array cases{
        // from, until, …               English                     Spanish
        Case{{}, u"never"_s, u"nunca"_s},
        Case{{{1, {}}}, u"from the start"_s, u"desde el principio"_s},
        Case{{{2, {}}}, u"from 2 months on"_s, u"a partir de 2 meses"_s},
        Case{{{1, 28}}, u"up to 2 years 3 months"_s, u"hasta 2 años y 3 meses"_s},
        Case{{{9, 13}}, u"from 9 months to 1 year"_s, u"de 9 meses a 1 año"_s},
        Case{{{9, 10}}, u"only at 9 months"_s, u"solo a 9 meses"_s},
        Case{{{1, 2}}, u"only at 1 month"_s, u"solo a 1 mes"_s},
        Case{{{1, 7}, {13, 25}, {37, {}}},
             u"up to 6 months; from 1 year 1 month to 2 years; from 3 years 1 month on"_s,
             u"hasta 6 meses; de 1 año y 1 mes a 2 años; a partir de 3 años y 1 mes"_s},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(TextOf(row.stretches, Switch(Texts::English, "en_US")), row.english);
        EXPECT_EQ(TextOf(row.stretches, Switch(Texts::Spanish, "es_MX")), row.spanish);
    }
}

TEST(FigureTexts, ValuesAsTheLocaleWritesThem) {
    struct Case {
        FigureValue value;
        QString english;
        QString spanish;
    };
    const std::array cases{
        // value                                    en_US               es_ES
        Case{{}, u""_s, u""_s},
        Case{u"Oak & Sons"_s, u"Oak & Sons"_s, u"Oak & Sons"_s},
        Case{Money::FromTenThousandths(123'456'750), u"$12,345.68"_s, u"12.345,68 €"_s},
        Case{Rate::FromFraction(0.065414), u"6.541%"_s, u"6,541%"_s},
        Case{Rate(), u".000%"_s, u",000%"_s},
        Case{Date::FromCalendar(2056, 3, 9), u"3/9/2056"_s, u"9/3/2056"_s},
        Case{std::int64_t{1'200}, u"1200"_s, u"1200"_s},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(Plain(TextOf(row.value, Switch(Texts::English, "en_US"))), row.english);
        EXPECT_EQ(Plain(TextOf(row.value, Switch(Texts::Spanish, "es_ES"))), row.spanish);
    }
}

} // namespace
