#pragma once

#include "Trail.h"

#include <functional>

/// A shorter trail that still fails: leaves out ever smaller parts of it for as long as the rest
/// does. `tries` bounds how often a trail is walked.
Trail Shorten(Trail trail, const std::function<bool(const Trail&)>& fails, int tries);
