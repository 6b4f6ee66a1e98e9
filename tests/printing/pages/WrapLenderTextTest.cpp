#include "WrapLenderText.h"
#include "QuendNames.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <ostream>

namespace {

struct WrapCase {
    const char* why;
    int column; ///< in characters; a line must be narrower
    const char* text;
    const char* wrapped;
};

void PrintTo(const WrapCase& wrap, std::ostream* out) { *out << wrap.why; }

class Wrapping : public testing::TestWithParam<WrapCase> {};

// clang-format off
const std::vector<WrapCase> Cases{
    {"nothing",                                  6, "",                    ""},
    {"a line that fits",                         6, "abcde",               "abcde"},
    {"no break point: before the character",     6, "abcdefgh",            "abcde\r\nfgh"},
    {"as wide as the column is too wide",        6, "abcdef",              "abcde\r\nf"},
    {"instead of a blank",                       8, "one two three",       "one two\r\nthree"},
    {"the last blank counts",                    9, "a b c d e f",         "a b c d\r\ne f"},
    {"the blank itself is too wide",             4, "abc de",              "abc\r\nde"},
    {"after a hyphen, which stays",              8, "semi-annual",         "semi-\r\nannual"},
    {"hyphen after a blank",                     9, "a semi-annual",       "a semi-\r\nannual"},
    {"blank after a hyphen",                     9, "co-op savings",       "co-op\r\nsavings"},
    {"a hyphen that does not fit breaks nothing", 5, "abcd-e",             "abcd\r\n-e"},
    {"then the blank before it does",            7, "ab cde-f",            "ab\r\ncde-f"},
    {"a break that is there stays",              9, "one\r\ntwo",          "one\r\ntwo"},
    {"and the count starts anew behind it",      6, "abc\r\ndefgh",        "abc\r\ndefgh"},
    {"blanks behind a break go",                 9, "one\r\n  two",        "one\r\ntwo"},
    {"blanks at the start of a broken line go",  6, "abcd   efgh",         "abcd \r\nefgh"},
    {"an empty line stays",                      9, "one\r\n\r\ntwo",      "one\r\n\r\ntwo"},
    {"a break at the end stays",                 9, "one\r\n",             "one\r\n"},
    {"a break at the start stays",               9, "\r\none",             "\r\none"},
    {"a blank in front is a break, too",       6, "  abcdef",            " \r\nabcde\r\nf"},
    {"one character a line at least",            1, "abc",                 "a\r\nb\r\nc"},
    {"no room at all",                           0, "ab",                  "a\r\nb"},
    {"letters of two bytes",                     4, "\xC3\xB1\xC3\xB1\xC3\xB1\xC3\xB1", "\xC3\xB1\xC3\xB1\xC3\xB1\r\n\xC3\xB1"},
    {"a character of two units is whole",        2, "a\xF0\x9F\x8F\xA0" "b", "a\r\n\xF0\x9F\x8F\xA0\r\nb"},
    {"a blank with an accent is no blank",       5, "abc \xCC\x81" "d",     "abc\r\n \xCC\x81" "d"},
    {"nor is one after a blank",                 4, "ab  \xCC\x81" "c",     "ab\r\n \xCC\x81" "c"},
    {"a hyphen at the end of the text",          6, "abc-",                "abc-"},
    {"blanks only",                              3, "     ",               "  \r\n"},
};
// clang-format on

TEST_P(Wrapping, BreaksLines) {
    const auto width = [](const QString& line) { return static_cast<double>(line.size()); };
    EXPECT_EQ(
        WrapLenderText(QString::fromUtf8(GetParam().text), GetParam().column, width).toStdString(),
        GetParam().wrapped);
}

INSTANTIATE_TEST_SUITE_P(Lender, Wrapping, testing::ValuesIn(Cases));

/// A page of words in a narrow column: every line is narrower than the column, and no word is lost.
TEST(WrappingPages, LosesNothing) {
    QString text;
    for (int word = 0; word < 600; ++word) {
        text += QStringLiteral("word%1 ").arg(word);
    }
    const auto width = [](const QString& line) { return static_cast<double>(line.size()); };
    const QString wrapped = WrapLenderText(text, 20, width);
    for (const QString& line : wrapped.split(QStringLiteral("\r\n"))) {
        EXPECT_LT(line.size(), 20) << line.toStdString();
    }
    EXPECT_EQ(QString(wrapped).replace(QStringLiteral("\r\n"), QStringLiteral(" ")).simplified(),
              text.simplified());
}

} // namespace
