#pragma once

#include "CompareNames.h"

#include <QCollator>
#include <QLocale>
#include <QSortFilterProxyModel>
#include <QVariant>

namespace quend::compare {

/// Sorts a model by its SortRole: cells without a value come last in both directions, equal ones
/// keep the order of the model. Texts are sorted as people do, "Offer 2" before "Offer 10".
/// sort(-1) restores the model's order. Does not filter.
class NoneLastOrder : public QSortFilterProxyModel {
public:
    /// Sorts texts by the rules of this locale.
    explicit NoneLastOrder(const QLocale& locale);

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    int Compared(const QVariant& first, const QVariant& second) const;

    QCollator m_names;
};

} // namespace quend::compare
