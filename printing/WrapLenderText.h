#pragma once

#include <QString>

#include <functional>

/// Breaks the text about a lender by "\r\n" into lines that are each narrower than the column:
/// after a hyphen, else instead of a blank, else before the first character that makes the line too
/// wide. Breaks that are there stay; blanks at the start of a line that follows a break go. A line
/// holds one character at least, however narrow the column. What a reader takes for one character
/// is never split.
///
/// `width` measures a line in the unit of `columnWidth`.
QString WrapLenderText(const QString& text, double columnWidth,
                       const std::function<double(const QString&)>& width);
