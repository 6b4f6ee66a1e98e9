#include "NoneLastOrder.h"

#include "TableRoles.h"

namespace quend::compare {

NoneLastOrder::NoneLastOrder(const QLocale& locale) : m_names(locale) {
    setSortRole(SortRole);
    m_names.setNumericMode(true);
    m_names.setCaseSensitivity(Qt::CaseInsensitive);
}

bool NoneLastOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const QVariant first = left.data(SortRole);
    const QVariant second = right.data(SortRole);
    if (first.isValid() != second.isValid()) {
        return first.isValid() == (sortOrder() == Qt::AscendingOrder);
    }
    if (const int order = Compared(first, second); order != 0) {
        return order < 0;
    }
    // The sort turns the answer around when it descends.
    return (left.row() < right.row()) == (sortOrder() == Qt::AscendingOrder);
}

/// Negative, zero or positive, as the first is less, equal or greater.
int NoneLastOrder::Compared(const QVariant& first, const QVariant& second) const {
    if (first.typeId() == QMetaType::QString) {
        return m_names.compare(first.toString(), second.toString());
    }
    const QPartialOrdering order = QVariant::compare(first, second);
    if (order == QPartialOrdering::Less) {
        return -1;
    }
    return order == QPartialOrdering::Greater ? 1 : 0;
}

} // namespace quend::compare
