#include "ColumnMenu.h"

#include "CompareTextNumbers.h"
#include "FigureTable.h"
#include "Language.h"
#include "TableText.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QMenu>

namespace quend::compare {

namespace {

constexpr int ToLeft = -1;
constexpr int ToRight = 1;

/// A heading as a caption: its "&" is no access key.
QString Caption(const FigureTable& table, int column) {
    return HeadingIn(*table.model(), column).replace(u'&', QStringLiteral("&&"));
}

void AddShown(QMenu& menu, FigureTable& table) {
    for (int column = 0; column < table.model()->columnCount(); ++column) {
        QAction* entry = menu.addAction(Caption(table, column));
        entry->setCheckable(true);
        entry->setChecked(!table.isColumnHidden(column));
        entry->setEnabled(column != 0);
        QObject::connect(entry, &QAction::triggered, &table,
                         [&table, column](bool shown) { table.ShowColumn(column, shown); });
    }
}

void AddMove(QMenu& menu, FigureTable& table, int column, int direction) {
    QAction* entry = menu.addAction(GetResourceText(
        direction == ToLeft ? TextNumber::MoveColumnLeft : TextNumber::MoveColumnRight));
    entry->setEnabled(table.CanMove(column, direction));
    QObject::connect(entry, &QAction::triggered, &table,
                     [&table, column, direction] { table.MoveColumn(column, direction); });
}

} // namespace

void FillColumnMenu(QMenu& menu, FigureTable& table, int column) {
    AddShown(menu, table);
    menu.addSeparator();
    if (column >= 0) {
        if (table.isSortingEnabled()) {
            QAction* entry = menu.addAction(GetResourceText(TextNumber::SortByColumn));
            QObject::connect(entry, &QAction::triggered, &table,
                             [&table, column] { table.SortBy(column); });
        }
        AddMove(menu, table, column, ToLeft);
        AddMove(menu, table, column, ToRight);
    }
    QAction* entry = menu.addAction(GetResourceText(TextNumber::UsualColumns));
    QObject::connect(entry, &QAction::triggered, &table, &FigureTable::ShowUsualColumns);
}

} // namespace quend::compare
