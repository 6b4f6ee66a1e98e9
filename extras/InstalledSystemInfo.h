#pragma once

#include "SystemInfo.h"

namespace quend::extras {

/// The real implementation: the tools of Linux desktops, and the start of a detached program.
SystemInfoInterface InstalledSystemInfo();

} // namespace quend::extras
