#pragma once

#include "DatePicker.h"
#include "WindowNames.h"

namespace quend::model {
class Worksheet;
}

namespace quend::window {

/// How the worksheet writes dates and reads typed ones. It must outlive the result.
DatePicker::Writing DateWritingOf(const Worksheet& worksheet);

} // namespace quend::window
