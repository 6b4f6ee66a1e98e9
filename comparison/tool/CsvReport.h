#pragma once

#include "ComparedFile.h"
#include "LoanSchedule.h"
#include "ToolNames.h"

#include <QByteArray>

#include <vector>

namespace quend::tool {

// Comma-separated values for other programs: English names in the first line, numbers with a
// point, dates in ISO form, nothing where there is no value.

/// The figures of each offer and of the loan held today: a line for each offer and one for the loan
/// held today, if there is one.
QByteArray CompareCsv(const WorksheetInFile& worksheet, const ComparisonResult& result);

QByteArray ScheduleCsv(const std::vector<ScheduleRow>& rows);

QByteArray PaymentsCsv(const WorksheetInFile& worksheet, const std::vector<PaymentBy>& payments);

} // namespace quend::tool
