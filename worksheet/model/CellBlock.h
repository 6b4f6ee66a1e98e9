#pragma once

#include "FieldValue.h"
#include "ModelNames.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quend::model {

class Worksheet;

/// The rows of cells in a text as spreadsheets copy it: cells end with a tab, rows with a line end,
/// and a cell in quotes may contain both.
std::vector<QStringList> CellsOf(const QString& text);

/// Whether a text that was copied is more than one cell. Lines without a tab are several cells only
/// outside a spreadsheet's one cell, so they are none for a lender, who may have several lines.
bool IsBlock(const QString& text, FieldId pastedInto);

/// The value of a spreadsheet's cell for an entry field of an offer: as typed, and also with the
/// locale's currency symbol, grouping, a percent sign for points and rates, or brackets around a
/// negative amount. An empty cell is nothing entered. None: the field does not take the text.
/// Throws OverflowFailure for a number that the field cannot hold.
std::optional<FieldValue> ReadCell(const Worksheet& worksheet, FieldId field, const QString& cell);

} // namespace quend::model
