#include "LineReader.h"
#include "Program.h"
#include "ToolRun.h"
#include "WorksheetFile.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <sstream>
#include <streambuf>

// One worksheet a line: an answer for each line, in order, and nothing kept.

namespace {

const std::string Blank = "{}";

std::string AnswerTo(const std::string& line) { return RunTool({"--lines"}, line).out; }

std::string Error(const char* words, int line, const char* member) {
    return std::string(R"({"error":"Line )") + std::to_string(line) + ": " + words +
           R"(","line":)" + std::to_string(line) + R"(,"member":)" + member + "}\n";
}

const char* const NoJson = "this is not a well-formed worksheet in JSON and UTF-8.";

TEST(Lines, AnswerEachLineInOrder) {
    std::string input;
    std::string answers;
    for (const std::string& line : ReferenceLines()) {
        input += line + '\n';
        answers += RunTool({"--format", "json", "-"}, line).out;
    }
    EXPECT_EQ(RunTool({"--lines"}, input), (ToolResult{0, answers, ""}));
}

TEST(Lines, FaultyOnesAreAnsweredAndPassedOver) {
    const std::string sound = AnswerTo(Blank);
    const std::string tooLong = "{\"name\":\"" + std::string(MostBytes, 'x') + "\"}";
    const std::string nul = std::string("{") + '\0' + "}";
    const char* const tooManyBytes = "there are more than 1000000 bytes, which no worksheet has.";
    struct Case {
        std::string input;
        std::string output;
        int status;
    };
    const std::array cases{
        Case{"", "", 0},
        Case{Blank, sound, 0}, // no line end
        Case{Blank + "\n" + Blank + "\n", sound + sound, 0},
        Case{Blank + "\r\n" + Blank + "\r\n", sound + sound, 0},
        Case{"\n", Error(NoJson, 1, "null"), 1},
        Case{Blank + "\n\n" + Blank, sound + Error(NoJson, 2, "null") + sound, 1},
        Case{Blank + "\n \r\n", sound + Error(NoJson, 2, "null"), 1},
        Case{nul + "\n" + Blank, Error(NoJson, 1, "null") + sound, 1},
        Case{"{}{}\n[]\n" + Blank,
             Error(NoJson, 1, "null") +
                 Error("this is not a worksheet, which is an object in braces.", 2, "null") + sound,
             1},
        Case{Blank + "\n" + tooLong + "\n" + Blank + "\n" + tooLong,
             sound + Error(tooManyBytes, 2, "null") + sound + Error(tooManyBytes, 4, "null"), 1},
        Case{Blank + "\n{\"offers\":[{},{\"rate\":-1}]}",
             sound + Error("the value of “offers[2].rate” is not a number, or it is negative or "
                           "not whole where it cannot be.",
                           2, "\"offers[2].rate\""),
             1},
    };
    for (const Case& lines : cases) {
        SCOPED_TRACE(lines.input.substr(0, 40));
        EXPECT_EQ(RunTool({"--lines"}, lines.input), (ToolResult{lines.status, lines.output, ""}));
    }
}

TEST(Lines, LongestLineIsAsLongAsAFile) {
    const std::string longest = "{}" + std::string(MostBytes - 2, ' ');
    EXPECT_EQ(RunTool({"--lines"}, longest + "\n" + longest + " \n").status, 1);
    EXPECT_EQ(RunTool({"--lines"}, longest + "\n").status, 0);
    EXPECT_EQ(RunTool({"-"}, longest).status, 0);
    EXPECT_EQ(RunTool({"-"}, longest + ' ').status, 1);
}

TEST(Lines, OptionsReplaceWhatALineSays) {
    const std::string line = R"({"today":"2026-01-31","years":3,"payments":"1000","worksheet":{)"
                             R"("amount":"9000","offers":[{"rate":0.1,"termMonths":120,)"
                             R"("frequency":"M"}]}})";
    const std::string said = AnswerTo(line);
    EXPECT_EQ(RunTool({"--lines", "--today", "2026-01-31"}, line).out, said);
    EXPECT_EQ(RunTool({"--lines", "--years", "3", "--payments", "1000.00"}, line).out, said);
    EXPECT_NE(RunTool({"--lines", "--today", "2026-02-28"}, line).out, said);
    EXPECT_NE(RunTool({"--lines", "--years", "4", "--payments", "intended"}, line).out, said);
    EXPECT_NE(RunTool({"--lines", "--payments", "computed"}, line).out, said);
}

