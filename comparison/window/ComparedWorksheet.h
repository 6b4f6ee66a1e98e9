#pragma once

#include "CompareNames.h"
#include "Comparison.h"
#include "LoanSchedule.h"

#include <QString>

#include <optional>
#include <vector>

namespace quend::compare {

/// What the comparison window shows: the worksheet as entered, and its figures. A value; the pages
/// of the window read it and keep nothing else of the worksheet.
struct ComparedWorksheet {
    QString name; ///< of the worksheet; may be empty
    ComparisonInput input;
    ComparisonResult result;
    std::vector<QString> lenders; ///< the first line of each offer's lender; may be empty
    std::vector<int> rows;        ///< the offers' places in the order of the main window's rows
};

/// How texts name a loan: by its lender; "Offer 3" without one, and with its number where two
/// lenders have one name; or the loan held today (CurrentLoanPlace).
QString NameOfLoan(const ComparedWorksheet& worksheet, int place);

/// Whether nothing is entered for an offer, not even a lender.
bool IsBlank(const ComparedWorksheet& worksheet, int place);

/// The offers that take part, in the order of the rows, then the loan held today if it does.
std::vector<int> PlacesThatTakePart(const ComparedWorksheet& worksheet);

/// The figures of an offer; null where it takes no part, and for the loan held today.
const OfferFigures* FiguresOf(const ComparedWorksheet& worksheet, int place);

} // namespace quend::compare
