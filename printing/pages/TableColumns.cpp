#include "TableColumns.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quend::printing {

namespace {

constexpr double LegiblePoints = 6;
/// The widest columns, as parts of the page. Together with the first column one more always fits.
constexpr double MostOfText = 0.3;
constexpr double MostOfNumbers = 0.45;
/// Columns that are wider than their content by more would tear the rows apart.
constexpr double WidestStretch = 1.5;
/// Keeps a text that fits exactly from being wrapped by a rounding error; twips.
constexpr double Tolerance = 0.5;

/// The width of a column in one size of type, padding included.
struct Extent {
    double natural = 0; ///< as its widest cell
    double least = 0;   ///< the same up to the limit
};

std::size_t CountOf(const TableOnPaper& table) {
    return static_cast<std::size_t>(table.headings.size());
}

/// A heading is wrapped at its blanks.
double WidestWord(const QString& heading, const PrintFont& font, const TextMetrics& metrics) {
    double widest = 0;
    for (const QString& word : heading.split(u' ')) {
        widest = std::max(widest, metrics.Width(font, word));
    }
    return widest;
}

double WidestCell(const TableOnPaper& table, std::size_t column, PrintFont font,
                  const TextMetrics& metrics) {
    double widest = 0;
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        const QString text = TextOf(table, {row, column});
        if (!text.isEmpty()) {
            font.bold = IsBold(table, {row, column});
            widest = std::max(widest, metrics.Width(font, text));
        }
    }
    return widest;
}

std::vector<Extent> Measure(const TableOnPaper& table, const Paper& paper, PrintFont font) {
    std::vector<Extent> extents(CountOf(table));
    for (std::size_t column = 0; column < extents.size(); ++column) {
        font.bold = true;
        const double word =
            WidestWord(table.headings.at(static_cast<qsizetype>(column)), font, *paper.metrics);
        font.bold = false;
        const double widest = std::max(word, WidestCell(table, column, font, *paper.metrics));
        const double limit = WidestText(table, column, paper.space.width());
        extents.at(column) = {.natural = widest + Tolerance + 2 * CellPadding,
                              .least = std::min(widest + Tolerance, limit) + 2 * CellPadding};
    }
    return extents;
}

double LeastWidth(const std::vector<Extent>& extents) {
    return std::accumulate(extents.begin(), extents.end(), 0.0,
                           [](double sum, const Extent& one) { return sum + one.least; });
}

double SmallestType(const Paper& paper) { return std::min(LegiblePoints, paper.font.points); }

/// The size of type in which the columns fit the page, or the least legible one.
double FittingPoints(const std::vector<Extent>& extents, const Paper& paper) {
    const double padding = 2 * CellPadding * static_cast<double>(extents.size());
    const double texts = std::max(Tolerance, LeastWidth(extents) - padding);
    const double space = paper.space.width() - padding;
    constexpr double margin = 0.99; // type has no exact sizes
    const double points = paper.font.points * margin * std::max(0.0, space) / texts;
    return std::clamp(points, SmallestType(paper), paper.font.points);
}

/// The columns of each group; all but the first group repeat the first column.
std::vector<std::vector<std::size_t>> Grouped(const std::vector<Extent>& extents, double space) {
    std::vector<std::vector<std::size_t>> groups{{0}};
    double taken = extents.front().least;
    for (std::size_t column = 1; column < extents.size(); ++column) {
        if (taken + extents.at(column).least > space && groups.back().size() > 1) {
            groups.push_back({0});
            taken = extents.front().least;
        }
        groups.back().push_back(column);
        taken += extents.at(column).least;
    }
    return groups;
}

/// What the columns leave of the page goes first to those that were limited, then to all.
ColumnGroup Placed(const std::vector<std::size_t>& columns, const std::vector<Extent>& extents,
                   double space) {
    double least = 0;
    double wanted = 0;
    for (const std::size_t column : columns) {
        least += extents.at(column).least;
        wanted += extents.at(column).natural - extents.at(column).least;
    }
    const double given = std::clamp(space - least, 0.0, wanted);
    const double part = wanted > 0 ? given / wanted : 0;
    const double stretch = std::clamp(space / (least + given), 1.0, WidestStretch);
    ColumnGroup group;
    double left = 0;
    for (const std::size_t column : columns) {
        const Extent& extent = extents.at(column);
        const double width = (extent.least + part * (extent.natural - extent.least)) * stretch;
        group.push_back({.column = column, .left = left, .width = width});
        left += width;
    }
    return group;
}

} // namespace

bool IsRightAligned(const TableOnPaper& table, std::size_t column) {
    return column < table.rightAligned.size() && table.rightAligned.at(column);
}

bool IsBold(const TableOnPaper& table, const TableOnPaper::Cell& cell) {
    return std::ranges::binary_search(table.bold, cell);
}

QString TextOf(const TableOnPaper& table, const TableOnPaper::Cell& cell) {
    return table.rows.at(cell.row).value(static_cast<qsizetype>(cell.column));
}

double WidestText(const TableOnPaper& table, std::size_t column, double pageWidth) {
    const double part = IsRightAligned(table, column) ? MostOfNumbers : MostOfText;
    return part * pageWidth - 2 * CellPadding;
}

TableColumns ColumnsOf(const TableOnPaper& table, const Paper& paper) {
    TableColumns columns{.font = paper.font};
    columns.font.bold = false;
    if (table.headings.isEmpty()) {
        return columns;
    }
    std::vector<Extent> extents = Measure(table, paper, columns.font);
    // The second size is the least: columns that are limited do not shrink with their type.
    for (const double points : {FittingPoints(extents, paper), SmallestType(paper)}) {
        if (LeastWidth(extents) > paper.space.width()) {
            columns.font.points = points;
            columns.shrunk = true;
            extents = Measure(table, paper, columns.font);
        }
    }
    for (const auto& group : Grouped(extents, paper.space.width())) {
        columns.groups.push_back(Placed(group, extents, paper.space.width()));
    }
    return columns;
}

} // namespace quend::printing
