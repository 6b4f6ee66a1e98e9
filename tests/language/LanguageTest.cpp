#include "Language.h"
#include "QuendNames.h"

#include "Failure.h"
#include "ProgramFolder.h"
#include "TextNumbers.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

const QString Program = QStringLiteral("Loan");

/// The text "Auto" of the loan types, which differs in every language.
std::string Auto() { return GetResourceText(TextNumber::LoanTypeAuto).toStdString(); }

Language& SetUpIn(const QString& folder) {
    Language& language = Language::Instance();
    language.SetUp(folder, Program);
    return language;
}

/// What a user sees of an entry, without the program folder.
std::string Shown(const LanguageEntry& entry, const QString& folder) {
    EXPECT_TRUE(entry.helpFile.startsWith(folder + u'/'));
    const QString help = entry.helpFile.mid(folder.size() + 1);
    return QStringLiteral("%1 %2 %3 %4 %5")
        .arg(entry.number)
        .arg(entry.component, entry.name, entry.tag, help)
        .toStdString();
}

std::vector<std::string> EntriesShown(const ProgramFolder& folder) {
    std::vector<std::string> shown;
    const QString path = folder.Path();
    const Language& language = SetUpIn(path);
    for (const LanguageEntry& entry : language.Entries()) {
        shown.push_back(Shown(entry, folder.Path()));
    }
    return shown;
}

const std::string EnglishEntry = "1 Loan000.Resources English engl loan000.hlp";
const std::string SpanishEntry = "2 Loan40a.Resources Español span loan40a.hlp";

TEST(LanguageEntries, EnglishAndSpanishAreListedWithoutTheirFiles) {
    const ProgramFolder folder;
    EXPECT_EQ((std::vector{EnglishEntry, SpanishEntry}), EntriesShown(folder));
}

TEST(LanguageEntries, FurtherComponentsFollowInOrderOfIdentifier) {
    const ProgramFolder folder;
    folder.PutAll();
    folder.PutThird(QStringLiteral("LOANC07.resources.SO"));
    folder.PutThird(QStringLiteral("Loan0009.Resources.so"));
    folder.PutThird(QStringLiteral("loan80A.Resources"));
    EXPECT_EQ((std::vector<std::string>{EnglishEntry, SpanishEntry,
                                        "3 Loan0009.Resources Deutsch deut loan0009.hlp",
                                        "4 Loan407.Resources Deutsch deut loan407.hlp",
                                        "5 Loan80a.Resources Deutsch deut loan80a.hlp",
                                        "6 Loanc07.Resources Deutsch deut loanc07.hlp"}),
              EntriesShown(folder));
}

TEST(LanguageEntries, WhatIsNoComponentOfThisProgramIsLeftOut) {
    const ProgramFolder folder;
    folder.PutBytes(QStringLiteral("Loan407.Resources.so"), "no library");
    folder.PutBytes(QStringLiteral("Loan408.Resources.so"), QByteArray());
    folder.PutBytes(QStringLiteral("Loan409.Resources.txt"), "language = English\n");
    folder.PutThird(QStringLiteral("Other407.Resources.so"));
    folder.PutThird(QStringLiteral("Loan.Resources.so"));
    folder.PutThird(QStringLiteral("LoanXYZ.Resources.so"));
    folder.PutThird(QStringLiteral("Loan40b.Resources.so.old"));
    folder.PutThird(QStringLiteral("Loan410xResources.so"));
    ASSERT_TRUE(QDir(folder.Path()).mkdir(QStringLiteral("Loan411.Resources.so")));
    EXPECT_EQ((std::vector{EnglishEntry, SpanishEntry}), EntriesShown(folder));
}

TEST(LanguageEntries, SameComponentInTwoCasesIsListedOnce) {
    const ProgramFolder folder;
    folder.PutThird();
    folder.PutThird(QStringLiteral("LOAN407.RESOURCES.SO"));
    EXPECT_EQ(3U, EntriesShown(folder).size());
}

struct Detection {
    const char* which;
    std::uint16_t identifier;
    std::vector<const char*> present;
    int detected;
    int settled;
    const char* tag;
    const char* helpFile;
    const char* text;
};

const std::vector<const char*> Both{"000", "40a"};
const std::vector<const char*> Three{"000", "40a", "407"};

