#pragma once

#include "Field.h"

class DisplayFormats;
class QFontMetrics;
class QLineEdit;

/// The width in pixels that a field must have to show an everyday value whole: loans of up to ten
/// million, payments of up to a hundred thousand, in the user's formats. The frame is included.
int LeastFieldWidth(FieldId field, const QFontMetrics& metrics, const DisplayFormats& formats);

/// The width in pixels that a text may have to be seen whole in this field.
int TextRoomOf(const QLineEdit& edit);
