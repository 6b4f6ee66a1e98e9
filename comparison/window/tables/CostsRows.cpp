#include "CostsRows.h"

#include "FieldValue.h"
#include "FigureColumns.h"
#include "FigureTexts.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <variant>

namespace quend::compare {

namespace {

/// The costs are entered like the amounts of the main window.
QString EntryOf(const FigureValue& costs, const DisplayFormats& formats) {
    const auto* amount = std::get_if<Money>(&costs);
    return amount == nullptr || amount->IsZero() ? QString() : formats.GeneralNumber(*amount);
}

CostsRow RowOf(const ComparedWorksheet& worksheet, int place, const DisplayFormats& formats) {
    CostsRow row{.place = place};
    row.cells.reserve(FigureColumns().size());
    for (const FigureColumn& column : FigureColumns()) {
        FigureValue value = ValueOf(worksheet, column.figure, place);
        QString text = TextOf(value, formats);
        if (column.figure == Figure::Costs) {
            row.costsEntry = EntryOf(value, formats);
        }
        row.cells.push_back({.value = std::move(value), .text = std::move(text)});
    }
    return row;
}

bool IsBetter(const FigureValue& value, const FigureValue& than, Best best) {
    const QVariant left = SortKeyOf(best == Best::Least ? value : than);
    const QVariant right = SortKeyOf(best == Best::Least ? than : value);
    return QVariant::compare(left, right) == QPartialOrdering::Less;
}

/// The texts decide which cells are marked: two that read alike are equally good for a reader.
void MarkBest(std::vector<CostsRow>& rows, std::size_t column, Best best) {
    std::vector<CostsCell*> cells;
    for (CostsRow& row : rows) {
        if (!std::holds_alternative<std::monostate>(row.cells[column].value)) {
            cells.push_back(&row.cells[column]);
        }
    }
    const auto found =
        std::ranges::min_element(cells, [best](const CostsCell* left, const CostsCell* right) {
            return IsBetter(left->value, right->value, best);
        });
    const auto reads = [&](const CostsCell* cell) { return cell->text == (*found)->text; };
    if (found == cells.end() || std::ranges::all_of(cells, reads)) {
        return;
    }
    for (CostsCell* cell : cells) {
        cell->isBest = reads(cell);
    }
}

qlonglong KeyOf(const std::vector<CheaperStretch>& stretches) {
    constexpr qlonglong later = 10'000; // more than any month
    if (stretches.empty()) {
        return std::numeric_limits<qlonglong>::max();
    }
    const CheaperStretch& first = stretches.front();
    return first.fromMonth * later - first.untilMonth.value_or(static_cast<int>(later) - 1);
}

} // namespace

std::vector<CostsRow> CostsRows(const ComparedWorksheet& worksheet, const DisplayFormats& formats) {
    std::vector<CostsRow> rows;
    for (const int place : PlacesThatTakePart(worksheet)) {
        rows.push_back(RowOf(worksheet, place, formats));
    }
    for (std::size_t column = 0; column < FigureColumns().size(); ++column) {
        if (const Best best = FigureColumns()[column].best; best != Best::None) {
            MarkBest(rows, column, best);
        }
    }
    return rows;
}

QVariant SortKeyOf(const FigureValue& value) {
    const ByType key{
        [](std::monostate /*none*/) { return QVariant(); },
        [](const QString& text) { return QVariant(text); },
        [](Money amount) { return QVariant::fromValue<qlonglong>(amount.TenThousandths()); },
        [](Rate rate) { return QVariant(rate.Fraction()); },
        [](Date date) { return QVariant::fromValue<qlonglong>(date.Days()); },
        [](std::int64_t count) { return QVariant::fromValue<qlonglong>(count); },
        [](const std::vector<CheaperStretch>& stretches) { return QVariant(KeyOf(stretches)); },
    };
    return std::visit(key, value);
}

} // namespace quend::compare
