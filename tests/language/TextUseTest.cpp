#include "Language.h"
#include "ProgramFolder.h"
#include "TextNumbers.h"
#include "TextTable.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

const std::set<QString> TextProperties{
    QStringLiteral("captionText"), QStringLiteral("captionTextInYears"),
    QStringLiteral("toolTipText"), QStringLiteral("accessibleText"),
    QStringLiteral("hintText"),    QStringLiteral("activeText")};

/// A text's number, and where it is asked for.
using Uses = std::multimap<int, std::string>;

/// The numbers that a form names by its dynamic properties.
Uses UsesOfForm(const std::string& name, const QByteArray& form) {
    Uses uses;
    QXmlStreamReader reader(form);
    QString property;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == u"property") {
            property = reader.attributes().value(QLatin1String("name")).toString();
        } else if (reader.name() == u"number" && TextProperties.contains(property)) {
            uses.emplace(reader.readElementText().toInt(), name + ", " + property.toStdString());
        }
    }
    EXPECT_FALSE(reader.hasError()) << name << ": " << reader.errorString().toStdString();
    return uses;
}

std::vector<QString> Forms() {
    std::vector<QString> forms;
    // The program's own folders: a build folder inside the tree may hold copies.
    for (const char* folder : {"worksheet", "storage", "printing", "extras", "language"}) {
        QDirIterator files(QStringLiteral(QUEND_SOURCE_DIR "/") + QString::fromUtf8(folder),
                           {QStringLiteral("*.ui")}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            forms.push_back(files.next());
        }
    }
    return forms;
}

Uses AllUses() {
    Uses uses;
    for (const QString& form : Forms()) {
        uses.merge(UsesOfForm(form.toStdString(), BytesOf(form)));
    }
    for (const int number : TextNumber::All) {
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
    ASSERT_FALSE(Forms().empty());
    const Uses uses = AllUses();
    const TextTable table = EnglishTable();
    for (const auto& [number, text] : table.Texts()) {
        EXPECT_TRUE(uses.contains(number)) << number << ": " << text.toStdString();
    }
}

TEST(TextUse, NumbersOfCodeAreAllListedOnce) {
    const QString header =
        QString::fromUtf8(BytesOf(QStringLiteral(QUEND_SOURCE_DIR "/language/TextNumbers.h")));
    const QRegularExpression constant(QStringLiteral("constexpr int \\w+ = (\\d+);"));
    std::vector<int> declared;
    auto matches = constant.globalMatch(header);
    while (matches.hasNext()) {
        declared.push_back(matches.next().captured(1).toInt());
    }
    std::vector<int> listed(TextNumber::All.begin(), TextNumber::All.end());
    std::sort(declared.begin(), declared.end());
    std::sort(listed.begin(), listed.end());
    EXPECT_EQ(declared, listed);
    EXPECT_EQ(listed.end(), std::adjacent_find(listed.begin(), listed.end()));
}

TEST(TextUse, BuiltInTextsAreThoseOfTheEnglishTable) {
    const TextTable table = EnglishTable();
    for (const auto& [number, text] : table.Texts()) {
        EXPECT_EQ(text, Language::Instance().DefaultText(number));
    }
}

TEST(TextUse, FormsAreReadByTheirTextProperties) {
    const Uses uses = UsesOfForm("form", R"(<ui><widget>
        <property name="text"><string>5</string></property>
        <property name="maxLength"><number>6</number></property>
        <property name="helpTopic" stdset="0"><number>7</number></property>
        <property name="captionText" stdset="0"><number>201</number></property>
        <property name="captionTextInYears" stdset="0"><number>205</number></property>
        <property name="toolTipText" stdset="0"><number>300</number></property>
        <property name="accessibleText" stdset="0"><number>400</number></property>
        <property name="hintText" stdset="0"><number>450</number></property>
        </widget></ui>)");
    std::vector<int> numbers;
    for (const auto& [number, where] : uses) {
        numbers.push_back(number);
    }
    EXPECT_EQ((std::vector{201, 205, 300, 400, 450}), numbers);
}

} // namespace
