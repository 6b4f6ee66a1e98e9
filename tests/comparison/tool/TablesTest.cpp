#include "TerminalText.h"
#include "ToolRun.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>

// Tables for people: columns of a terminal, marks, findings, and the least payments.

namespace {

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// A worksheet of 100,000 for ten years with these offers.
std::string WithOffers(const std::string& offers, const std::string& further = {}) {
    return R"({"today":"2026-01-31","worksheet":{"amount":"100000","termMonths":120,)" + further +
           R"("offers":[)" + offers + "]}}";
}

std::string Offer(const std::string& lender, const std::string& rate, const std::string& further) {
    return R"({"lender":")" + lender + R"(","frequency":"M","rate":)" + rate + further + "}";
}

TEST(TerminalText, CountsPlaces) {
    struct Case {
        const char16_t* text;
        int places;
    };
    const std::array cases{
        Case{u"", 0},
        Case{u"Cedar & Sons", 12},
        Case{u"España", 6},
        Case{u"Espan\u0303a", 6},       // a combining tilde
        Case{u"銀行", 4},               // two wide characters
        Case{u"ｱｲ", 2},                 // and two narrow ones
        Case{u"한국", 4},               //
        Case{u"\U0001F3E6", 2},         // a pictograph beyond 16 bits
        Case{u"\U00020000", 2},         // a rare ideograph
        Case{u"a\u200Bb", 2},           // a blank of no width
        Case{u"\u20AC\u2014\u2026", 3}, // € — …
    };
    for (const Case& text : cases) {
        EXPECT_EQ(PlacesOf(QString::fromUtf16(text.text)), text.places);
    }
}

TEST(TerminalText, ShowsNothingThatControlsTheTerminal) {
    struct Case {
        const char16_t* text;
        const char16_t* plain;
    };
    const std::array cases{
        Case{u" Bank ", u"Bank"},
        Case{u"a\tb\nc\u2028d", u"a b c d"},
        Case{u"\u001B[31mred\u009B0m", u"[31mred 0m"},
        Case{u"a\u202Eb\u200Fc", u"abc"}, // would turn the direction
        Case{u"x\0y", u"x"},
    };
    for (const Case& text : cases) {
        EXPECT_EQ(PlainText(text.text), QString::fromUtf16(text.plain));
    }
}

TEST(TerminalText, CutsByPlaces) {
    EXPECT_EQ(CutTo(QStringLiteral("Cedar"), 5), QStringLiteral("Cedar"));
    EXPECT_EQ(CutTo(QStringLiteral("Cedars"), 5), QStringLiteral("Ceda…"));
    EXPECT_EQ(CutTo(QStringLiteral("The Bank"), 5), QStringLiteral("The…"));
    EXPECT_EQ(CutTo(QStringLiteral("銀行銀行"), 6), QStringLiteral("銀行…"));
}

TEST(TerminalText, AlignsAndWraps) {
    EXPECT_EQ(AlignedLines({{QStringLiteral("Name"), Align::Left}, {QStringLiteral("Two\nlines")}},
                           {{QStringLiteral("銀行銀"), QStringLiteral("1")},
                            {QStringLiteral("b"), QStringLiteral("1,000,000")}}),
              QStringLiteral("              Two\n"
                             "Name        lines\n"
                             "銀行銀          1\n"
                             "b       1,000,000\n"));
    const QString word = QStringLiteral("word ").repeated(20).trimmed();
    EXPECT_EQ(Wrapped(word, 4), QStringLiteral("    ") + word.left(74) + QStringLiteral("\n    ") +
                                    word.mid(75) + u'\n');
    EXPECT_EQ(Wrapped(QStringLiteral("a\n\nb"), 0), QStringLiteral("a\n\nb\n"));
}

TEST(CompareTable, IsAlignedInBothLanguages) {
    for (const Tongue tongue : {Tongue::English, Tongue::Spanish}) {
        const std::string file =
            WithOffers(Offer("銀行銀行銀行", "0.05", "") + "," +
                       Offer(std::string(80, 'W'), "0.06", R"(,"costs":"-12345678.91")"));
        const std::vector<std::string> lines = LinesOf(RunTool({"-"}, file, tongue).out);
        ASSERT_GE(lines.size(), 8U);
        const QString wide = QString::fromStdString(lines[5]);
        const QString cut = QString::fromStdString(lines[6]);
        EXPECT_TRUE(wide.startsWith(QStringLiteral("銀行銀行銀行 ")));
        EXPECT_TRUE(cut.startsWith(QString(31, u'W') + u'…'));
        EXPECT_EQ(PlacesOf(wide), PlacesOf(cut)) << lines[5] << lines[6]; // dates of one width
    }
}

TEST(CompareTable, MarksTheBestOfAColumn) {
    const auto marks = [](const std::string& offers) {
        std::vector<std::ptrdiff_t> counts;
        for (const std::string& line : LinesOf(RunTool({"-"}, WithOffers(offers)).out)) {
            if (line.starts_with("Bank") && Contains(line, "%")) {
                counts.push_back(std::count(line.begin(), line.end(), '*'));
            }
        }
        return counts;
    };
    using Counts = std::vector<std::ptrdiff_t>;
    const std::string bank = Offer("Bank", "0.05", "");
    EXPECT_EQ(marks(bank), Counts{0});                   // nothing to compare with
    EXPECT_EQ(marks(bank + "," + bank), (Counts{0, 0})); // equal
    // Payment, rate, total cost, cost and balance; closing, costs and payoff date are equal.
    EXPECT_EQ(marks(bank + "," + Offer("Bank", "0.06", "")), (Counts{5, 0}));
    EXPECT_EQ(marks(bank + "," + bank + "," + Offer("Bank", "0.06", "")), (Counts{5, 5, 0}));
    // Paid at closing and costs; a payment twice a month is less, but not by the month.
    EXPECT_EQ(marks(R"({"lender":"Bank","frequency":"B","rate":0.06,"costs":"-1"},)" + bank),
              (Counts{2, 6}));
}

TEST(CompareTable, TimesOfOneAreSingular) {
    const std::string file = WithOffers(Offer("Bank", "0.05", ""));
    const std::string one = RunTool({"--years", "1", "-"}, file).out;
    EXPECT_TRUE(one.starts_with("The loan is kept 1 year, until 1/31/2027.\n"));
    EXPECT_TRUE(Contains(one, " 1 year  "));
    const std::string two = RunTool({"--years", "2", "-"}, file).out;
    EXPECT_TRUE(two.starts_with("The loan is kept 2 years, until 1/31/2028.\n"));
    EXPECT_TRUE(Contains(two, " 2 years  "));
}

TEST(CompareTable, SaysWhatFollows) {
    const std::string dear = Offer("Dear", "0.06", "");
    const std::string slow = Offer("Slow", "0.05", R"(,"costs":"2000")");
    const auto today = [](const char* payment, const char* balance) {
        return R"("current":{"rate":0.06,"actualFrequency":"M","balance":")" +
               std::string(balance) + R"(","actualPayment":")" + payment + R"("},)";
    };
    struct Case {
        std::string file;
        std::vector<std::string> words;
    };
    const std::array cases{
        Case{WithOffers(""), {"No offer can be compared.\n"}},
        Case{WithOffers("{}"), {"No offer can be compared.\n"}}, // a blank one is not left out
        Case{WithOffers(Offer("A", "0", "")), {"compared.\nA is left out, because it has no int"}},
        Case{WithOffers(dear),
             {"By then Dear costs least of the offers: $24,066.02.\n", "\nHowever long"}},
        Case{WithOffers(dear + "," + dear), {"Dear (offer 2), the next, costs as much."}},
        Case{WithOffers(dear + "," + slow),
             {"That is $2,199.22 less than Dear, the next.", "Kept up to 2 years and 1 month, Dear",
              "Kept longer, Slow costs least.\n"}},
        Case{WithOffers(R"({"rate":0.06,"frequency":"M"})"), {"By then Offer 1 costs least"}},
        Case{WithOffers(dear, today("1110.21", "100000")),
             {"Keeping the loan held today costs ", " less.\nHowever"}},
        Case{WithOffers(slow, today("500.01", "100000")),
             {" less than keeping the loan held today.\nHowever"}},
        Case{WithOffers(slow, today("1100", "99000")),
             {"The amount wanted is $1,000.00 more than the balance of the loan held today; more"}},
        Case{WithOffers(slow, today("1100", "101000.01")),
             {"The amount wanted is $1,000.01 less than the balance of the loan held today; less"}},
        Case{WithOffers(slow, today("1", "1000")),
             {"The loan held today is left out, because its payments would never repay it."}},
    };
    for (const Case& said : cases) {
        const ToolResult result = RunTool({"-"}, said.file);
        EXPECT_EQ(result.status, 0);
        for (const std::string& words : said.words) {
            EXPECT_TRUE(Contains(result.out, words)) << words << "\nin\n" << result.out;
        }
    }
}

