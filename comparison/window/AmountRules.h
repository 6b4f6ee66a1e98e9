#pragma once

#include "AmountEntry.h"

namespace quend::model {
class Worksheet;
}

namespace quend::window {
class MessageQueue;
}

namespace quend::compare {

/// The rules of the worksheet's amounts of money: the same checks, the same message. Both must
/// outlive the rules.
AmountEntry::Rules AmountRules(const Worksheet& worksheet, MessageQueue& messages);

/// Reads an amount like a field of the worksheet. If it is refused, the user is told why.
std::optional<Money> ReadAmount(const Worksheet& worksheet, const QString& text,
                                MessageQueue& messages);

} // namespace quend::compare
