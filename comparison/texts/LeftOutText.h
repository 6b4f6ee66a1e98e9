#pragma once

#include "Comparison.h"

#include <QString>

namespace quend::comparison {

/// Why the offer of this name takes no part, as a sentence in the current language; empty for
/// LeftOut::No.
QString LeftOutText(LeftOut reason, const QString& offer);

/// Why a loan held today takes no part, or that there is none. Call it only where it has no
/// figures.
QString CurrentLeftOutText(const CurrentLoanInput& current);

} // namespace quend::comparison
