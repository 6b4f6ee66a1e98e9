#pragma once

#include "ComparedWorksheet.h"
#include "LoanSchedule.h"
#include "ToolNames.h"
#include "WorksheetFile.h"

#include <optional>
#include <vector>

namespace quend::tool {

/// The worksheet of a request with its figures; an offer's name is the first line of its lender,
/// without characters that would control a terminal.
ComparedWorksheet CompareFile(const ComparisonRequest& request, Date today);

/// A loan of the worksheet and the least payment with which nothing is owed on a day.
struct PaymentBy {
    int place = 0;
    std::optional<Money> payment; ///< none: no payment does that
};

/// All offers in their order, then the loan held today if there is one.
std::vector<PaymentBy> PaymentsBy(const ComparedWorksheet& worksheet, Date day);

} // namespace quend::tool
