#pragma once

#include "CompareNames.h"
#include "TableText.h"

#include <QByteArray>
#include <QTableView>

#include <functional>
#include <memory>
#include <vector>

namespace quend::compare {

class ColumnLayout;
class EntryDelegate;
enum class Figure; // Qt's compiler of signals cannot read its header

/// Shows a model of the comparison window. The user hides, moves and widens columns, sorts a model
/// that can be sorted, copies and edits. Columns that he has not widened are as wide as their
/// content. Its locale is that of copied numbers.
///
/// The dynamic property "helpTopic" is that of the current column, and for clicks that of the
/// column below the pointer.
class FigureTable : public QTableView {
    Q_OBJECT

public:
    explicit FigureTable(QWidget* parent = nullptr);
    Q_DISABLE_COPY_MOVE(FigureTable)
    ~FigureTable() override;

    /// Shows the usual columns. Only a proxy can be sorted by the headings.
    void setModel(QAbstractItemModel* model) override;

    /// Shows the headings that the model has for rows. They are copied and exported, too.
    void ShowRowHeadings();

    /// Characters that may be typed into a cell; at first all.
    void AllowKeys(std::function<bool(QChar)> allows);
    /// Stores the entry being typed, if any. False: it was refused, and is still being edited.
    bool CommitEntry();

    /// The columns that are shown, from left to right.
    std::vector<int> ShownColumns() const;
    /// All rows of them, with headings.
    TableCells AllCells() const;
    /// The selected cells, without headings; with headings all cells, where none is selected or
    /// all are.
    TableCells CellsToCopy() const;
    void Copy() const;

    /// Order, widths and visibility of the columns, for the settings.
    QByteArray SaveColumns() const;
    /// False for bytes that were not saved here; nothing changes then.
    bool RestoreColumns(const QByteArray& bytes);
    void ShowUsualColumns();

    // For the menu of the columns. A direction is -1 or 1.
    void ShowColumn(int column, bool shown);
    bool CanMove(int column, int direction) const;
    void MoveColumn(int column, int direction);
    /// As a click on the heading: ascending, descending, unsorted.
    void SortBy(int column);

Q_SIGNALS:
    /// Another cell of a table of figures is the current one.
    void CurrentFigureChanged(int place, quend::compare::Figure figure);

protected:
    using QTableView::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsOpen(const QWidget& editor) const;

    void SetUpHeader();
    void FitRows();
    QVariant TopicOfColumn(int column) const;
    void ShowMenu(int column, const QPoint& at);

    EntryDelegate* m_delegate;
    std::unique_ptr<ColumnLayout> m_columns;
};

} // namespace quend::compare
