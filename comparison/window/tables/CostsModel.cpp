#include "CostsModel.h"

#include "CompareTextNumbers.h"
#include "FigureColumns.h"
#include "FigureTexts.h"
#include "Language.h"
#include "TableRoles.h"

#include <QFont>

#include <algorithm>
#include <utility>

namespace quend::compare {

namespace {

constexpr int PlaceOfCosts = static_cast<int>(Figure::Costs);

auto Find(const std::vector<CostsRow>& rows, int place) {
    return std::ranges::find(rows, place, &CostsRow::place);
}

bool Contains(const std::vector<CostsRow>& rows, int place) {
    return Find(rows, place) != rows.end();
}

const FigureColumn& ColumnAt(int column) {
    return FigureColumns()[static_cast<std::size_t>(column)];
}

QVariant ToolTipOf(const FigureColumn& column) {
    return column.toolTip == 0 ? QVariant() : GetResourceText(column.toolTip);
}

QVariant AlignmentOf(const FigureColumn& column) {
    return QVariant::fromValue(column.side | Qt::AlignVCenter);
}

QFont Bold() {
    QFont font;
    font.setBold(true);
    return font;
}

QVariant OrInvalid(const QString& text) { return text.isNull() ? QVariant() : QVariant(text); }

} // namespace

CostsModel::CostsModel(TakeCosts take) : m_take(std::move(take)) {}

int CostsModel::RowOf(int place) const {
    const auto found = Find(m_rows, place);
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

int CostsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CostsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(FigureColumns().size());
}

bool CostsModel::IsEntered(const QModelIndex& index) const {
    return index.column() == PlaceOfCosts && PlaceAt(index.row()) != CurrentLoanPlace;
}

QVariant CostsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const CostsRow& row = m_rows[static_cast<std::size_t>(index.row())];
    const CostsCell& cell = row.cells[static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::FontRole:
        return cell.isBest ? QVariant(Bold()) : QVariant();
    case Qt::TextAlignmentRole:
        return AlignmentOf(ColumnAt(index.column()));
    case SortRole:
        return SortKeyOf(cell.value);
    case NumberRole:
        return OrInvalid(PlainNumberOf(cell.value));
    case PlaceRole:
        return row.place;
    case FigureRole:
        return index.column();
    default:
        return TextAt(index, role);
    }
}

QVariant CostsModel::TextAt(const QModelIndex& index, int role) const {
    const CostsRow& row = m_rows[static_cast<std::size_t>(index.row())];
    const CostsCell& cell = row.cells[static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole:
        return cell.isBest ? GetResourceText(TextNumber::MarkedBest).arg(cell.text) : cell.text;
    case Qt::AccessibleTextRole:
        return cell.isBest ? GetResourceText(TextNumber::SpokenBest).arg(cell.text) : cell.text;
    case ValueTextRole:
        return cell.text;
    case Qt::EditRole:
        return IsEntered(index) ? row.costsEntry : cell.text;
    case Qt::ToolTipRole:
        return ToolTipOf(ColumnAt(index.column()));
    default:
        return {};
    }
}

QVariant CostsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        const bool isName = role == Qt::DisplayRole && section >= 0 && section < rowCount();
        return isName ? QVariant(m_rows[static_cast<std::size_t>(section)].cells.front().text)
                      : QVariant();
    }
    if (section < 0 || section >= columnCount()) {
        return {};
    }
    const FigureColumn& column = ColumnAt(section);
    switch (role) {
    case Qt::DisplayRole:
        return InTwoLines(m_headings.value(section));
    case Qt::AccessibleTextRole:
        return m_headings.value(section);
    case Qt::ToolTipRole:
        return ToolTipOf(column);
    case Qt::TextAlignmentRole:
        return AlignmentOf(column);
    case HelpTopicRole:
        return column.helpTopic;
    case HiddenAtFirstRole:
        return !column.shownAtFirst;
    default:
        return {};
    }
}

Qt::ItemFlags CostsModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return index.isValid() && IsEntered(index) ? usual | Qt::ItemIsEditable : usual;
}

bool CostsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    return role == Qt::EditRole && checkIndex(index, CheckIndexOption::IndexIsValid) &&
           IsEntered(index) && m_take(PlaceAt(index.row()), value.toString());
}

void CostsModel::Set(const ComparedWorksheet& worksheet, const DisplayFormats& formats) {
    QStringList headings;
    for (const FigureColumn& column : FigureColumns()) {
        headings.append(HeadingOf(column.figure, worksheet.input.years, formats));
    }
    std::vector<CostsRow> rows = CostsRows(worksheet, formats);
    RemoveMissing(rows);
    Reorder(rows);
    InsertNew(rows);
    UpdateCells(std::move(rows));
    SetHeadings(std::move(headings));
}

void CostsModel::SetHeadings(QStringList headings) {
    if (headings != m_headings) {
        m_headings = std::move(headings);
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    }
}

void CostsModel::RemoveMissing(const std::vector<CostsRow>& rows) {
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (!Contains(rows, PlaceAt(row))) {
            beginRemoveRows({}, row, row);
            m_rows.erase(m_rows.begin() + row);
            endRemoveRows();
        }
    }
}

/// Every loan shown is one of the rows.
void CostsModel::Reorder(const std::vector<CostsRow>& rows) {
    const auto before = [&rows](const CostsRow& left, const CostsRow& right) {
        return Find(rows, left.place) < Find(rows, right.place);
    };
    if (std::ranges::is_sorted(m_rows, before)) {
        return;
    }
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList from = persistentIndexList();
    std::vector<int> places;
    std::ranges::transform(from, std::back_inserter(places),
                           [this](const QModelIndex& index) { return PlaceAt(index.row()); });
    std::ranges::sort(m_rows, before);
    QModelIndexList to;
    for (qsizetype i = 0; i < from.size(); ++i) {
        to.append(index(RowOf(places[static_cast<std::size_t>(i)]), from[i].column()));
    }
    changePersistentIndexList(from, to);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void CostsModel::InsertNew(const std::vector<CostsRow>& rows) {
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        const CostsRow& wanted = rows[static_cast<std::size_t>(row)];
        if (row == rowCount() || PlaceAt(row) != wanted.place) {
            beginInsertRows({}, row, row);
            m_rows.insert(m_rows.begin() + row, wanted);
            endInsertRows();
        }
    }
}

/// One signal a row, from its first changed cell to its last.
void CostsModel::UpdateCells(std::vector<CostsRow> rows) {
    m_rows.swap(rows);
    for (int row = 0; row < rowCount(); ++row) {
        const CostsRow& now = m_rows[static_cast<std::size_t>(row)];
        const CostsRow& before = rows[static_cast<std::size_t>(row)];
        int first = columnCount();
        int last = -1;
        for (int column = 0; column < columnCount(); ++column) {
            const auto place = static_cast<std::size_t>(column);
            const bool entryChanged = column == PlaceOfCosts && now.costsEntry != before.costsEntry;
            if (now.cells[place] != before.cells[place] || entryChanged) {
                first = std::min(first, column);
                last = column;
            }
        }
        if (last >= 0) {
            Q_EMIT dataChanged(index(row, first), index(row, last));
        }
    }
}

} // namespace quend::compare