TEST(Lines, FilesAreOneInputAndMissingOnesAreReported) {
    const FileWith first(Blank + "\n?");
    const FileWith second(Blank + "\n?\n");
    const std::string sound = AnswerTo(Blank);
    EXPECT_EQ(
        RunTool({"--lines", first.Path(), "/no/such/file", "-", second.Path()}, Blank),
        (ToolResult{1, sound + Error(NoJson, 2, "null") + sound + sound + Error(NoJson, 5, "null"),
                    "quend-compare: /no/such/file: There is no such file.\n"}));
    EXPECT_EQ(
        RunTool({"--lines", QUEND_SOURCE_DIR}),
        (ToolResult{1, "", "quend-compare: " QUEND_SOURCE_DIR ": This file cannot be read.\n"}));
}

/// Endless input in small pieces, as a pipe gives it; counts what was taken.
class Endless : public std::streambuf {
public:
    explicit Endless(std::string piece) : m_piece(std::move(piece)) {}
    int Pieces() const { return m_pieces; }

protected:
    int_type underflow() override {
        ++m_pieces;
        setg(m_piece.data(), m_piece.data(), m_piece.data() + m_piece.size());
        return traits_type::to_int_type(m_piece.front());
    }

private:
    std::string m_piece;
    int m_pieces = 0;
};

/// An output that refuses everything after some bytes.
class Full : public std::streambuf {
public:
    Full(int bytes, int why) : m_left(bytes), m_why(why) {}

protected:
    int_type overflow(int_type byte) override {
        if (m_left-- > 0) {
            return byte;
        }
        errno = m_why;
        return traits_type::eof();
    }

private:
    int m_left;
    int m_why;
};

TEST(Lines, EndWhenTheOutputFails) {
    struct Case {
        int why;
        const char* words;
    };
    for (const auto& [why, words] :
         {Case{ENOSPC, "quend-compare: The output could not be written.\n"}, Case{EPIPE, ""}}) {
        Endless endless(Blank + "\n");
        std::istream in(&endless);
        Full full(1000, why);
        std::ostream out(&full);
        std::ostringstream err;
        const World world{.in = &in,
                          .out = &out,
                          .err = &err,
                          .today = [] { return Date::FromDays(1); },
                          .locale = [] { return QLocale::c(); },
                          .loadLanguage = [] { Speak(Tongue::English); }};
        EXPECT_EQ(RunProgram({"--lines"}, world), Status::BadInput);
        EXPECT_EQ(err.str(), words);
        EXPECT_LT(endless.Pieces(), 100);
    }
}

TEST(Lines, AreAnsweredBeforeTheNextOneIsThere) {
    Endless endless("{}\n{"); // one and a half at a time
    std::istream in(&endless);
    LineReader reader(in, 10);
    EXPECT_EQ(reader.Next(), LineReader::Kind::Line);
    EXPECT_EQ(endless.Pieces(), 1);
    EXPECT_EQ(reader.Next(), LineReader::Kind::Line);
    EXPECT_EQ(reader.Line(), "{{}");
    EXPECT_EQ(endless.Pieces(), 2);
}

TEST(Lines, TooLongOnesAreNotKept) {
    const std::string input = std::string(10'000'000, 'x') + "\nabc\n" + std::string(11, 'x');
    std::istringstream in(input);
    LineReader reader(in, 10);
    EXPECT_EQ(reader.Next(), LineReader::Kind::TooLong);
    EXPECT_LT(reader.Line().capacity(), 100);
    EXPECT_EQ(reader.Next(), LineReader::Kind::Line);
    EXPECT_EQ(reader.Line(), "abc");
    EXPECT_EQ(reader.Next(), LineReader::Kind::TooLong);
    EXPECT_EQ(reader.Next(), LineReader::Kind::End);
}

} // namespace
