#pragma once

#include "TablePages.h"

#include <cstddef>
#include <vector>

namespace quend::printing {

/// Where a column of a table is printed; twips, padding included.
struct ColumnPlace {
    std::size_t column = 0;
    double left = 0;
    double width = 0;
};

/// The columns that are side by side on a page.
using ColumnGroup = std::vector<ColumnPlace>;

/// How the columns of a table are printed. Does not know the rows' heights or the pages.
struct TableColumns {
    PrintFont font;
    std::vector<ColumnGroup> groups = {}; ///< empty for a table without headings
    bool shrunk = false; ///< in smaller type than the paper's, or in several groups
};

/// Between the edge of a column and its text, in twips.
inline constexpr double CellPadding = 60;

/// The cells in bold type must be sorted.
TableColumns ColumnsOf(const TableOnPaper& table, const Paper& paper);

bool IsRightAligned(const TableOnPaper& table, std::size_t column);
bool IsBold(const TableOnPaper& table, const TableOnPaper::Cell& cell);
/// Blank where the row is shorter.
QString TextOf(const TableOnPaper& table, const TableOnPaper::Cell& cell);

/// The width of a column's texts is limited to this if any of them is longer, in twips.
double WidestText(const TableOnPaper& table, std::size_t column, double pageWidth);

} // namespace quend::printing