const std::vector<Detection> Detections{
    {"Mexico", 0x080A, Both, -2, 2, "span", "/loan40a.hlp", "Automóvil"},
    {"Spain, modern", 0x0C0A, Both, -2, 2, "span", "/loan40a.hlp", "Automóvil"},
    {"Spain, traditional", 0x040A, Both, -2, 2, "span", "/loan40a.hlp", "Automóvil"},
    {"Spanish, no country", 0x000A, Both, -2, 2, "span", "/loan40a.hlp", "Automóvil"},
    {"Spanish, no file", 0x080A, {}, -2, 2, "span", "/loan40a.hlp", "Auto"},
    {"Spain, no file", 0x0C0A, {"407"}, -2, 2, "span", "/loan40a.hlp", "Auto"},
    {"United States", 0x0409, Both, -1, 1, "engl", "/loan000.hlp", "Auto"},
    {"no language", 0x0000, Both, -1, 1, "engl", "/loan000.hlp", "Auto"},
    {"Germany, no third", 0x0407, Both, -1, 1, "engl", "/loan000.hlp", "Auto"},
    {"Germany", 0x0407, Three, -3, 3, "deut", "/loan407.hlp", "Auto (Kfz)"},
    {"Austria", 0x0C07, Three, -3, 3, "deut", "/loan407.hlp", "Auto (Kfz)"},
    {"France, a third", 0x040C, Three, -1, 1, "engl", "/loan000.hlp", "Auto"},
    {"Mexico, a third", 0x080A, Three, -2, 2, "span", "/loan40a.hlp", "Automóvil"},
    {"only a third", 0x0407, {"407"}, -3, 3, "deut", "/loan407.hlp", "Auto (Kfz)"},
    {"greatest", 0xFFFF, Three, -1, 1, "engl", "/loan000.hlp", "Auto"},
};

void Put(ProgramFolder& folder, const std::vector<const char*>& identifiers) {
    for (const std::string identifier : identifiers) {
        if (identifier == "000") {
            folder.PutEnglish();
        } else if (identifier == "40a") {
            folder.PutSpanish();
        } else {
            folder.PutThird();
        }
    }
}

TEST(DetectLanguage, FollowsTheUsersLanguage) {
    for (const Detection& row : Detections) {
        SCOPED_TRACE(row.which);
        ProgramFolder folder;
        Put(folder, row.present);
        Language& language = SetUpIn(folder.Path());
        language.DetectLanguage(row.identifier);
        EXPECT_EQ(row.detected, language.CurrentLanguage());
        EXPECT_EQ(row.text, Auto());
        language.SettleDetectedLanguage();
        EXPECT_EQ(row.settled, language.CurrentLanguage());
        EXPECT_EQ(QString::fromUtf8(row.tag), language.LanguageTag());
        EXPECT_EQ(folder.Path() + QString::fromUtf8(row.helpFile), language.HelpFile());
        EXPECT_EQ(row.text, Auto());
    }
}

TEST(DetectLanguage, ACountrysOwnComponentComesFirst) {
    const ProgramFolder folder;
    folder.PutSpanish();
    folder.PutThird(QStringLiteral("Loan80a.Resources.so"));
    Language& language = SetUpIn(folder.Path());
    language.DetectLanguage(0x080A);
    EXPECT_EQ(-3, language.CurrentLanguage());
    EXPECT_EQ("Auto (Kfz)", Auto());
}

TEST(DetectLanguage, ADamagedComponentCountsAsMissing) {
    const ProgramFolder folder;
    folder.PutBytes(QStringLiteral("Loan80a.Resources.so"), "no library");
    folder.PutSpanish();
    Language& language = SetUpIn(folder.Path());
    language.DetectLanguage(0x080A);
    EXPECT_EQ(-2, language.CurrentLanguage());
    EXPECT_EQ("Automóvil", Auto());
}

TEST(DetectLanguage, ForgetsTheComponentOfBefore) {
    const ProgramFolder folder;
    folder.PutAll();
    Language& language = SetUpIn(folder.Path());
    language.DetectLanguage(0x080A);
    language.DetectLanguage(0x0409);
    EXPECT_EQ(-1, language.CurrentLanguage());
    EXPECT_EQ("Auto", Auto());
}

TEST(SettleDetectedLanguage, EveryNumberBecomesAnEntrys) {
    struct Case {
        int before;
        int after;
        const char* tag;
    };
    // LoadLanguage sets the tag of a chosen language; here the number was only stored.
    const std::vector<Case> cases{
        {-1, 1, "engl"}, {-2, 2, "span"}, {-3, 1, "engl"}, {-32768, 1, "engl"},
        {0, 1, "engl"},  {1, 1, "engl"},  {2, 2, "engl"},
    };
    for (const Case& row : cases) {
        Language& language = SetUpIn(QString());
        language.SetCurrentLanguage(row.before);
        language.SettleDetectedLanguage();
        EXPECT_EQ(row.after, language.CurrentLanguage()) << row.before;
        EXPECT_EQ(QString::fromUtf8(row.tag), language.LanguageTag()) << row.before;
    }
}

