#pragma once

#include "SystemInfo.h"

/// The doors of the real world: the tools that Linux desktops come with, and the start of a program
/// that goes on by itself.
SystemInfoDoors InstalledSystemInfo();
