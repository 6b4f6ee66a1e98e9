#pragma once

#include "ToolNames.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <vector>

namespace quend::tool {

// Texts in the columns of a terminal, which shows some characters in two places and some in none.

/// Without characters that would control the terminal; line ends and tabs become blanks.
QString PlainText(QStringView text);

/// How many places the terminal needs for a plain text.
int PlacesOf(QStringView text);

/// As much of the text as fits into so many places, with "…" where it was cut.
QString CutTo(const QString& text, int places);

/// Lines of at most 79 places after the same number of blanks, broken at blanks, each ended by a
/// line feed.
QString Wrapped(const QString& text, int indent);

enum class Align { Left, Right };

struct TextColumn {
    QString heading; ///< perhaps of several lines
    Align align = Align::Right;
};

/// Headings and rows as lines, each ended by a line feed. A row has a text for each column.
QString AlignedLines(const std::vector<TextColumn>& columns, const std::vector<QStringList>& rows);

} // namespace quend::tool
