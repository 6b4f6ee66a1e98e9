#include "PaperTable.h"

#include "FigureTable.h"

#include <QAbstractItemModel>
#include <QFont>

namespace quend::compare {

printing::TableOnPaper PaperTableOf(const FigureTable& table, const QString& title,
                                    const QStringList& paragraphs) {
    printing::TableOnPaper paper{.title = title, .paragraphs = paragraphs};
    const QAbstractItemModel& model = *table.model();
    const std::vector<int> columns = table.ShownColumns();
    for (const int column : columns) {
        paper.headings << model.headerData(column, Qt::Horizontal).toString();
        const QVariant side = model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        paper.rightAligned.push_back((side.toInt() & Qt::AlignRight) != 0);
    }
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList texts;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const QModelIndex cell = model.index(row, columns[i]);
            texts << cell.data().toString();
            if (cell.data(Qt::FontRole).value<QFont>().bold()) {
                paper.bold.push_back({static_cast<std::size_t>(row), i});
            }
        }
        paper.rows.push_back(texts);
    }
    return paper;
}

} // namespace quend::compare
