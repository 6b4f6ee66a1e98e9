#pragma once

#include "Date.h"
#include "Money.h"

class CLoan;

/// The day that an offer is sorted by. One that is never paid off comes after all that are: with an
/// entry of any kind on the last day but one that there is, without any on the last. Runs the
/// offer's schedule; one that leads to no end counts as none.
Date PayoffDateKey(CLoan& offer);

/// The amount that an offer is sorted by: the interest of its last schedule; where there is none,
/// 999,999,998.00 with an entry of any kind, 999,999,999.00 without.
Money InterestKey(const CLoan& offer);
