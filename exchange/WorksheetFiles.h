#pragma once

#include "ExchangeNames.h"
#include "WorksheetFile.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quend::exchange {

// Files of worksheets on disk. What the user reads is in the current language.

/// A worksheet, or the reason why there is none. One of both.
struct OpenedFile {
    std::optional<WorksheetInFile> worksheet;
    QString trouble; ///< a sentence, with line and member where it helps
};

/// Reads a file of worksheets. Only regular files are read, and not much more than MostBytes of
/// them.
OpenedFile OpenWorksheetFile(const QString& path);

/// Why these bytes, as WriteWorksheet gives them, would be no file to open again; empty if they
/// would be one.
QString WhyNotKept(const QByteArray& bytes);

/// The path of an argument of the command line: as it is, relative, or in the form file://….
QString PathOfArgument(const QString& argument);

/// The name of a file for a worksheet of this name, with the ending.
QString FileNameFor(const QString& worksheet);

/// With the ending of files of worksheets, added if missing.
QString WithWorksheetEnding(const QString& path);

} // namespace quend::exchange
