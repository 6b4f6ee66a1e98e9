// Files of worksheets on disk: what is read, why others are not, and their names.

#include "WorksheetFiles.h"
#include "Language.h"
#include "QuendNames.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class WorksheetFilesTest : public testing::Test {
protected:
    ~WorksheetFilesTest() override { Speak(1); }

    static void Speak(int language) {
        Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), u"Loan"_s);
        Language::Instance().LoadLanguage(language);
    }
    QString Write(const QByteArray& content) const {
        QFile file(m_folder.filePath(u"a.quendloan"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

TEST_F(WorksheetFilesTest, AFileInErrorIsExplainedWithItsLine) {
    QByteArray seventeen = "{\n\"offers\": [{}";
    for (int i = 0; i < 16; ++i) {
        seventeen += ",\n{}";
    }
    const struct {
        QByteArray content;
        const char* english;
        const char* spanish;
    } table[]{
        {"", "Line 1: this is not", "Línea 1: esto no es"},
        {"{\n\"name\": \"a\",\n]", "Line 3: this is not", "Línea 3: esto no es"},
        {"{\"name\":\n\"\xff\"}", "Line 2: this is not", "Línea 2: esto no es"},
        {"{\n\"amount\": true}", "Line 2: the value of “amount” is of",
         "Línea 2: el valor de «amount» no es del tipo"},
        {"{\"offers\": [{\n\"rate\": -1}]}",
         "Line 2: the value of “offers[1].rate” is not a number",
         "Línea 2: el valor de «offers[1].rate» no es un número"},
        {"{\n\n\"quendLoan\": 2}", "Line 3: a newer version",
         "Línea 3: la hoja de trabajo se escribió con una versión más nueva"},
        {seventeen + "]}", "Line 18: there are more than 16 offers",
         "Línea 18: hay más de 16 ofertas"},
        {QByteArray(1'000'001, ' '), "there are more than 1000000 bytes",
         "hay más de 1000000 bytes"},
    };
    for (const auto& row : table) {
        const QString path = Write(row.content);
        for (const int language : {1, 2}) {
            Speak(language);
            const OpenedFile file = OpenWorksheetFile(path);
            EXPECT_FALSE(file.worksheet);
            EXPECT_TRUE(
                file.trouble.contains(QString::fromUtf8(language == 1 ? row.english : row.spanish)))
                << file.trouble.toStdString();
        }
    }
}

TEST_F(WorksheetFilesTest, OnlyFilesAreRead) {
    Speak(1);
    const QString pipe = m_folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    for (const QString& missing : {u""_s, m_folder.filePath(u"none"_s), Write("{}") + u"/none"_s}) {
        EXPECT_EQ(OpenWorksheetFile(missing).trouble, u"There is no such file.");
    }
    for (const QString& unreadable : {m_folder.path(), pipe, u"/dev/zero"_s}) {
        EXPECT_EQ(OpenWorksheetFile(unreadable).trouble, u"This file cannot be read.");
    }
    const QString locked = Write("{}");
    EXPECT_TRUE(OpenWorksheetFile(locked).worksheet);
    QFile::setPermissions(locked, QFile::WriteOwner);
    if (geteuid() != 0) {
        EXPECT_EQ(OpenWorksheetFile(locked).trouble, u"This file cannot be read.");
    }
}

TEST_F(WorksheetFilesTest, UnknownMembersAndRequestsAreRead) {
    const OpenedFile file = OpenWorksheetFile(
        Write(R"({"years": 3, "worksheet": {"name": "In it", "colour": [1, {}]}})"));
    ASSERT_TRUE(file.worksheet);
    EXPECT_EQ(file.worksheet->name, u"In it");
}

TEST_F(WorksheetFilesTest, ArgumentsAreNamesOrUrls) {
    const QString here = QDir::currentPath();
    const struct {
        QString argument;
        QString path;
    } table[]{
        {u"a b.quendloan"_s, here + u"/a b.quendloan"_s},
        {u"../a%20b"_s, QDir::cleanPath(here + u"/../a%20b"_s)},
        {u"/x/ñ"_s, u"/x/ñ"_s},
        {u"file:///x/a%20b.quendloan"_s, u"/x/a b.quendloan"_s},
        {u"https://quend.example/a"_s, here + u"/https:/quend.example/a"_s},
        {u""_s, u""_s},
    };
    for (const auto& row : table) {
        EXPECT_EQ(QDir::cleanPath(PathOfArgument(row.argument)).toStdString(),
                  row.path.toStdString());
    }
}

TEST_F(WorksheetFilesTest, NamesGetTheEnding) {
    Speak(1);
    EXPECT_EQ(FileNameFor(u"Home: 2.5 %"_s), u"Home 2.5 %.quendloan");
    EXPECT_EQ(FileNameFor(u" "_s), u"Worksheet.quendloan");
    EXPECT_EQ(WithWorksheetEnding(u"/a/b.quendloan.txt"_s), u"/a/b.quendloan.txt.quendloan");
    EXPECT_EQ(WithWorksheetEnding(u"/a/B.QuendLoan"_s), u"/a/B.QuendLoan");
}

} // namespace