TEST(CompareTable, SaysWhichPaymentsAreCompared) {
    const std::string file = WithOffers(Offer("Bank", "0.05", ""));
    EXPECT_TRUE(Contains(RunTool({"-"}, file).out, "are the intended ones.\n"));
    EXPECT_TRUE(Contains(RunTool({"--payments", "computed", "-"}, file).out, "required ones.\n"));
    EXPECT_TRUE(Contains(RunTool({"--payments", "1500", "-"}, file).out,
                         "are $1,500.00 a month, or what an offer requires"));
}

TEST(PaymentBy, IsThereInEveryFormat) {
    const std::string file =
        WithOffers(Offer("A", "0.05", "") + "," + Offer("Endless", "2.0", R"(,"termMonths":1200)") +
                       "," + Offer("B", "0", "") + ",{}",
                   R"("current":{"rate":0.06,"actualFrequency":"M","balance":"5000",)"
                   R"("actualPayment":"1"},)");
    const auto run = [&](const char* format) {
        return RunTool({"--payment-by", "2028-02-01", "--format", format, "-"}, file);
    };
    EXPECT_EQ(run("json"),
              (ToolResult{0,
                          R"({"paymentBy":"2028-02-01","offers":["4387.1400","17089.3400",null,)"
                          R"(null],"current":"213.2600"})"
                          "\n",
                          ""}));
    EXPECT_EQ(run("csv").out, "offer,lender,payment\r\n1,A,4387.1400\r\n2,Endless,17089.3400\r\n"
                              "3,B,\r\n4,,\r\ncurrent,,213.2600\r\n");
    EXPECT_EQ(run("text").out,
              "With these payments nothing is owed on 2/1/2028.\n\n"
              "                          Least\n"
              "Lender                  payment\n"
              "A                     $4,387.14\n"
              "Endless              $17,089.34\n"
              "B                             -\n"
              "The loan held today     $213.26\n"
              "B is left out, because it has no interest rate, and without interest nothing is "
              "computed.\n");
}

TEST(PaymentBy, IsNoneBeforeAnythingIsPaid) {
    const ToolResult result =
        RunTool({"--payment-by", "2026-01-31", "-"}, WithOffers(Offer("A", "0.05", "")));
    EXPECT_TRUE(Contains(result.out, "\n- no payment does that\n"));
    EXPECT_EQ(result.status, 0);
}

} // namespace
