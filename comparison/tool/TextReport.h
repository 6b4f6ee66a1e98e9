#pragma once

#include "ComparedFile.h"
#include "DisplayFormats.h"
#include "ToolNames.h"

#include <QString>

#include <vector>

namespace quend::tool {

// Tables for people, in the current language and the formats of a locale.

/// The settings, a row for each loan that takes part with the best of each column marked, and the
/// findings.
QString CompareText(const ComparedWorksheet& worksheet, const DisplayFormats& formats);

/// The least payments with which nothing is owed on that day.
QString PaymentsText(const ComparedWorksheet& worksheet, const std::vector<PaymentBy>& payments,
                     Date day, const DisplayFormats& formats);

} // namespace quend::tool
