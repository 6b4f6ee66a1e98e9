#pragma once

#include "QuendNames.h"
#include "World.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <ostream>
#include <string>
#include <vector>

namespace quend::tool {}
using namespace quend::tool;

/// What one run of quend-compare in this process left.
struct ToolResult {
    int status = 0;
    std::string out;
    std::string err;

    friend bool operator==(const ToolResult&, const ToolResult&) = default;
    friend void PrintTo(const ToolResult& result, std::ostream* stream) {
        *stream << result.status << '\n' << result.out << '\n' << result.err;
    }
};

enum class Tongue { English, Spanish };

/// Runs it on 22 November 2026, in the locale of the United States or of Mexico.
ToolResult RunTool(const std::vector<std::string>& arguments, const std::string& input = {},
                   Tongue tongue = Tongue::English);

/// Chooses the texts of a language.
void Speak(Tongue tongue);

/// A file that lasts as long as this object.
class FileWith {
public:
    explicit FileWith(const std::string& content, const QString& name = QStringLiteral("file"));
    std::string Path() const { return m_path; }

private:
    QTemporaryDir m_folder;
    std::string m_path;
};

/// The sample of the documentation.
inline const std::string Sample = QUEND_SOURCE_DIR "/docs/sample.quendloan";

/// The lines of the reference table, without their line ends.
std::vector<std::string> ReferenceLines();
