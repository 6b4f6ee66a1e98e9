#pragma once

#include "CompareNames.h"

#include <Qt>

namespace quend::compare {

/// What the models of the comparison window say about a cell or a column besides Qt's roles.
enum TableRole : int {
    // Of cells.
    SortRole = Qt::UserRole, ///< a number or a text; invalid: the cell has no value
    NumberRole,    ///< a number as an exact decimal, with a point and digits 0 to 9; invalid: no
                   ///< number
    ValueTextRole, ///< the text without the mark of the best; invalid: there is no mark
    PlaceRole,     ///< the place of the loan; invalid: the rows are no loans
    FigureRole,    ///< the Figure as a number; invalid: the columns are no figures
    // Of columns, by headerData.
    HelpTopicRole,
    HiddenAtFirstRole ///< true: the user has to ask for the column
};

} // namespace quend::compare
