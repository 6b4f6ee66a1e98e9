#pragma once

#include "Options.h"
#include "World.h"

namespace quend::tool {

/// Compares one worksheet a line and writes one line of JSON for each, in order and at once: the
/// result, or {"error", "line", "member"} with the line's number in the whole input. Reads the
/// files in their order, or standard input without any. Keeps one line at a time.
Status RunLines(const Options& options, const World& world);

} // namespace quend::tool