TEST(LoadLanguage, TakesTextsTagAndHelp) {
    struct Case {
        int language;
        const char* tag;
        const char* helpFile;
        const char* text;
    };
    const std::vector<Case> cases{
        {1, "engl", "/loan000.hlp", "Auto"},
        {2, "span", "/loan40a.hlp", "Automóvil"},
        {3, "deut", "/loan407.hlp", "Auto (Kfz)"},
        {1, "engl", "/loan000.hlp", "Auto"},
    };
    const ProgramFolder folder;
    folder.PutAll();
    Language& language = SetUpIn(folder.Path());
    for (const Case& row : cases) {
        language.LoadLanguage(row.language);
        EXPECT_EQ(row.language, language.CurrentLanguage());
        EXPECT_EQ(QString::fromUtf8(row.tag), language.LanguageTag());
        EXPECT_EQ(folder.Path() + QString::fromUtf8(row.helpFile), language.HelpFile());
        EXPECT_EQ(row.text, Auto());
    }
}

TEST(LoadLanguage, FindsAFileInAnyCase) {
    for (const char* file : {"Loan40a.Resources.so", "loan40A.resources.so", "LOAN40A.RESOURCES.SO",
                             "Loan40a.Resources", "LOAN40A.resources"}) {
        ProgramFolder folder;
        folder.PutSpanish(QString::fromUtf8(file));
        Language& language = SetUpIn(folder.Path());
        EXPECT_NO_THROW(language.LoadLanguage(2)) << file;
        EXPECT_EQ("Automóvil", Auto()) << file;
    }
}

TEST(LoadLanguage, TheFileInTheCaseAskedForWins) {
    const ProgramFolder folder;
    folder.PutThird(QStringLiteral("LOAN40A.RESOURCES.SO"));
    folder.PutSpanish();
    folder.PutThird(QStringLiteral("loan40a.resources.so"));
    SetUpIn(folder.Path()).LoadLanguage(2);
    EXPECT_EQ("Automóvil", Auto());
}

/// Expects a failure that leaves the current language unchanged.
void ExpectRefused(Language& language, int number) {
    const int current = language.CurrentLanguage();
    const QString tag = language.LanguageTag();
    const QString helpFile = language.HelpFile();
    const std::string text = Auto();
    try {
        language.LoadLanguage(number);
        ADD_FAILURE() << "loaded";
    } catch (const ComponentFailure& failure) {
        EXPECT_EQ(429, failure.Number());
        EXPECT_EQ("LoadLanguage", failure.Source());
    }
    EXPECT_EQ(current, language.CurrentLanguage());
    EXPECT_EQ(tag, language.LanguageTag());
    EXPECT_EQ(helpFile, language.HelpFile());
    EXPECT_EQ(text, Auto());
}

TEST(LoadLanguage, NumbersWithoutAnEntryAreRefused) {
    const ProgramFolder folder;
    folder.PutAll();
    Language& language = SetUpIn(folder.Path());
    language.LoadLanguage(3);
    for (const int number : {0, -1, -2, 4, 32767}) {
        SCOPED_TRACE(number);
        ExpectRefused(language, number);
    }
}

TEST(LoadLanguage, MissingComponentIsRefused) {
    const ProgramFolder folder;
    folder.PutThird();
    Language& language = SetUpIn(folder.Path());
    ExpectRefused(language, 1);
    language.LoadLanguage(3);
    ExpectRefused(language, 2);
    SetUpIn(folder.PathOf(QStringLiteral("no such folder")));
    ExpectRefused(language, 2);
    SetUpIn(QString());
    ExpectRefused(language, 2);
}

template <typename Number>
Number NumberAt(const QByteArray& bytes, std::uint64_t place) {
    Number number{};
    std::memcpy(&number, bytes.constData() + place, sizeof number);
    return number;
}

