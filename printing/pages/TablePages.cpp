#include "TablePages.h"

#include "PageFlow.h"
#include "PagePainter.h"
#include "TableCells.h"
#include "TableColumns.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quend::printing {

namespace {

constexpr int RowPen = 1;
constexpr int HeadingPen = 4;
/// The user can cancel after each of these parts of the rows.
constexpr std::size_t RowsOfSection = 100;

/// A picture's height as a part of its width, and the least part of that height with which it
/// stays on a page that has begun.
constexpr double PictureHeight = 0.6;
constexpr double LeastPictureHeight = 0.7;
constexpr double LeastPictureSide = TwipsPerInch;

/// Draws title, paragraphs, picture and table, whichever there are.
class TableDrawing : public Drawing {
public:
    TableDrawing(PictureOnPaper document, Paper paper);
    Q_DISABLE_COPY_MOVE(TableDrawing)
    ~TableDrawing() override = default;

    bool Fits() const override;
    bool PrefersLandscape() const override { return m_columns.shrunk; }
    bool DrawNext() override;
    void Finish() override { m_flow.PrintLegalNotice(); }
    const PrintedPages& Pages() const override { return m_flow.Pages(); }

private:
    const TableOnPaper& Table() const { return m_document.table; }
    const ColumnGroup& Group() const { return m_columns.groups.at(m_group); }
    bool HasMore() const { return m_group < m_columns.groups.size() && !Table().rows.empty(); }

    void Begin();
    void PrintPicture();
    void BeginTable();
    void PrintHeadings();
    void PrintRow();
    void EndRow();
    void PrintCells(const CellRow& cells, bool headings);
    void PrintRule(int pen);

    PictureOnPaper m_document;
    Paper m_paper;
    TableColumns m_columns;
    TableCells m_cells;
    PageFlow m_flow;
    bool m_begun = false;
    std::size_t m_group = 0;
    std::size_t m_row = 0;
};

PictureOnPaper WithSortedCells(PictureOnPaper document) {
    std::ranges::sort(document.table.bold);
    return document;
}

TableDrawing::TableDrawing(PictureOnPaper document, Paper paper)
    : m_document(WithSortedCells(std::move(document))), m_paper(std::move(paper)),
      m_columns(ColumnsOf(m_document.table, m_paper)),
      m_cells(m_document.table, m_paper, m_columns), m_flow(m_paper, m_document.title) {}

bool TableDrawing::Fits() const {
    const double space = m_flow.SpaceOfNextPage();
    const double side = std::min(m_flow.Width(), space);
    return space >= m_cells.MostHeight() && (!m_document.paint || side >= LeastPictureSide) &&
           m_cells.Fit(space);
}

bool TableDrawing::DrawNext() {
    if (!std::exchange(m_begun, true)) {
        Begin();
        return HasMore();
    }
    for (std::size_t count = 0; count < RowsOfSection && HasMore(); ++count) {
        PrintRow();
        EndRow();
    }
    return HasMore();
}

void TableDrawing::Begin() {
    m_flow.PrintTitle();
    for (const QString& paragraph : m_document.paragraphs) {
        m_flow.PrintParagraph(paragraph);
    }
    if (m_document.paint) {
        PrintPicture();
    }
    if (!m_columns.groups.empty()) {
        BeginTable();
    }
}

/// Recorded in a whole number of its units, because pictures have integer sizes.
void TableDrawing::PrintPicture() {
    constexpr double unit = TwipsPerInch / PictureUnitsPerInch;
    const double width = std::floor(m_flow.Width() / unit);
    const double height = std::floor(width * PictureHeight);
    if (m_flow.SpaceLeft() < height * unit * LeastPictureHeight &&
        m_flow.SpaceOfNextPage() > m_flow.SpaceLeft()) {
        m_flow.NewPage();
    }
    const QSizeF size(width, std::min(height, std::floor(m_flow.SpaceLeft() / unit)));
    m_flow.Page().PrintPicture(QRectF(QPointF(0, m_flow.Top()), size * unit),
                               RecordPicture(size.toSize(), m_paper.font, m_document.paint));
    m_flow.Take(size.height() * unit);
}

/// Neither its title nor its headings are the last thing on a page.
void TableDrawing::BeginTable() {
    const double first = Table().rows.empty() ? 0 : m_cells.HeightOf(m_cells.Row(Group(), 0));
    const double least = m_cells.HeightOf(m_cells.Headings(Group())) + first;
    const auto ensureSpace = [&](double height) {
        if (height > m_flow.SpaceLeft() && !m_flow.IsFresh()) {
            m_flow.NewPage();
        }
    };
    if (!Table().title.isEmpty()) {
        ensureSpace(least + m_flow.HeightOfHeading());
        m_flow.PrintHeading(Table().title);
    }
    for (const QString& paragraph : Table().paragraphs) {
        m_flow.PrintParagraph(paragraph);
    }
    ensureSpace(least);
    PrintHeadings();
}

void TableDrawing::PrintHeadings() {
    PrintCells(m_cells.Headings(Group()), true);
    PrintRule(HeadingPen);
}

void TableDrawing::PrintRow() {
    const CellRow cells = m_cells.Row(Group(), m_row);
    if (m_cells.HeightOf(cells) > m_flow.SpaceLeft()) {
        m_flow.NewPage();
        PrintHeadings();
    }
    PrintCells(cells, false);
    PrintRule(RowPen);
}

/// After the last row the next group of columns begins with the first one.
void TableDrawing::EndRow() {
    if (++m_row < Table().rows.size()) {
        return;
    }
    m_row = 0;
    if (++m_group < m_columns.groups.size()) {
        m_flow.NewPage();
        PrintHeadings();
    }
}

/// Headings are at the bottom of their row, other texts at its top.
void TableDrawing::PrintCells(const CellRow& cells, bool headings) {
    const double height = m_cells.HeightOf(cells);
    const double line = m_cells.LineHeight();
    for (std::size_t at = 0; at < cells.size(); ++at) {
        const ColumnPlace& place = Group().at(at);
        const bool right = IsRightAligned(Table(), place.column);
        m_flow.Page().SetFont(m_cells.Font(headings || IsBold(Table(), {m_row, place.column})));
        double y = m_flow.Top() + TableCells::Padding;
        if (headings) {
            y = m_flow.Top() + height - TableCells::Padding -
                line * static_cast<double>(cells.at(at).size());
        }
        for (const CellLine& text : cells.at(at)) {
            const double x = right ? place.left + place.width - CellPadding - text.width
                                   : place.left + CellPadding;
            m_flow.Page().PrintAt({x, y}, text.text);
            y += line;
        }
    }
    m_flow.Take(height);
}

void TableDrawing::PrintRule(int pen) {
    const ColumnPlace& last = Group().back();
    m_flow.Page().PrintLine(0, m_flow.Top(), last.left + last.width, m_flow.Top(), pen);
}

} // namespace

std::unique_ptr<Drawing> DrawingOf(TableOnPaper table, const Paper& paper) {
    PictureOnPaper document;
    document.title = std::exchange(table.title, {});
    document.paragraphs = std::exchange(table.paragraphs, {});
    document.table = std::move(table);
    return std::make_unique<TableDrawing>(std::move(document), paper);
}

std::unique_ptr<Drawing> DrawingOf(PictureOnPaper picture, const Paper& paper) {
    return std::make_unique<TableDrawing>(std::move(picture), paper);
}

} // namespace quend::printing
