#include "CsvText.h"
#include "ToolRun.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

// Comma-separated values: quoting, and the same figures as the JSON.

namespace {

using Row = std::vector<std::string>;

/// Reads them as other programs do. Does not check them.
std::vector<Row> ReadCsv(const std::string& csv) {
    std::vector<Row> rows;
    Row row(1);
    bool isQuoted = false;
    for (std::size_t i = 0; i < csv.size(); ++i) {
        const char c = csv[i];
        if (c == '"') {
            const bool isDoubled = isQuoted && i + 1 < csv.size() && csv[i + 1] == '"';
            isQuoted = isDoubled || !isQuoted;
            if (isDoubled) {
                row.back() += csv[++i];
            }
        } else if (isQuoted || (c != ',' && c != '\r' && c != '\n')) {
            row.back() += c;
        } else if (c == ',') {
            row.emplace_back();
        } else if (c == '\n') {
            rows.push_back(row);
            row = Row(1);
        }
    }
    return rows;
}

TEST(Csv, TextsAreQuotedAndNoFormulas) {
    struct Case {
        const char16_t* text;
        const char* cell;
    };
    const std::array cases{
        Case{u"", ""},
        Case{u"Cedar & Sons", "Cedar & Sons"},
        Case{u"Prairie, First", "\"Prairie, First\""},
        Case{u"the \"best\"", "\"the \"\"best\"\"\""},
        Case{u"line\nline", "\"line\nline\""},
        Case{u"line\rline", "\"line\rline\""},
        Case{u"=1+1", "'=1+1"},
        Case{u"+1", "'+1"},
        Case{u"-1", "'-1"},
        Case{u"@A1", "'@A1"},
        Case{u" =1", "' =1"},
        Case{u"\t=1", "'\t=1"},
        Case{u"\n@x", "\"'\n@x\""},
        Case{u"=A1,\"B\"", "\"'=A1,\"\"B\"\"\""},
        Case{u"1=1", "1=1"},
        Case{u"España", "Espa\xC3\xB1"
                        "a"},
    };
    for (const Case& text : cases) {
        EXPECT_EQ(CsvText(QString::fromUtf16(text.text)), text.cell);
    }
}

/// As a cell has it.
std::string CellOf(const QJsonValue& value) {
    if (value.isArray()) {
        std::string cell;
        for (const QJsonValue stretch : value.toArray()) {
            cell += (cell.empty() ? "from " : "; from ") +
                    std::to_string(stretch[QStringLiteral("fromMonth")].toInt());
            const QJsonValue until = stretch[QStringLiteral("untilMonth")];
            cell += until.isNull() ? "" : " until " + std::to_string(until.toInt());
        }
        return cell;
    }
    return value.toVariant().toString().toStdString();
}

void ExpectSame(const Row& names, const Row& row, const QJsonObject& members) {
    ASSERT_EQ(names.size(), row.size());
    int found = 0;
    for (std::size_t i = 2; i < names.size(); ++i) {
        const QJsonValue member = members[QString::fromStdString(names[i])];
        if (member.isDouble()) {
            EXPECT_EQ(std::stod(row[i]), member.toDouble()) << names[i];
        } else if (!member.isUndefined()) {
            EXPECT_EQ(row[i], CellOf(member)) << names[i];
        }
        found += member.isUndefined() ? 0 : 1;
    }
    EXPECT_EQ(found, members.size());
}

TEST(Csv, HasEveryFigureOfTheJson) {
    for (const std::string& line : ReferenceLines()) {
        SCOPED_TRACE(line);
        const std::vector<Row> rows = ReadCsv(RunTool({"--format", "csv", "-"}, line).out);
        const QJsonObject result =
            QJsonDocument::fromJson(
                QByteArray::fromStdString(RunTool({"--format", "json", "-"}, line).out))
                .object();
        const QJsonArray offers = result[QStringLiteral("offers")].toArray();
        const QJsonValue current = result[QStringLiteral("current")];
        ASSERT_EQ(rows.size(),
                  static_cast<std::size_t>(offers.size()) + (current.isNull() ? 1 : 2));
        for (qsizetype i = 0; i < offers.size(); ++i) {
            const Row& row = rows[static_cast<std::size_t>(i) + 1];
            EXPECT_EQ(row[0], std::to_string(i + 1));
            ExpectSame(rows[0], row, offers[i].toObject());
        }
        if (!current.isNull()) {
            EXPECT_EQ(rows.back()[0], "current");
            ExpectSame(rows[0], rows.back(), current.toObject());
        }
    }
}

TEST(Csv, LendersAreWholeTexts) {
    const std::string file = R"({"offers":[{"lender":"=Cedar, Sons\n\"555\""},{}]})";
    const ToolResult result = RunTool({"--format", "csv", "-"}, file);
    EXPECT_EQ(ReadCsv(result.out)[1][1], "'=Cedar, Sons\n\"555\"");
    EXPECT_EQ(ReadCsv(result.out)[2][1], "");
    EXPECT_NE(result.out.find("1,\"'=Cedar, Sons\n\"\"555\"\"\","), std::string::npos);
    EXPECT_NE(result.out.find("paymentForHorizon\r\n"), std::string::npos);
}

TEST(Csv, SchedulesAddUp) {
    for (const char* place : {"1", "2", "3", "current"}) {
        const ToolResult result = RunTool({"--schedule", place, Sample});
        EXPECT_EQ(result.status, 0);
        const std::vector<Row> rows = ReadCsv(result.out);
        EXPECT_EQ(rows[0], (Row{"number", "date", "payment", "interest", "principal", "escrow",
                                "balance", "interestSoFar"}));
        EXPECT_EQ(rows[1][1], place == std::string("current") ? "2026-12-01" : "2026-11-22");
        EXPECT_EQ(rows.back()[0], std::to_string(rows.size() - 1));
        EXPECT_EQ(rows.back()[6], "0.0000");
    }
    EXPECT_EQ(RunTool({"--schedule", "2", Sample}),
              RunTool({"--schedule", "2", "--format", "csv", Sample}));
}

} // namespace
