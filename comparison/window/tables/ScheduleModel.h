#pragma once

#include "CompareNames.h"
#include "DisplayFormats.h"
#include "LoanSchedule.h"

#include <QAbstractTableModel>
#include <QString>
#include <QVariant>

#include <optional>
#include <vector>

namespace quend::compare {

enum class ScheduleColumn {
    Number, ///< of the payment, or the year
    Date,
    Payment,
    Interest,
    Principal,
    Escrow,
    Balance,
    InterestSoFar
};

/// The payments of one loan, or their sums by year. Formats a cell when it is asked for, so that
/// the length of a schedule does not matter.
class ScheduleModel : public QAbstractTableModel {
public:
    enum class Rows { Payments, Years };

    /// Shows another schedule (by payment, as ScheduleOf has it), in the current language. A switch
    /// between payments and years resets the model; otherwise rows are changed in place, so that
    /// the view stays where it is.
    void Set(std::vector<ScheduleRow> payments, Rows rows, const DisplayFormats& formats);

    const ScheduleRow& RowAt(int row) const { return m_rows.at(static_cast<std::size_t>(row)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QString HeadingAt(int column) const;
    QString TextOfCell(const ScheduleRow& row, int column) const;
    void FitRowCount(const std::vector<ScheduleRow>& rows);

    std::vector<ScheduleRow> m_rows;
    Rows m_kind = Rows::Payments;
    std::optional<DisplayFormats> m_formats; ///< none before the first Set
};

} // namespace quend::compare
