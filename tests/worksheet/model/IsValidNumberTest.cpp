#include "IsValidNumber.h"
#include "QuendNames.h"

#include <QString>

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Case {
    QString text;
    int decimals;
    bool accepted;
};

// clang-format off
const std::vector<Case> Forms{
    // text                        decimals  accepted
    {u""_s,                       0,        true}, // means zero
    {u""_s,                       2,        true},
    {u"0"_s,                      0,        true},
    {u"0123456789"_s,             0,        true},
    {u"9"_s.repeated(400),        0,        true}, // no limit of size
    {u"12345678.9"_s,             2,        true}, // nor of length
    // decimals
    {u"1234.56"_s,                2,        true},
    {u"1234.567"_s,               2,        false}, // one decimal too many
    {u"1234.567"_s,               3,        true},
    {u"1234.5678"_s,              3,        false},
    {u"1.0000"_s,                 3,        false}, // zeros count
    {u"1.2"_s,                    1,        true},
    {u"1.23"_s,                   1,        false},
    // the decimal symbol
    {u"5."_s,                     2,        true},
    {u".5"_s,                     2,        true},
    {u"."_s,                      2,        true},
    {u"5."_s,                     0,        false}, // forbidden without decimals, even at the end
    {u"."_s,                      0,        false},
    {u"30.5"_s,                   0,        false},
    {u"30.5"_s,                   3,        true},
    {u"5."_s,                     -1,       false},
    {u"5"_s,                      -1,       true},
    {u"1.2.3"_s,                  2,        false},
    {u"1.2.3"_s,                  3,        false},
    {u".."_s,                     3,        false},
    {u"1.."_s,                    3,        false},
    // signs
    {u"-5"_s,                     0,        true},
    {u"+5"_s,                     0,        true},
    {u"-"_s,                      0,        true},
    {u"+"_s,                      2,        true},
    {u"-0"_s,                     0,        true},
    {u"+.5"_s,                    2,        true},
    {u"-.5"_s,                    1,        true},
    {u"-."_s,                     2,        true},
    {u"5-"_s,                     2,        false}, // a sign comes first or nowhere
    {u"5+"_s,                     2,        false},
    {u"--5"_s,                    2,        false},
    {u"+-5"_s,                    2,        false},
    {u".-5"_s,                    2,        false},
    {u"1-2"_s,                    0,        false},
    // anything else
    {u"1,234.56"_s,               2,        false}, // grouping
    {u"1,5"_s,                    3,        false}, // another country's symbol
    {u" 5"_s,                     2,        false},
    {u"5 "_s,                     2,        false},
    {u" "_s,                      2,        false},
    {u"1 000"_s,                  2,        false},
    {u"1\u00a0000"_s,             2,        false},
    {u"$5"_s,                     2,        false},
    {u"5%"_s,                     3,        false},
    {u"(5)"_s,                    2,        false},
    {u"1e3"_s,                    3,        false},
    {u"0x10"_s,                   2,        false},
    {u"nan"_s,                    3,        false},
    {u"inf"_s,                    3,        false},
    {u"five"_s,                   2,        false},
    {u"\u0665"_s,                 2,        false}, // a digit, but not 0 to 9
    {u"\uff15"_s,                 2,        false},
    {u"\u22125"_s,                2,        false}, // a minus sign, but not "-"
    {u"5\n"_s,                    2,        false},
    {u"5\t"_s,                    2,        false},
    {QString(u'5') + QChar(u'\0'), 2,        false},
    {u"5/"_s,                     2,        false}, // the neighbours of the digits
    {u"5:"_s,                     2,        false},
};
// clang-format on

TEST(IsValidNumber, LooksAtTheFormAlone) {
    for (const auto& [text, decimals, accepted] : Forms) {
        EXPECT_EQ(IsValidNumber(text, decimals, u'.'), accepted)
            << '"' << text.toStdString() << "\" with " << decimals << " decimals";
    }
}

/// Every text means the same in each country, with that country's symbol.
TEST(IsValidNumber, FollowsTheDecimalSymbol) {
    // clang-format off
    const std::vector<Case> cases{
        // text         decimals  accepted
        {u"6,5"_s,     3,        true},
        {u"6.5"_s,     3,        false},
        {u"6,5"_s,     0,        false},
        {u"6,5678"_s,  3,        false},
        {u"1,2,3"_s,   3,        false},
        {u"1.234,5"_s, 3,        false},
        {u","_s,       2,        true},
        {u"."_s,       2,        false},
    };
    // clang-format on
    for (const QChar symbol : {QChar(u','), QChar(u'\u066b')}) {
        for (const auto& [text, decimals, accepted] : cases) {
            const QString written = QString(text).replace(u',', symbol);
            EXPECT_EQ(IsValidNumber(written, decimals, symbol), accepted) << written.toStdString();
        }
    }
}

} // namespace
