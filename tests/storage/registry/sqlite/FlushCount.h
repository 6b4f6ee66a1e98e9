#pragma once

#include <chrono>

/// How often this program has flushed a file or folder to the disk. Counted by replacing the
/// system's functions.
int FlushCount();

/// How long it has waited for the disk in these calls.
std::chrono::nanoseconds FlushTime();
