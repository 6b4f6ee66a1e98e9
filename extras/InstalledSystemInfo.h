#pragma once

#include "SystemInfo.h"

/// The real implementation: the tools of Linux desktops, and the start of a detached program.
SystemInfoInterface InstalledSystemInfo();
