#pragma once

/// How often this program has flushed a file or folder to the disk. Counted in the system's own
/// calls, which this program stands in for.
int FlushCount();