/// The end of the part of a library that is loaded into memory. Only debuggers read what follows,
/// so a library cut there still works.
std::uint64_t EndOfLoadedPart(const QByteArray& library) {
    constexpr std::uint32_t Loaded = 1;
    const auto table = NumberAt<std::uint64_t>(library, 32);
    const auto size = NumberAt<std::uint16_t>(library, 54);
    const auto count = NumberAt<std::uint16_t>(library, 56);
    std::uint64_t end = 0;
    for (std::uint64_t segment = table; segment < table + std::uint64_t{size} * count;
         segment += size) {
        if (NumberAt<std::uint32_t>(library, segment) == Loaded) {
            end = std::max(end, NumberAt<std::uint64_t>(library, segment + 8) +
                                    NumberAt<std::uint64_t>(library, segment + 32));
        }
    }
    return end;
}

TEST(LoadLanguage, NoFolderIsNotTheWorkingFolder) {
    const ProgramFolder folder;
    folder.PutAll();
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.Path()));
    Language& language = SetUpIn(QString());
    EXPECT_EQ(2U, language.Entries().size());
    ExpectRefused(language, 2);
    ASSERT_TRUE(QDir::setCurrent(before));
}

TEST(LoadLanguage, DamagedComponentIsRefused) {
    const QByteArray whole = BytesOf(BuiltSpanishComponent());
    const auto loaded = static_cast<qsizetype>(EndOfLoadedPart(whole));
    ASSERT_GT(loaded, 4096);
    ASSERT_LT(loaded, whole.size());
    struct Case {
        std::string what;
        QByteArray bytes;
    };
    std::vector<Case> cases{
        {"empty", QByteArray()},
        {"text", "no library"},
        {"blank", QByteArray(whole.size(), ' ')},
        {"head only", whole.first(64)},
        {"another library's head", whole.first(4) + QByteArray(4096, '\0')},
    };
    constexpr int Pieces = 24;
    for (int piece = 1; piece < Pieces; ++piece) {
        const qsizetype length = loaded * piece / Pieces;
        cases.push_back({"truncated to " + std::to_string(length), whole.first(length)});
    }
    for (const qsizetype missing : {1, 8, 100, 1000}) {
        cases.push_back({"without the last " + std::to_string(missing) + " that are loaded",
                         whole.first(loaded - missing)});
    }
    for (const Case& row : cases) {
        SCOPED_TRACE(row.what);
        ProgramFolder folder;
        folder.PutThird();
        folder.PutBytes(QStringLiteral("Loan40a.Resources.so"), row.bytes);
        Language& language = SetUpIn(folder.Path());
        language.LoadLanguage(3);
        ExpectRefused(language, 2);
    }
}

TEST(Language, SetUpForgetsWhatWasLoaded) {
    const ProgramFolder folder;
    folder.PutAll();
    SetUpIn(folder.Path()).LoadLanguage(2);
    Language& language = SetUpIn(folder.Path());
    EXPECT_EQ(0, language.CurrentLanguage());
    EXPECT_EQ(QStringLiteral("engl"), language.LanguageTag());
    EXPECT_EQ("Auto", Auto());
}

TEST(GetResourceText, FallsBackToEnglishAndThenToNothing) {
    const ProgramFolder folder;
    folder.PutAll();
    struct Case {
        int language; // 0: no language loaded
        int number;
        const char* text;    // nullptr: no text
        const char* ownText; // in the language itself
    };
    const std::vector<Case> cases{
        {0, 10, "Auto", "Auto"},
        {0, 206, "Annual Ta&xes:", "Annual Ta&xes:"},
        {0, 9999, nullptr, nullptr},
        {0, -1, nullptr, nullptr},
        {2, 206, "&Impuestos anuales:", "&Impuestos anuales:"},
        {2, 9999, nullptr, nullptr},
        {3, 200, "Kredit", "Kredit"},
        {3, 312, "Zinssatz (%)\n\"C:\\Zins\"", "Zinssatz (%)\n\"C:\\Zins\""},
        {3, 206, "Annual Ta&xes:", nullptr},
        {3, 9999, nullptr, nullptr},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(std::to_string(row.language) + ": " + std::to_string(row.number));
        Language& language = SetUpIn(folder.Path());
        if (row.language != 0) {
            language.LoadLanguage(row.language);
        }
        EXPECT_EQ(row.text == nullptr, GetResourceText(row.number).isNull());
        EXPECT_EQ(QString::fromUtf8(row.text), GetResourceText(row.number));
        EXPECT_EQ(row.ownText == nullptr, language.Text(row.number).isNull());
        EXPECT_EQ(QString::fromUtf8(row.ownText), language.Text(row.number));
    }
}

} // namespace
