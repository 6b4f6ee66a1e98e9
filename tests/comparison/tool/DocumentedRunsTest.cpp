// What README.md and docs/quend-compare.md show is what the program prints.

#include "ToolRun.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <fstream>

namespace {

/// A command of a document, and the output shown below it.
struct ShownRun {
    std::string command;
    std::string output;
};

const std::string Indent = "    ";
const std::string Prompt = Indent + "$ ";

/// The indented lines after "$ ".
std::vector<ShownRun> RunsOf(const std::string& document) {
    std::ifstream file(std::string(QUEND_SOURCE_DIR "/") + document);
    std::vector<ShownRun> runs;
    bool isShown = false;
    int blanks = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(Prompt)) {
            runs.push_back({line.substr(Prompt.size()), {}});
            isShown = true;
            blanks = 0;
        } else if (line.empty()) {
            ++blanks;
        } else if (isShown && line.starts_with(Indent)) {
            runs.back().output += std::string(static_cast<std::size_t>(blanks), '\n') +
                                  line.substr(Indent.size()) + '\n';
            blanks = 0;
        } else {
            isShown = false;
        }
    }
    return runs;
}

/// In a folder with the sample and some lines, and the program in the path.
std::string OutputOf(const std::string& command, const QString& folder) {
    QProcess shell;
    shell.setWorkingDirectory(folder);
    shell.setEnvironment(QProcess::systemEnvironment()
                         << QStringLiteral("LC_ALL=en_US.UTF-8")
                         << QStringLiteral("PATH=" QUEND_PROGRAM_DIR ":/usr/bin:/bin"));
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QString::fromStdString(command)});
    EXPECT_TRUE(shell.waitForFinished(60'000));
    return (shell.readAllStandardOutput() + shell.readAllStandardError()).toStdString();
}

class DocumentedRuns : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(In, DocumentedRuns, testing::Values("README.md", "docs/quend-compare.md"),
                         [](const auto& tested) {
                             return tested.param == std::string("README.md") ? "Readme" : "Guide";
                         });

TEST_P(DocumentedRuns, PrintWhatIsShown) {
    const QTemporaryDir folder;
    const QString sample = folder.filePath(QStringLiteral("docs/sample.quendloan"));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("docs")));
    ASSERT_TRUE(QFile::copy(QString::fromStdString(Sample), sample));
    std::ofstream(folder.filePath(QStringLiteral("worksheets.jsonl")).toStdString())
        << std::ifstream(QUEND_TEST_DATA "/comparison/comparisons.jsonl").rdbuf();
    const std::vector<ShownRun> runs = RunsOf(GetParam());
    EXPECT_FALSE(runs.empty());
    for (const ShownRun& run : runs) {
        EXPECT_EQ(OutputOf(run.command, folder.path()), run.output) << run.command;
    }
}

} // namespace
