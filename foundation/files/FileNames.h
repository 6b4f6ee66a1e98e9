#pragma once

#include <QLatin1String>
#include <QString>

namespace quend {

/// The ending of files of worksheets.
inline constexpr QLatin1String WorksheetEnding(".quendloan");

/// A text as the name of a file, without an ending: at most 80 characters, without those that no
/// name may have on some system, and without a point at its beginning, which would hide the file.
/// May be empty.
QString SafeFileName(const QString& text);

} // namespace quend
