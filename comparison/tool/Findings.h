#pragma once

#include "ComparedWorksheet.h"
#include "DisplayFormats.h"
#include "ToolNames.h"

#include <QString>
#include <QStringList>

namespace quend::tool {

/// What follows from the figures, a sentence each: which offer costs least by the horizon and how
/// much less than the next one and the loan held today, how long each costs least, and which loans
/// are left out and why.
QStringList Findings(const ComparedWorksheet& worksheet, const DisplayFormats& formats);

/// Why a loan takes no part; empty where it does.
QString LeftOutSentence(const ComparedWorksheet& worksheet, int place);

/// So many months in years and months, such as "2 years and 3 months".
QString TimeText(int months);

} // namespace quend::tool
