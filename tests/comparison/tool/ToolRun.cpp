#include "ToolRun.h"

#include "Language.h"
#include "Program.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

void Speak(Tongue tongue) {
    constexpr std::uint16_t SpanishOfMexico = 0x080A;
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
    Language::Instance().DetectLanguage(tongue == Tongue::Spanish ? SpanishOfMexico : 0);
}

ToolResult RunTool(const std::vector<std::string>& arguments, const std::string& input,
                   Tongue tongue) {
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const World world{
        .in = &in,
        .out = &out,
        .err = &err,
        .today = [] { return Date::FromCalendar(2026, 11, 22); },
        .locale =
            [tongue] {
                return QLocale(tongue == Tongue::Spanish ? QStringLiteral("es_MX")
                                                         : QStringLiteral("en_US"));
            },
        .loadLanguage = [tongue] { Speak(tongue); },
    };
    const int status = static_cast<int>(RunProgram(arguments, world));
    return {.status = status, .out = out.str(), .err = err.str()};
}

FileWith::FileWith(const std::string& content, const QString& name)
    : m_path(m_folder.filePath(name).toStdString()) {
    std::ofstream(m_path, std::ios::binary) << content;
}

std::vector<std::string> ReferenceLines() {
    std::ifstream file(QUEND_TEST_DATA "/comparison/comparisons.jsonl");
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        lines.push_back(line);
    }
    EXPECT_EQ(lines.size(), 150U);
    return lines;
}
