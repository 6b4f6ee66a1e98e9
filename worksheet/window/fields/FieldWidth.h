#pragma once

#include "Field.h"
#include "WindowNames.h"

class QFontMetrics;
class QLineEdit;

namespace quend::model {
class DisplayFormats;
}

namespace quend::window {

/// The minimum width in pixels at which a field shows a typical value whole: loans of up to ten
/// million, payments of up to a hundred thousand, in the user's formats. Includes the frame.
int LeastFieldWidth(FieldId field, const QFontMetrics& metrics, const DisplayFormats& formats);

/// The maximum width in pixels of a text that this field shows whole.
int TextRoomOf(const QLineEdit& edit);

} // namespace quend::window
