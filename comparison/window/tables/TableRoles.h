#pragma once

#include "CompareNames.h"
#include "TableText.h"

namespace quend::compare {

/// What the models of the comparison window say about a cell or a column besides Qt's roles
/// and those of TableText.h.
enum TableRole : int {
    // Of cells.
    SortRole = FirstTableRole, ///< a number or a text; invalid: the cell has no value
    PlaceRole,                 ///< the place of the loan; invalid: the rows are no loans
    FigureRole,                ///< the Figure as a number; invalid: the columns are no figures
    // Of columns, by headerData.
    HelpTopicRole,
    HiddenAtFirstRole ///< true: the user has to ask for the column
};

} // namespace quend::compare
