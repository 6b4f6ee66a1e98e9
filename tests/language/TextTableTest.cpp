#include "TextTable.h"
#include "QuendNames.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

void PrintTo(const TextTableFault& fault, std::ostream* out) {
    *out << fault.line << ": " << fault.description.toStdString();
}

namespace {

TextTable ParsedWithHead(const char* lines) {
    return TextTable::Parse(QStringLiteral("language = English\ntag = engl\n") +
                            QString::fromUtf8(lines));
}

TEST(TextTable, ReadsALine) {
    struct Case {
        const char* line;
        int number;
        const char* text; // nullptr: no text
    };
    const std::vector<Case> cases{
        {"1 = x", 1, "x"},
        {"64  = &About...", 64, "&About..."},
        {"7=x", 7, "x"},
        {"\t7 \t=\tx y \t", 7, "x y"},
        {"7 = x\r", 7, "x"},
        {"007 = x", 7, "x"},
        {"2147483647 = x", 2147483647, "x"},
        {"7 = a = b", 7, "a = b"},
        {"7 = # no note", 7, "# no note"},
        {R"(7 = a\nb)", 7, "a\nb"},
        {R"(7 = a\\nb)", 7, R"(a\nb)"},
        {R"(7 = \\)", 7, R"(\)"},
        {R"(7 = \n)", 7, "\n"},
        {"7 = Español ¿«é»?", 7, "Español ¿«é»?"},
        {"7 = P && I", 7, "P && I"},
        {"# 7 = x", 7, nullptr},
        {"  # 7 = x", 7, nullptr},
        {"7 = x", 8, nullptr},
        {"7 = x", -7, nullptr},
        {"", 0, nullptr},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.line);
        const TextTable table = ParsedWithHead(row.line);
        EXPECT_EQ(std::vector<TextTableFault>{}, table.Faults());
        EXPECT_EQ(row.text == nullptr, table.Text(row.number).isNull());
        EXPECT_EQ(QString::fromUtf8(row.text), table.Text(row.number));
    }
}

TEST(TextTable, NamesTheFaultAndItsLine) {
    struct Case {
        const char* table;
        int line;
        const char* description;
    };
    constexpr const char* Malformed = "neither a note nor \"number = text\"";
    constexpr const char* Empty = "nothing after the equals sign";
    constexpr const char* Backslash = "a backslash before neither \"n\" nor a backslash";
    const std::vector<Case> cases{
        {"language=E\ntag=e\n7 = x\n7 = x", 4, "a second text 7"},
        {"language=E\ntag=e\n7 = x\n\n# note\n07 = y", 6, "a second text 7"},
        {"language=E\ntag=e\nx", 3, Malformed},
        {"language=E\ntag=e\n= x", 3, Malformed},
        {"language=E\ntag=e\n7: x", 3, Malformed},
        {"language=E\ntag=e\n7 =", 3, Empty},
        {"language=E\ntag=e\n7 =  \t", 3, Empty},
        {"language=E\ntag=e\n7 = a\\tb", 3, Backslash},
        {"language=E\ntag=e\n7 = a\\", 3, Backslash},
        {"language=E\ntag=e\n0 = x", 3, "the number 0 is out of range"},
        {"language=E\ntag=e\n2147483648 = x", 3, "the number 2147483648 is out of range"},
        {"language=E\ntag=e\n99999999999999999999999 = x", 3,
         "the number 99999999999999999999999 is out of range"},
        {"language=E\ntag=e\n-7 = x", 3, "\"-7\" is no number"},
        {"language=E\ntag=e\n7a = x", 3, "\"7a\" is no number"},
        {"language=E\ntag=e\n7 7 = x", 3, "\"7 7\" is no number"},
        {"language=E\ntag=e\nTag = x", 3, "\"Tag\" is no number"},
        {"language=E\ntag=e\ntag = x", 3, "a second \"tag\""},
        {"language=E\nlanguage=F\ntag=e", 2, "a second \"language\""},
        {"language=E\n7 = x", 0, "no line \"tag = …\""},
        {"tag=e\n7 = x", 0, "no line \"language = …\""},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.table);
        const std::vector<TextTableFault> expected{{row.line, QString::fromUtf8(row.description)}};
        EXPECT_EQ(expected, TextTable::Parse(QString::fromUtf8(row.table)).Faults());
    }
}

TEST(TextTable, KeepsWhatIsSoundAmongFaults) {
    const TextTable table = TextTable::Parse(u"tag=\n7 = first\nx\n7 = second\n8 = eight\n");
    EXPECT_EQ(5U, table.Faults().size());
    EXPECT_EQ(QStringLiteral("first"), table.Text(7));
    EXPECT_EQ(QStringLiteral("eight"), table.Text(8));
}

TEST(TextTable, AnEmptyTableLacksItsHead) {
    EXPECT_EQ(2U, TextTable::Parse(u"").Faults().size());
    EXPECT_TRUE(TextTable().Text(1).isNull());
}

TEST(TextTable, ReadsItsHead) {
    const QStringView table = u"# n\n language = Español \n1 = x\ntag =span\n";
    EXPECT_TRUE(TextTable::Parse(table).Faults().empty());
}

} // namespace
