#pragma once

#include "Field.h"
#include "QuendNames.h"

#include <QChar>
#include <QString>
#include <QStringList>

#include <vector>

/// The text that the user types: usually valid for the field, sometimes arbitrary. The same text
/// for the same number.
QString TextFor(FieldId field, unsigned number, QChar point);

/// Names for worksheets, few enough to repeat; some cannot be stored.
QString NameText(unsigned number);

/// Arbitrary text from another program.
QString AnyText(unsigned number, QChar point);

/// Cells as a spreadsheet copies them, none of them in quotes.
QString BlockText(unsigned number, QChar point);

/// The rows of cells in such a text.
std::vector<QStringList> CellsIn(QString text);
