#pragma once

#include "WorksheetFile.h"

#include <QString>

namespace quend::comparison {

/// Why a file of worksheets was refused: one sentence in the current language, with the line and,
/// where it helps, the member.
QString FileErrorText(const FileError& error);

} // namespace quend::comparison
