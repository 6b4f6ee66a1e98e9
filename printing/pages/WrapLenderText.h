#pragma once

#include <QString>

#include <functional>

namespace quend::printing {

/// Breaks a text, such as that about a lender, by "\r\n" into lines that are each narrower than the
/// column: after a hyphen, else at a blank, which is dropped, else before the first character that
/// makes the line too wide. Existing breaks stay; blanks at the start of a line after a new break
/// are dropped. A line has at least one character, however narrow the column. Grapheme clusters are
/// never split.
///
/// `width` measures a line in the unit of `columnWidth`.
QString WrapLenderText(const QString& text, double columnWidth,
                       const std::function<double(const QString&)>& width);

} // namespace quend::printing
