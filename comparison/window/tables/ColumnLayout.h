#pragma once

#include "ColumnState.h"
#include "CompareNames.h"

#include <QObject>

#include <set>
#include <vector>

class QAbstractItemModel;
class QTableView;

namespace quend::compare {

/// The columns of a table: their order, visibility and widths. Those that the user has not widened
/// are as wide as their heading and their content. The first column is always shown.
class ColumnLayout : public QObject {
    Q_OBJECT

public:
    enum class Fit {
        None,
        Widen, ///< columns only grow, so that they do not tremble while figures change
        Exactly
    };

    /// The table must outlive this object.
    explicit ColumnLayout(QTableView& table);

    /// Widths follow this model, which is that of the table.
    void Follow(const QAbstractItemModel& model);
    /// Before the next paint.
    void FitLater(Fit fit);

    /// From left to right.
    std::vector<ColumnState> Columns() const;
    /// Columns that are not among them follow as they are.
    void Arrange(const std::vector<ColumnState>& columns);
    void Show(int column, bool shown);

    /// The visual place of the next column that is shown, in a direction of -1 or 1; -1: none.
    int NeighbourOf(int column, int direction) const;

private:
    void FitNow();
    int WidthOf(int column) const;
    int WidthOfContent(int column) const;
    int WidthOfHeading(int column) const;

    QTableView* m_table;
    std::set<int> m_widened; ///< columns whose width the user has chosen
    Fit m_due = Fit::None;
    bool m_fitting = false;
};

} // namespace quend::compare
