#include "PaperTable.h"

#include "FigureTable.h"

#include <QAbstractItemModel>
#include <QFont>

namespace quend::compare {

printing::TableOnPaper PaperTableOf(const FigureTable& table, const QString& title,
                                    const QStringList& paragraphs) {
    printing::TableOnPaper paper{.title = title, .paragraphs = paragraphs};
    const TableCells cells = table.AllCells();
    const QAbstractItemModel& model = *cells.model;
    if (cells.rowHeadings) {
        paper.headings << QString();
        paper.rightAligned.push_back(false);
    }
    for (const int column : cells.columns) {
        paper.headings << model.headerData(column, Qt::Horizontal).toString();
        const QVariant side = model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        paper.rightAligned.push_back((side.toInt() & Qt::AlignRight) != 0);
    }
    for (const int row : cells.rows) {
        QStringList texts;
        if (cells.rowHeadings) {
            texts << model.headerData(row, Qt::Vertical).toString();
        }
        for (const int column : cells.columns) {
            const QModelIndex cell = model.index(row, column);
            if (cell.data(Qt::FontRole).value<QFont>().bold()) {
                paper.bold.push_back({.row = static_cast<std::size_t>(row),
                                      .column = static_cast<std::size_t>(texts.size())});
            }
            texts << cell.data().toString();
        }
        paper.rows.push_back(texts);
    }
    return paper;
}

} // namespace quend::compare
