#include "FileErrorText.h"
#include "Findings.h"
#include "LeftOutText.h"
#include "ToolRun.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

// Sentences in both languages: why a file is refused, why a loan is left out, and lengths of time.

namespace {

TEST(Sentences, EveryFaultHasItsOwn) {
    for (const Tongue tongue : {Tongue::English, Tongue::Spanish}) {
        Speak(tongue);
        std::set<QString> sentences;
        for (int fault = 0; fault <= static_cast<int>(FileFault::NewerVersion); ++fault) {
            const FileError error{.fault = static_cast<FileFault>(fault),
                                  .line = 17,
                                  .member = QStringLiteral("a%1b")};
            QString sentence = FileErrorText(error);
            EXPECT_TRUE(sentence.contains(QStringLiteral(" 17: "))) << sentence.toStdString();
            EXPECT_TRUE(sentence.endsWith(u'.')) << sentence.toStdString();
            sentences.insert(sentence);
            EXPECT_FALSE(sentence.remove(error.member).contains(u'%')) << sentence.toStdString();
            EXPECT_FALSE(FileErrorText({.fault = error.fault, .line = 1, .member = {}})
                             .contains(QStringLiteral("%2")));
        }
        EXPECT_EQ(sentences.size(), 11U);
    }
}

TEST(Sentences, SayWhereAFileIsFaulty) {
    struct Case {
        const char* file;
        const char* words;
    };
    const std::array cases{
        Case{"", "Line 1: this is not a well-formed worksheet in JSON and UTF-8."},
        Case{"{\n\"amount\": true}", "Line 2: the value of “amount” is of another type"},
        Case{"{\n\n\"current\": {\"nextPayment\": \"2026-02-30\"}}",
             "Line 3: the value of “current.nextPayment” is not a date such as 2026-12-31."},
        Case{R"({"name": "a", "name": "b"})", "Line 1: “name” is given twice."},
        Case{R"({"quendLoan": 2})", "Line 1: a newer version of this program wrote the worksheet."},
        Case{R"({"worksheet": {}, "years": 51})",
             "the value of “years” is too small or too large."},
        Case{"[]", "Line 1: this is not a worksheet, which is an object in braces."},
    };
    for (const Case& faulty : cases) {
        const FileWith file(faulty.file);
        const ToolResult result = RunTool({file.Path()});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(result.err.starts_with("quend-compare: " + file.Path() + ": Line "))
            << result.err;
        EXPECT_NE(result.err.find(faulty.words), std::string::npos) << result.err;
    }
    EXPECT_EQ(RunTool({"-"}, "?", Tongue::Spanish).err,
              "quend-compare: la entrada estándar: Línea 1: esto no es una hoja de trabajo bien "
              "formada en JSON y UTF-8.\n");
    EXPECT_EQ(RunTool({"/no/such"}, {}, Tongue::Spanish).err,
              "quend-compare: /no/such: Este archivo no existe.\n");
}

TEST(Sentences, EveryReasonToLeaveOutAnOfferHasItsOwn) {
    for (const Tongue tongue : {Tongue::English, Tongue::Spanish}) {
        Speak(tongue);
        std::set<QString> sentences;
        for (int reason = 1; reason <= static_cast<int>(LeftOut::NeverEnds); ++reason) {
            const QString sentence =
                LeftOutText(static_cast<LeftOut>(reason), QStringLiteral("50% Bank %1"));
            EXPECT_TRUE(sentence.startsWith(QStringLiteral("50% Bank %1 ")));
            sentences.insert(sentence);
        }
        EXPECT_EQ(sentences.size(), 6U);
    }
    EXPECT_EQ(LeftOutText(LeftOut::No, QStringLiteral("x")), QString());
}

TEST(Sentences, SayWhyThereIsNoSchedule) {
    const auto offers = [](const char* offer) {
        return std::string(R"({"amount":"1000","offers":[)") + offer + "]}";
    };
    const auto current = [](const char* loan) {
        return std::string(R"({"current":{"rate":0.5,)") + loan + "}}";
    };
    struct Case {
        const char* place;
        std::string file;
        const char* words;
    };
    const std::array cases{
        Case{"1", R"({"offers":[{"lender":"A"}]})", "A is left out, because the amount wanted is"},
        Case{"1", offers("{}"), "Offer 1 is left out, because it has no interest rate"},
        Case{"1", offers(R"({"rate":0.1})"), "Offer 1 is left out, because it has no payment freq"},
        Case{"1", offers(R"({"rate":0.1,"frequency":"M"})"), "neither it nor the worksheet has a"},
        Case{"2", offers("{}"), "There is no offer 2 in this worksheet."},
        Case{"current", offers("{}"), "There is no loan held today in this worksheet."},
        Case{"current", current(R"("actualPayment":"1")"), "left out, because it has no balance."},
        Case{"current", current(R"("balance":"1")"), "left out, because it has no actual payment."},
        Case{"current", current(R"("balance":"1","actualPayment":"1")"),
             "because the frequency of its actual payment is missing."},
        Case{"current", current(R"("balance":"9000","actualPayment":"1","actualFrequency":"M")"),
             "because its payments would never repay it."},
    };
    for (const Case& none : cases) {
        const ToolResult result = RunTool({"--schedule", none.place, "-"}, none.file);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_NE(result.err.find(none.words), std::string::npos) << result.err;
    }
}

TEST(Sentences, TimesAreInYearsAndMonths) {
    struct Case {
        int months;
        const char* english;
        const char* spanish;
    };
    const std::array cases{
        Case{1, "1 month", "1 mes"},
        Case{11, "11 months", "11 meses"},
        Case{12, "1 year", "1 año"},
        Case{13, "1 year and 1 month", "1 año y 1 mes"},
        Case{23, "1 year and 11 months", "1 año y 11 meses"},
        Case{24, "2 years", "2 años"},
        Case{25, "2 years and 1 month", "2 años y 1 mes"},
        Case{1199, "99 years and 11 months", "99 años y 11 meses"},
    };
    for (const Case& time : cases) {
        Speak(Tongue::English);
        EXPECT_EQ(TimeText(time.months).toStdString(), time.english);
        Speak(Tongue::Spanish);
        EXPECT_EQ(TimeText(time.months).toStdString(), time.spanish);
    }
}

} // namespace
