#pragma once

#include "CompareNames.h"

class QMenu;

namespace quend::compare {

class FigureTable;

/// Adds the entries about the columns of a table: which are shown, and for one column (-1: none)
/// sorting and moving. The first column is always shown.
void FillColumnMenu(QMenu& menu, FigureTable& table, int column);

} // namespace quend::compare
