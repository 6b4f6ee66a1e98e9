#pragma once

#include "World.h"

#include <QString>

#include <fstream>
#include <istream>
#include <string>

namespace quend::tool {

/// A file named on the command line, or standard input for "-".
class InputFile {
public:
    InputFile(const World& world, std::string name);

    /// Null where it cannot be opened.
    std::istream* Stream() const { return m_stream; }

    /// The name and why it cannot be opened or read, as one sentence. Loads the language.
    QString Trouble() const;
    /// The name and another sentence about it. Loads the language.
    QString Sentence(const QString& about) const;

private:
    const World* m_world;
    std::string m_name;
    std::ifstream m_file;
    std::istream* m_stream = nullptr;
};

} // namespace quend::tool
