#include "ScheduleModel.h"

#include "CompareTextNumbers.h"
#include "CostsRows.h"
#include "FigureColumns.h"
#include "FigureTexts.h"
#include "Figures.h"
#include "Language.h"
#include "TableRoles.h"

#include <array>
#include <cstddef>
#include <utility>

namespace quend::compare {

namespace {

using namespace TextNumber;

FigureValue Number(const ScheduleRow& row) { return row.number; }
FigureValue Day(const ScheduleRow& row) { return row.date; }

template <Money ScheduleRow::*Amount>
FigureValue Of(const ScheduleRow& row) {
    return row.*Amount;
}

struct ScheduleField {
    int heading = 0; ///< the number of its text
    FigureValue (*value)(const ScheduleRow&) = nullptr;
};

/// In the order of ScheduleColumn.
constexpr std::array Fields{
    ScheduleField{HeadNumber, Number},
    ScheduleField{HeadDate, Day},
    ScheduleField{HeadPayment, Of<&ScheduleRow::payment>},
    ScheduleField{HeadInterest, Of<&ScheduleRow::interest>},
    ScheduleField{HeadPrincipal, Of<&ScheduleRow::principal>},
    ScheduleField{HeadEscrow, Of<&ScheduleRow::escrow>},
    ScheduleField{HeadBalance, Of<&ScheduleRow::balance>},
    ScheduleField{HeadInterestSoFar, Of<&ScheduleRow::interestSoFar>},
};

FigureValue ValueIn(const ScheduleRow& row, int column) {
    return Fields.at(static_cast<std::size_t>(column)).value(row);
}

QVariant RightAndMiddle() { return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter); }

} // namespace

int ScheduleModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ScheduleModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(Fields.size());
}

QString ScheduleModel::TextOfCell(const ScheduleRow& row, int column) const {
    return TextOf(ValueIn(row, column), *m_formats);
}

QVariant ScheduleModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const ScheduleRow& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return TextOfCell(row, index.column());
    case Qt::TextAlignmentRole:
        return RightAndMiddle();
    case SortRole:
        return SortKeyOf(ValueIn(row, index.column()));
    case NumberRole: {
        const QString number = PlainNumberOf(ValueIn(row, index.column()));
        return number.isNull() ? QVariant() : QVariant(number);
    }
    default:
        return {};
    }
}

QString ScheduleModel::HeadingAt(int column) const {
    return GetResourceText(column == 0 && m_kind == Rows::Years
                               ? HeadYear
                               : Fields.at(static_cast<std::size_t>(column)).heading);
}

QVariant ScheduleModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        const bool isNumber = role == Qt::DisplayRole && section >= 0 && section < rowCount();
        return isNumber ? QVariant(TextOfCell(RowAt(section), 0)) : QVariant();
    }
    if (section < 0 || section >= columnCount()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return InTwoLines(HeadingAt(section));
    case Qt::AccessibleTextRole:
        return HeadingAt(section);
    case Qt::TextAlignmentRole:
        return RightAndMiddle();
    case HelpTopicRole:
        return FirstScheduleTopic + section;
    case HiddenAtFirstRole:
        return false;
    default:
        return {};
    }
}

void ScheduleModel::Set(std::vector<ScheduleRow> payments, Rows rows,
                        const DisplayFormats& formats) {
    std::vector<ScheduleRow> shown = rows == Rows::Years ? ByYear(payments) : std::move(payments);
    const bool otherKind = rows != m_kind || !m_formats;
    if (otherKind) {
        beginResetModel();
    } else {
        FitRowCount(shown);
    }
    m_rows = std::move(shown);
    m_kind = rows;
    m_formats = formats;
    if (otherKind) {
        endResetModel();
        return;
    }
    if (!m_rows.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

/// Rows come and go at the end.
void ScheduleModel::FitRowCount(const std::vector<ScheduleRow>& rows) {
    const std::size_t before = m_rows.size();
    if (rows.size() > before) {
        beginInsertRows({}, static_cast<int>(before), static_cast<int>(rows.size()) - 1);
        m_rows.insert(m_rows.end(), rows.begin() + static_cast<std::ptrdiff_t>(before), rows.end());
        endInsertRows();
    } else if (rows.size() < before) {
        beginRemoveRows({}, static_cast<int>(rows.size()), static_cast<int>(before) - 1);
        m_rows.resize(rows.size());
        endRemoveRows();
    }
}

} // namespace quend::compare
