#pragma once

#include "Comparison.h"

#include <QByteArray>

namespace quend::comparison {

/// The result as one line of JSON without a line end: all members, in the order of their
/// declaration. Amounts are texts with four decimals, dates ISO texts, rates numbers that read back
/// as the same double; what is none is null.
QByteArray ToJson(const ComparisonResult& result);

/// The name of a reason, such as "neverEnds"; empty for LeftOut::No.
const char* NameOf(LeftOut reason);

} // namespace quend::comparison
