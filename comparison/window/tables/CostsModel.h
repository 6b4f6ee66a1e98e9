#pragma once

#include "CompareNames.h"
#include "ComparedWorksheet.h"
#include "CostsRows.h"
#include "DisplayFormats.h"
#include "Figures.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <functional>
#include <vector>

namespace quend::compare {

/// The table of costs: a row a loan that takes part, a column a figure. The costs of offers can be
/// edited. Does not parse or store what is typed, and does not sort.
class CostsModel : public QAbstractTableModel {
public:
    /// Stores the costs typed for an offer. False: refused, nothing is stored. It may call Set.
    using TakeCosts = std::function<bool(int place, const QString& text)>;

    explicit CostsModel(TakeCosts take);

    /// Shows another state. Loans that stay keep their selection and the editor; only what changed
    /// is signalled.
    void Set(const ComparedWorksheet& worksheet, const DisplayFormats& formats);

    int PlaceAt(int row) const { return m_rows.at(static_cast<std::size_t>(row)).place; }
    /// -1 where the loan takes no part.
    int RowOf(int place) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// The EditRole of the costs of an offer, as TakeCosts decides.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

private:
    bool IsEntered(const QModelIndex& index) const;
    QVariant TextAt(const QModelIndex& index, int role) const;
    void SetHeadings(QStringList headings);
    void RemoveMissing(const std::vector<CostsRow>& rows);
    void Reorder(const std::vector<CostsRow>& rows);
    void InsertNew(const std::vector<CostsRow>& rows);
    void UpdateCells(std::vector<CostsRow> rows);

    TakeCosts m_take;
    std::vector<CostsRow> m_rows;
    QStringList m_headings;
};

} // namespace quend::compare
