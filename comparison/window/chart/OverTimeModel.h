#pragma once

// First, because moc 6.4 cannot read <concepts> as the first header of the standard library.
#include <QAbstractTableModel>

#include "ChartData.h"
#include "CompareNames.h"
#include "DisplayFormats.h"

#include <QLocale>

namespace quend::compare {

/// The values of the chart as a table, for screen readers and for export: a column a loan, a row a
/// year, or a month where less than three years are shown. The first row is today. The headings of
/// the rows name their time.
class OverTimeModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Selections stay where there are as many loans and rows as before.
    void SetData(ChartData shown, const DisplayFormats& formats);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    int MonthsPerRow() const;

    ChartData m_data;
    DisplayFormats m_formats{QLocale::c()};
};

} // namespace quend::compare
