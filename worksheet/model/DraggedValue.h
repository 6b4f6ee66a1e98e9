#pragma once

#include "Field.h"
#include "Money.h"

#include <QString>

#include <variant>

class Worksheet;

// The values of an offer that travel by drag and drop or by copy and paste, as plain text: points,
// interest rate, intended payment and lender. One table says for each what travels, what may arrive
// and how it is read. Rows are those on display; the worksheet finds the offers they show.

/// A lender's text whose lines end as its dialog ends them, "\r\n", wherever it comes from.
QString WithLenderLines(QString text);

/// Whether the values of this field travel.
bool IsDraggable(FieldId field);

/// The value of a field as it travels, in the user's locale and without grouping. Points and rates
/// that were never entered read "0", a payment that was never entered is the empty text. A rate is
/// a fraction: "0.065" for 6.5 %. A payment is rounded to the cent, as it is displayed. A lender is
/// the text that the field shows.
QString DraggedText(const Worksheet& worksheet, Field field, const QString& shown);

/// Whether a text that arrives has the form that the field wants: for a number, not empty and with
/// no more decimals than the field takes; for the lender, any text. A rate of 6.25 % (0.0625) has
/// too many. Form only: a lone sign passes here and fails in ReadDropped.
bool MayDrop(const Worksheet& worksheet, FieldId field, const QString& text);

/// Points or a rate, an amount, a lender.
using DroppedValue = std::variant<double, Money, QString>;

/// The value that a text stands for. Nothing is divided by a hundred: a rate arrives as a fraction.
/// A lender gets the lines of WithLenderLines. Throws ConversionFailure or OverflowFailure.
DroppedValue ReadDropped(const Worksheet& worksheet, FieldId field, const QString& text);

/// Stores a value that arrived, as if it had been typed: the row is brought up to date, a changed
/// value sets Dirty. Throws what the recalculation throws.
void StoreDropped(Worksheet& worksheet, Field field, const DroppedValue& value);
