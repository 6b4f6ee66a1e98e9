// Text tables and language files with arbitrary contents. A table reports its faults by line and
// keeps the rest. A file that is no component is ignored.

#include "ComponentFile.h"
#include "Fuzzing.h"
#include "HostileTexts.h"
#include "Language.h"
#include "LanguageComponent.h"
#include "LanguageIdentifier.h"
#include "ProgramFolder.h"
#include "QuendNames.h"
#include "TextNumbers.h"
#include "TextTable.h"

#include <QDir>
#include <QFile>

#include <set>

namespace {

QString LineOf(int id, QString text) {
    text.replace(u'\\', QStringLiteral("\\\\")).replace(u'\n', QStringLiteral("\\n"));
    return QStringLiteral("%1 = %2\n").arg(id).arg(text);
}

/// The source of a table with these texts.
QString Written(const TextTable& table) {
    QString lines = QStringLiteral("language = x\ntag = y\n");
    for (const auto& [id, text] : table.Texts()) {
        lines += LineOf(id, text);
    }
    return lines;
}

void TryTable(const QString& source) {
    const TextTable table = TextTable::Parse(source);
    const auto lines = static_cast<int>(source.count(u'\n')) + 1;
    std::multiset<int> faulty;
    for (const TextTableFault& fault : table.Faults()) {
        EXPECT_GE(fault.line, 0);
        EXPECT_LE(fault.line, lines);
        EXPECT_FALSE(fault.description.isEmpty());
        faulty.insert(fault.line);
    }
    // Each line is a comment, empty, part of the head, a text or a fault.
    int others = 0;
    for (const QString& line : source.split(u'\n')) {
        const QString content = line.trimmed();
        others += content.isEmpty() || content.startsWith(u'#') ? 1 : 0;
    }
    const auto lacking = static_cast<int>(faulty.count(0)); // of the two lines of the head
    EXPECT_EQ(others + 2 - lacking + static_cast<int>(table.Texts().size() + faulty.size()) -
                  lacking,
              lines);
    for (const auto& [id, text] : table.Texts()) {
        EXPECT_GT(id, 0);
        EXPECT_FALSE(text.isEmpty());
        EXPECT_EQ(table.Text(id), text);
    }
    const TextTable again = TextTable::Parse(Written(table));
    EXPECT_TRUE(again.Faults().empty());
    EXPECT_EQ(again.Texts(), table.Texts());
}

const FuzzTarget& TableTarget() {
    static const FuzzTarget target("table",
                                   [](const std::string& input) { TryTable(TextOf(input)); });
    return target;
}

TEST(TextTableFuzz, TheCorpusIsReadOrReportedByLine) { TableTarget().TryCorpus(); }

TEST(TextTableFuzz, AnyTableIsReadOrReportedByLine) {
    constexpr std::array pieces{"language",   "tag", " = ", "=",   "\n",   "\n",          "\n7 = ",
                                "\n8 =",      "# ",  "\\",  "\\n", "\\\\", "\r\n",        "\t",
                                "2147483648", "0",   "x",   "&",   "\xFF", "\xEF\xBB\xBF"};
    TableTarget().TryAtRandom([&](FuzzRandom& random) {
        return random.OneIn(3) ? Damaged(random, random.AnyOf(TableTarget().Corpus()))
                               : Patched(random, pieces) + Patched(random, pieces) +
                                     Patched(random, HostilePieces);
    });
}

/// A damaged library is never opened, because loading it could end the program.
void TryFile(const ProgramFolder& folder, const std::string& bytes, bool isSound) {
    const QString name = QStringLiteral("Loan409.Resources.so");
    QFile::remove(folder.PathOf(name)); // a mapped file keeps its contents
    folder.PutBytes(name, QByteArray::fromStdString(bytes));
    EXPECT_EQ(ComponentFile::Label(folder.PathOf(name)).has_value(), isSound);
    EXPECT_EQ(ComponentFile::Load(folder.PathOf(name)) != nullptr, isSound);
    Language& language = Language::Instance();
    language.SetUp(folder.Path(), QStringLiteral("Loan"));
    EXPECT_EQ(language.Entries().size(), isSound ? 3U : 2U);
    EXPECT_EQ(language.Entries().front().name, QStringLiteral("English"));
    EXPECT_FALSE(GetResourceText(TextNumber::Cancel).isEmpty()); // needs no component
}

TEST(ComponentFuzz, ADamagedFileIsNoLanguage) {
    const ProgramFolder folder;
    const std::string sound = BytesOf(BuiltSpanishComponent()).toStdString();
    const FuzzTarget target(
        "component", [&](const std::string& input) { TryFile(folder, input, input == sound); });
    target.TryAtRandom([&](FuzzRandom& random) { return Damaged(random, sound); });
    constexpr std::size_t parts = 16;
    for (std::size_t part = 0; part <= parts; ++part) {
        TryFile(folder, sound.substr(0, sound.size() * part / parts), part == parts);
    }
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
}

TEST(LocaleNameFuzz, AnyNameHasALanguageOrNone) {
    constexpr std::array pieces{"en",         "es",       "_",
                                "-",          "US",       "MX",
                                ".UTF-8",     "@euro",    "@collation=traditional",
                                "C",          "POSIX",    "zh_Hant_TW",
                                "sr_Latn_RS", "xx",       "root",
                                "i-klingon",  "x-private"};
    const FuzzTarget target("locale", [](const std::string& input) {
        LanguageIdentifierOf(TextOf(input));
        for (const char* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
            qunsetenv(variable);
        }
        qputenv("LANG", QByteArray::fromStdString(input));
        Language::Instance().DetectLanguage(UserDefaultLanguageIdentifier());
        EXPECT_LT(Language::Instance().CurrentLanguage(), 0);
        EXPECT_FALSE(GetResourceText(TextNumber::Cancel).isEmpty());
    });
    const QByteArray before = qgetenv("LC_ALL");
    target.TryAtRandom([&](FuzzRandom& random) {
        return random.OneIn(3) ? Patched(random, HostilePieces) : Patched(random, pieces);
    });
    qunsetenv("LANG");
    qputenv("LC_ALL", before);
}

} // namespace
