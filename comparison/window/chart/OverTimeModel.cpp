#include "OverTimeModel.h"

#include "ChartWords.h"
#include "FigureTexts.h"
#include "Quantities.h"
#include "TableText.h"

#include <cstddef>
#include <utility>

namespace quend::compare {

namespace {

QVariant AtTheRight() { return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter); }

int RowsOf(const ChartData& data, int monthsPerRow) {
    return 1 + (data.Span() + monthsPerRow - 1) / monthsPerRow;
}

} // namespace

int OverTimeModel::MonthsPerRow() const {
    constexpr int threeYears = 3 * MonthsPerYear;
    return m_data.Span() < threeYears ? 1 : MonthsPerYear;
}

void OverTimeModel::SetData(ChartData shown, const DisplayFormats& formats) {
    const int rows = rowCount();
    const int columns = columnCount();
    std::swap(m_data, shown);
    const bool isSameShape = rowCount() == rows && columnCount() == columns;
    std::swap(m_data, shown);
    if (!isSameShape) {
        beginResetModel();
    }
    m_data = std::move(shown);
    m_formats = formats;
    if (!isSameShape) {
        endResetModel();
    } else if (rows > 0 && columns > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rows - 1, columns - 1));
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columns - 1);
        Q_EMIT headerDataChanged(Qt::Vertical, 0, rows - 1);
    }
}

int OverTimeModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || m_data.lines.empty() ? 0 : RowsOf(m_data, MonthsPerRow());
}

int OverTimeModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_data.lines.size());
}

QVariant OverTimeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const ChartLine& line = m_data.lines[static_cast<std::size_t>(index.column())];
    const int month = index.row() * MonthsPerRow();
    switch (role) {
    case Qt::DisplayRole:
        return m_formats.Currency(line.By(month));
    case Qt::AccessibleTextRole:
        return SentenceOf(m_data, m_formats, line, month);
    case Qt::TextAlignmentRole:
        return AtTheRight();
    case NumberRole:
        return PlainNumberOf(line.By(month));
    default:
        return {};
    }
}

QVariant OverTimeModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const int sections = orientation == Qt::Horizontal ? columnCount() : rowCount();
    if (section < 0 || section >= sections) {
        return {};
    }
    if (role == Qt::TextAlignmentRole && orientation == Qt::Horizontal) {
        return AtTheRight();
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (orientation == Qt::Horizontal) {
        return m_data.lines[static_cast<std::size_t>(section)].name;
    }
    return MonthsPerRow() == 1 ? NameOfMonth(m_formats, section) : NameOfYear(m_formats, section);
}

} // namespace quend::compare
