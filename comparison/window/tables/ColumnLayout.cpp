#include "ColumnLayout.h"

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QStyle>
#include <QStyleOptionHeader>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace quend::compare {

namespace {

constexpr int MostCharacters = 30; ///< the width of a column of long texts
constexpr int MostRowsMeasured = 32;
constexpr int MostHeadingWidth = 1000;

} // namespace

ColumnLayout::ColumnLayout(QTableView& table) : m_table(&table) {
    const QHeaderView* header = table.horizontalHeader();
    connect(header, &QHeaderView::sortIndicatorChanged, this, [this] { FitLater(Fit::Widen); });
    connect(header, &QHeaderView::sectionResized, this, [this](int column, int before, int now) {
        // A column that is hidden or shown is "resized", too.
        if (!m_fitting && before > 0 && now > 0) {
            m_widened.insert(column);
        }
    });
}

void ColumnLayout::Follow(const QAbstractItemModel& model) {
    const auto widen = [this] { FitLater(Fit::Widen); };
    const auto exactly = [this] { FitLater(Fit::Exactly); };
    connect(&model, &QAbstractItemModel::dataChanged, this, widen);
    connect(&model, &QAbstractItemModel::rowsInserted, this, widen);
    connect(&model, &QAbstractItemModel::modelReset, this, exactly);
    connect(&model, &QAbstractItemModel::headerDataChanged, this, exactly);
}

/// A posted call precedes the next paint, which has a lower priority.
void ColumnLayout::FitLater(Fit fit) {
    if (std::exchange(m_due, std::max(m_due, fit)) == Fit::None) {
        QMetaObject::invokeMethod(this, &ColumnLayout::FitNow, Qt::QueuedConnection);
    }
}

void ColumnLayout::FitNow() {
    const bool mayShrink = std::exchange(m_due, Fit::None) == Fit::Exactly;
    m_fitting = true;
    for (int column = 0; column < m_table->horizontalHeader()->count(); ++column) {
        if (!m_table->isColumnHidden(column) && !m_widened.contains(column)) {
            const int least = mayShrink ? 0 : m_table->columnWidth(column);
            m_table->setColumnWidth(column, std::max(WidthOf(column), least));
        }
    }
    m_fitting = false;
}

int ColumnLayout::WidthOf(int column) const {
    return std::max(WidthOfContent(column), WidthOfHeading(column));
}

/// Of a long table some rows are measured, the last one included, where sums are largest.
int ColumnLayout::WidthOfContent(int column) const {
    const QAbstractItemModel& model = *m_table->model();
    const int rows = model.rowCount();
    const int step = std::max(1, rows / MostRowsMeasured);
    int width = 0;
    for (int row = rows - 1; row >= 0; row -= step) {
        width = std::max(width, m_table->sizeHintForIndex(model.index(row, column)).width());
    }
    const int most = m_table->fontMetrics().averageCharWidth() * MostCharacters;
    return std::min(width, most) + (m_table->showGrid() ? 1 : 0);
}

/// Only the sorted column has an arrow. The header's own hint reserves one everywhere, as wide as
/// two lines are high.
int ColumnLayout::WidthOfHeading(int column) const {
    const QHeaderView* header = m_table->horizontalHeader();
    QStyleOptionHeader option;
    option.initFrom(header);
    option.state |= QStyle::State_Horizontal;
    option.rect = QRect(0, 0, MostHeadingWidth, header->sizeHint().height());
    option.sortIndicator = header->sortIndicatorSection() == column ? QStyleOptionHeader::SortDown
                                                                    : QStyleOptionHeader::None;
    const QRect text = header->style()->subElementRect(QStyle::SE_HeaderLabel, &option, header);
    const QString heading = m_table->model()->headerData(column, Qt::Horizontal).toString();
    return header->fontMetrics().size(0, heading).width() + MostHeadingWidth - text.width();
}

std::vector<ColumnState> ColumnLayout::Columns() const {
    const QHeaderView* header = m_table->horizontalHeader();
    std::vector<ColumnState> columns;
    for (int place = 0; place < header->count(); ++place) {
        const int column = header->logicalIndex(place);
        const bool hidden = m_table->isColumnHidden(column);
        const int width = m_widened.contains(column) && !hidden ? m_table->columnWidth(column) : 0;
        columns.push_back({.column = column, .width = width, .hidden = hidden});
    }
    return columns;
}

void ColumnLayout::Arrange(const std::vector<ColumnState>& columns) {
    QHeaderView* header = m_table->horizontalHeader();
    int place = 0;
    for (const ColumnState& state : columns) {
        header->moveSection(header->visualIndex(state.column), place++);
        Show(state.column, !state.hidden);
        m_widened.erase(state.column);
        if (state.width > 0) {
            m_table->setColumnWidth(state.column, state.width);
            m_widened.insert(state.column);
        }
    }
    FitLater(Fit::Exactly);
}

void ColumnLayout::Show(int column, bool shown) {
    m_table->setColumnHidden(column, !shown && column != 0);
    FitLater(Fit::Widen);
}

int ColumnLayout::NeighbourOf(int column, int direction) const {
    const QHeaderView* header = m_table->horizontalHeader();
    int place = header->visualIndex(column) + direction;
    while (place >= 0 && place < header->count() &&
           header->isSectionHidden(header->logicalIndex(place))) {
        place += direction;
    }
    return place < header->count() ? place : -1;
}

} // namespace quend::compare
