#pragma once

#include "Trail.h"

#include <functional>

/// Shortens a failing trail: leaves out ever smaller parts while it still fails. `tries` limits how
/// often a trail is walked.
Trail Shorten(Trail trail, const std::function<bool(const Trail&)>& fails, int tries);
