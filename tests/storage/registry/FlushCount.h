#pragma once

#include <chrono>

/// How often this program has flushed a file or folder to the disk. Counted in the system's own
/// calls, which this program stands in for.
int FlushCount();

/// How long it has waited for the disk in them.
std::chrono::nanoseconds FlushTime();
