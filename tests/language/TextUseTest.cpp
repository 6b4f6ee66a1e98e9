#include "Forms.h"
#include "Language.h"
#include "ProgramFolder.h"
#include "QuendNames.h"
#include "TextTable.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

const std::set<QString> TextProperties{
    QStringLiteral("captionText"), QStringLiteral("captionTextInYears"),
    QStringLiteral("toolTipText"), QStringLiteral("accessibleText"),
    QStringLiteral("hintText"),    QStringLiteral("activeText")};

/// The number of a text, and where the code uses it.
using Uses = std::multimap<int, std::string>;

Uses UsesOf(const std::vector<FormNumber>& numbers) {
    Uses uses;
    for (const FormNumber& named : numbers) {
        uses.emplace(named.number,
                     (named.form + QStringLiteral(", ") + named.property).toStdString());
    }
    return uses;
}

/// In the order of the headers.
std::vector<int> NumbersOfCode() {
    const QString headers = QString::fromUtf8(
        BytesOf(QStringLiteral(QUEND_SOURCE_DIR "/language/TextNumbers.h")) +
        BytesOf(QStringLiteral(QUEND_SOURCE_DIR "/language/CommandTextNumbers.h")) +
        BytesOf(QStringLiteral(QUEND_SOURCE_DIR "/language/CompareTextNumbers.h")) +
        BytesOf(QStringLiteral(QUEND_SOURCE_DIR "/language/EditTextNumbers.h")));
    const QRegularExpression constant(QStringLiteral("constexpr int \\w+ = (\\d+);"));
    std::vector<int> numbers;
    auto matches = constant.globalMatch(headers);
    while (matches.hasNext()) {
        numbers.push_back(matches.next().captured(1).toInt());
    }
    return numbers;
}

Uses AllUses() {
    Uses uses = UsesOf(NumbersOfForms(TextProperties));
    for (const int number : NumbersOfCode()) {
        uses.emplace(number, "TextNumbers.h");
    }
    return uses;
}

TextTable EnglishTable() {
    return TextTable::Parse(QString::fromUtf8(
        BytesOf(QStringLiteral(QUEND_SOURCE_DIR "/language/components/000/texts.txt"))));
}

TEST(TextUse, EveryNumberUsedHasAText) {
    const TextTable table = EnglishTable();
    for (const auto& [number, where] : AllUses()) {
        EXPECT_FALSE(table.Text(number).isNull()) << number << " in " << where;
    }
}

TEST(TextUse, EveryTextIsUsed) {
    ASSERT_FALSE(NumbersOfForms(TextProperties).empty());
    const Uses uses = AllUses();
    const TextTable table = EnglishTable();
    for (const auto& [number, text] : table.Texts()) {
        EXPECT_TRUE(uses.contains(number)) << number << ": " << text.toStdString();
    }
}

TEST(TextUse, NumbersOfCodeAscend) {
    const std::vector<int> numbers = NumbersOfCode();
    EXPECT_FALSE(numbers.empty());
    EXPECT_TRUE(std::ranges::is_sorted(numbers, std::ranges::less_equal()));
}

TEST(TextUse, BuiltInTextsAreThoseOfTheEnglishTable) {
    const TextTable table = EnglishTable();
    for (const auto& [number, text] : table.Texts()) {
        EXPECT_EQ(text, Language::DefaultText(number));
    }
}

TEST(TextUse, FormsAreReadByTheirTextProperties) {
    const auto form = NumbersOfForm(QStringLiteral("form"), R"(<ui><widget>
        <property name="text"><string>5</string></property>
        <property name="maxLength"><number>6</number></property>
        <property name="helpTopic" stdset="0"><number>7</number></property>
        <property name="captionText" stdset="0"><number>201</number></property>
        <property name="captionTextInYears" stdset="0"><number>205</number></property>
        <property name="toolTipText" stdset="0"><number>300</number></property>
        <property name="accessibleText" stdset="0"><number>400</number></property>
        <property name="hintText" stdset="0"><number>450</number></property>
        </widget></ui>)",
                                    TextProperties);
    std::vector<int> numbers;
    numbers.reserve(form.size());
    for (const FormNumber& named : form) {
        numbers.push_back(named.number);
    }
    EXPECT_EQ((std::vector{201, 205, 300, 400, 450}), numbers);
}

} // namespace
