#pragma once

#include "CompareNames.h"
#include "ComparedWorksheet.h"
#include "DisplayFormats.h"
#include "Figures.h"

#include <QString>
#include <QVariant>

#include <vector>

namespace quend::compare {

struct CostsCell {
    FigureValue value{};
    QString text{}; ///< as shown, but for the mark of the best
    bool isBest = false;

    friend bool operator==(const CostsCell&, const CostsCell&) = default;
};

/// A loan in the table of costs.
struct CostsRow {
    int place = 0;
    QString costsEntry{};           ///< the costs as they are edited; empty for none
    std::vector<CostsCell> cells{}; ///< in the order of FigureColumns()

    friend bool operator==(const CostsRow&, const CostsRow&) = default;
};

/// The loans that take part, in the order of PlacesThatTakePart, with the best of each column
/// marked: every value that reads like the least or the greatest one, where another value reads
/// otherwise. The loan held today counts.
std::vector<CostsRow> CostsRows(const ComparedWorksheet& worksheet, const DisplayFormats& formats);

/// What a value is sorted by: a number or a text; invalid for no value. Stretches are sorted by the
/// first month, those that end later first; none at all comes last.
QVariant SortKeyOf(const FigureValue& value);

} // namespace quend::compare
