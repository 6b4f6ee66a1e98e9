#include "Comparison.h"
#include "QuendNames.h"
#include "ResultJson.h"
#include "WorksheetFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <string>

// Every member of every worksheet that another program compared, from file to result: amounts to
// the last digit, rates to 1e-9.

namespace {

/// Compares member by member; both have the same ones.
// NOLINTNEXTLINE(misc-no-recursion): as deep as the table's objects
void ExpectSame(const QJsonValue& actual, const QJsonValue& expected, const QString& path) {
    if (expected.isObject()) {
        const QJsonObject members = expected.toObject();
        EXPECT_EQ(actual.toObject().keys(), members.keys()) << path.toStdString();
        for (auto member = members.begin(); member != members.end(); ++member) {
            ExpectSame(actual.toObject()[member.key()], member.value(),
                       path + QLatin1Char('.') + member.key());
        }
    } else if (expected.isArray()) {
        const QJsonArray elements = expected.toArray();
        EXPECT_EQ(actual.toArray().size(), elements.size()) << path.toStdString();
        for (qsizetype i = 0; i < elements.size(); ++i) {
            ExpectSame(actual.toArray().at(i), elements.at(i),
                       path + QStringLiteral("[%1]").arg(i + 1));
        }
    } else if (expected.isDouble() && actual.isDouble()) {
        EXPECT_NEAR(actual.toDouble(), expected.toDouble(), 1e-9) << path.toStdString();
    } else {
        EXPECT_EQ(actual, expected)
            << path.toStdString() << " is " << actual.toVariant().toString().toStdString()
            << ", not " << expected.toVariant().toString().toStdString();
    }
}

TEST(ReferenceComparisons, AgreeInEveryMember) {
    QFile file(QStringLiteral(QUEND_TEST_DATA "/comparison/comparisons.jsonl"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    int number = 0;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        SCOPED_TRACE("line " + std::to_string(++number));
        const ReadResult<ComparisonRequest> read = ReadRequest(line);
        ASSERT_TRUE(read.content) << read.error.member.toStdString();
        ASSERT_TRUE(read.content->today && read.content->years && read.content->payments);
        const QByteArray result = ToJson(Compare(ToInput(*read.content, Date())));
        EXPECT_FALSE(result.contains('\n'));
        ExpectSame(QJsonDocument::fromJson(result).object(),
                   QJsonDocument::fromJson(line).object()[QStringLiteral("expected")],
                   QStringLiteral("expected"));
    }
    EXPECT_EQ(number, 150);
}

} // namespace
