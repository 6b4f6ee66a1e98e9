#pragma once

#include "TableColumns.h"

#include <vector>

namespace quend::printing {

/// A line of a cell and its width in twips.
struct CellLine {
    QString text;
    double width = 0;
};
using CellLines = std::vector<CellLine>;

/// The cells of a row that are side by side on a page.
using CellRow = std::vector<CellLines>;

/// Breaks the texts of a table into lines that fit their columns. A text too long for a few lines
/// ends in "…". Table, paper and columns must outlive it. Draws nothing.
class TableCells {
public:
    TableCells(const TableOnPaper& table, const Paper& paper, const TableColumns& columns)
        : m_table(&table), m_paper(&paper), m_columns(&columns) {}

    CellRow Headings(const ColumnGroup& group) const;
    CellRow Row(const ColumnGroup& group, std::size_t row) const;

    PrintFont Font(bool bold) const;
    double LineHeight() const;
    /// The height of a row with its padding, in twips.
    double HeightOf(const CellRow& cells) const;
    /// The height of a row of the most lines that a cell may have.
    double MostHeight() const;
    /// Above and below the text of a row.
    static constexpr double Padding = 30;

    /// Whether the columns are wide enough for a few letters and the height for the headings and
    /// any row.
    bool Fit(double height) const;

private:
    CellLines LinesOf(const QString& text, double width, const PrintFont& font) const;

    const TableOnPaper* m_table;
    const Paper* m_paper;
    const TableColumns* m_columns;
};

} // namespace quend::printing
