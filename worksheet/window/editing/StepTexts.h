#pragma once

#include "WindowNames.h"
#include "WorksheetState.h"

#include <QString>

namespace quend::window {

/// What a step changes, such as "rate of offer 2"; `number` is that of the offer's row, from 1.
QString TextOf(const StepName& step, int number);

} // namespace quend::window
