#include "Captions.h"
#include "ProgramFolder.h"
#include "QuendNames.h"
#include "TextNumbers.h"
#include "TextTable.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

QDir ComponentsFolder() { return {QStringLiteral(QUEND_SOURCE_DIR "/language/components")}; }

QString SourceOf(const QString& identifier) {
    const QString path = ComponentsFolder().filePath(identifier + QStringLiteral("/texts.txt"));
    return QString::fromUtf8(BytesOf(path));
}

TextTable TableOf(const QString& identifier) { return TextTable::Parse(SourceOf(identifier)); }

const QString English = QStringLiteral("000");

std::set<int> NumbersOf(const TextTable& table) {
    std::set<int> numbers;
    for (const auto& [number, text] : table.Texts()) {
        numbers.insert(number);
    }
    return numbers;
}

/// The letters after a single "&", in lower case.
std::string AccessKeys(const QString& text) {
    QString keys;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&') {
            ++i;
            const QChar next = i < text.size() ? text[i].toLower() : QChar(u' ');
            keys += next == u'&' ? QString() : QString(next);
        }
    }
    return keys.toStdString();
}

/// One test for each existing table, so that a new language is checked without a change here.
class Texts : public testing::TestWithParam<std::string> {
protected:
    const TextTable m_english = TableOf(English);
    const TextTable m_table = TableOf(QString::fromStdString(GetParam()));
};

std::vector<std::string> Identifiers() {
    std::vector<std::string> identifiers;
    for (const QString& folder :
         ComponentsFolder().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        identifiers.push_back(folder.toStdString());
    }
    return identifiers;
}

INSTANTIATE_TEST_SUITE_P(Every, Texts, testing::ValuesIn(Identifiers()),
                         [](const auto& tested) { return tested.param; });

TEST_P(Texts, HaveNoFault) {
    for (const TextTableFault& fault : m_table.Faults()) {
        ADD_FAILURE() << fault.line << ": " << fault.description.toStdString();
    }
}

TEST_P(Texts, HaveTheNumbersOfTheEnglishTable) {
    EXPECT_EQ(NumbersOf(m_english), NumbersOf(m_table));
    EXPECT_FALSE(m_table.Texts().empty());
}

TEST_P(Texts, HaveTheirPlacesForNumbersWhereEnglishHas) {
    for (const auto& [number, text] : m_table.Texts()) {
        qsizetype places = 0;
        for (int place = 1; place <= 9; ++place) {
            const QString mark = u'%' + QString::number(place);
            EXPECT_EQ(m_english.Text(number).count(mark), text.count(mark)) << number;
            places += text.count(mark);
        }
        EXPECT_EQ(places, text.count(u'%') - text.count(QStringLiteral("(%)")) -
                              text.count(QStringLiteral(". %")))
            << number;
    }
}

TEST_P(Texts, HaveAnAccessKeyWhereEnglishHas) {
    for (const auto& [number, text] : m_table.Texts()) {
        const std::string keys = AccessKeys(text);
        EXPECT_EQ(AccessKeys(m_english.Text(number)).size(), keys.size()) << number;
        EXPECT_TRUE(keys.empty() || (keys.size() == 1 && keys[0] >= 'a' && keys[0] <= 'z'))
            << number << ": " << keys;
    }
}

TEST_P(Texts, AccessKeysAreUniqueWhereTheyAreSeenTogether) {
    std::vector<int> window{250, 257, 262};
    for (int number = 200; number <= 240; ++number) {
        if (number != 205 && number != 212) { // replace 204 and 211, never shown beside them
            window.push_back(number);
        }
    }
    const std::vector<std::vector<int>> groups{
        window, {251, 252, 253, 254, 255, 256}, {258, 259}, {263, 264, 64}};
    for (const std::vector<int>& group : groups) {
        std::map<std::string, int> takenBy;
        for (const int number : group) {
            const std::string key = AccessKeys(m_table.Text(number));
            EXPECT_TRUE(key.empty() || takenBy.emplace(key, number).second)
                << number << " and " << takenBy[key] << ": " << key;
        }
    }
    EXPECT_EQ(AccessKeys(m_table.Text(204)), AccessKeys(m_table.Text(205)));
    EXPECT_EQ(AccessKeys(m_table.Text(211)), AccessKeys(m_table.Text(212)));
}

TEST_P(Texts, ColumnHeadingsAreShort) {
    for (int number = 230; number <= 239; ++number) {
        EXPECT_LE(WithoutAccessKey(m_table.Text(number)).size(), 12) << number;
    }
}

// The program maps a list's text back to its code by comparison.
TEST_P(Texts, EntriesOfOneListDiffer) {
    using namespace TextNumber;
    for (const std::vector<int>& list :
         {std::vector{FrequencyTwiceAMonth, FrequencyEveryTwoWeeks, FrequencyMonthly,
                      FrequencyEveryFourWeeks},
          std::vector{LoanTypeAuto, LoanTypeBusiness, LoanTypeConstruction,
                      LoanTypeDebtConsolidation, LoanTypeHomeEquity, LoanTypeMortgage}}) {
        std::set<QString> texts;
        std::transform(list.begin(), list.end(), std::inserter(texts, texts.end()),
                       [this](int number) { return m_table.Text(number); });
        EXPECT_EQ(list.size(), texts.size());
        EXPECT_FALSE(texts.contains(QString()));
    }
}

TEST_P(Texts, LanguagesAreNamedInTheirOwnLanguage) {
    EXPECT_EQ(QStringLiteral("English"), m_table.Text(260));
    EXPECT_EQ(QStringLiteral("Español"), m_table.Text(261));
}

TEST(TextHeads, AreTheKnownLanguages) {
    EXPECT_TRUE(SourceOf(English).contains(u"\nlanguage = English\ntag = engl\n"));
    EXPECT_TRUE(SourceOf(QStringLiteral("40a")).contains(u"\nlanguage = Español\ntag = span\n"));
}

} // namespace
