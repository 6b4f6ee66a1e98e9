#pragma once

#include "FieldValue.h"
#include "ModelNames.h"

#include <QString>

namespace quend::model {

class Worksheet;

// The values of an offer that can be dragged or copied, as plain text: points, interest rate,
// intended payment and lender. One table says for each what text is sent, what is accepted and how
// it is read. Rows are display rows; the worksheet finds their offers.

/// A lender's text with the line ends of the lender's dialog, "\r\n", whatever its source.
QString WithLenderLines(QString text);

/// Whether values of this field can be dragged and copied.
bool IsDraggable(FieldId field);

/// The value of a field as it is sent, in the user's locale and without grouping. Points and rates
/// that were never entered read "0", a payment that was never entered is the empty text. A rate is
/// a fraction: "0.065" for 6.5 %. A payment is rounded to the cent, as it is displayed. A lender is
/// the text that the field shows.
QString DraggedText(const Worksheet& worksheet, Field field, const QString& shown);

/// Whether a received text has the form that the field requires: for a number, not empty and with
/// no more decimals than the field takes; for the lender, any text. A rate of 6.25 % (0.0625) has
/// too many. Checks the form only: a lone sign passes here and fails in ReadDropped.
bool MayDrop(const Worksheet& worksheet, FieldId field, const QString& text);

/// The value of a received text. Nothing is divided by a hundred: a rate arrives as a fraction. A
/// lender gets the line ends of WithLenderLines. Throws ConversionFailure or OverflowFailure.
FieldValue ReadDropped(const Worksheet& worksheet, FieldId field, const QString& text);

} // namespace quend::model
