#pragma once

#include "Date.h"
#include "ModelNames.h"
#include "Money.h"

namespace quend::calc {
class CLoan;
}

namespace quend::model {

/// The sort key by payoff date. An offer that is never paid off comes after all that are: its key
/// is the last possible day but one if it has any entry, and the last possible day if it has none.
/// Runs the offer's schedule; a schedule that fails counts as never paid off.
Date PayoffDateKey(CLoan& offer);

/// The sort key by interest: the interest of the offer's last schedule. Without a schedule the key
/// is 999,999,998.00 if the offer has any entry, and 999,999,999.00 if it has none.
Money InterestKey(const CLoan& offer);

} // namespace quend::model
