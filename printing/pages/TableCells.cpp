#include "TableCells.h"

#include "FitText.h"

#include <algorithm>

namespace quend::printing {

namespace {

constexpr qsizetype MostLines = 6;

} // namespace

PrintFont TableCells::Font(bool bold) const {
    PrintFont font = m_columns->font;
    font.bold = bold;
    return font;
}

double TableCells::LineHeight() const { return m_paper->metrics->Height(Font(true)); }

double TableCells::HeightOf(const CellRow& cells) const {
    std::size_t lines = 1;
    for (const CellLines& cell : cells) {
        lines = std::max(lines, cell.size());
    }
    return static_cast<double>(lines) * LineHeight() + 2 * Padding;
}

double TableCells::MostHeight() const { return MostLines * LineHeight() + 2 * Padding; }

/// Most texts fit, and are measured only once.
CellLines TableCells::LinesOf(const QString& text, double width, const PrintFont& font) const {
    const auto measure = [&](const QString& line) { return m_paper->metrics->Width(font, line); };
    const double whole = measure(text);
    if (whole <= width && !text.contains(u'\n')) {
        return {{text, whole}};
    }
    QStringList lines = LinesOfText(text, width, measure);
    if (lines.size() > MostLines) {
        const QString rest = lines.at(MostLines - 1) + u' ' + lines.at(MostLines);
        lines.resize(MostLines);
        lines.back() = CutToWidth(rest, width, measure);
    }
    CellLines measured;
    for (const QString& line : lines) {
        measured.push_back({line, measure(line)});
    }
    return measured;
}

CellRow TableCells::Headings(const ColumnGroup& group) const {
    CellRow cells;
    for (const ColumnPlace& place : group) {
        cells.push_back(LinesOf(m_table->headings.at(static_cast<qsizetype>(place.column)),
                                place.width - 2 * CellPadding, Font(true)));
    }
    return cells;
}

CellRow TableCells::Row(const ColumnGroup& group, std::size_t row) const {
    CellRow cells;
    for (const ColumnPlace& place : group) {
        const TableOnPaper::Cell cell{row, place.column};
        cells.push_back(LinesOf(TextOf(*m_table, cell), place.width - 2 * CellPadding,
                                Font(IsBold(*m_table, cell))));
    }
    return cells;
}

bool TableCells::Fit(double height) const {
    const double letters = m_paper->metrics->Width(Font(true), QStringLiteral("mmm"));
    return WidestText(*m_table, 0, m_paper->space.width()) >= letters &&
           std::ranges::all_of(m_columns->groups, [&](const ColumnGroup& group) {
               return HeightOf(Headings(group)) + MostHeight() <= height;
           });
}

} // namespace quend::printing
