#pragma once

#include "ExtrasNames.h"
#include "RegistryAPI.h"

#include <QString>

#include <functional>
#include <optional>

namespace quend::extras {

/// A registry value as text: a text unchanged, a number in decimal, any other value's bytes as
/// characters. No value if the key or value is missing, or the value is longer than 1,023
/// characters.
std::optional<QString> GetKeyValue(const RegistryAPI& store, RegistryRoot keyRoot,
                                   const std::string& keyName, const std::string& valueName);

/// The interfaces to the system-information tool.
struct SystemInfoInterface {
    /// Used without registry entries: the path of an installed tool, or no value.
    std::function<std::optional<QString>()> installed;
    /// Starts a program by its path in a normal window; false if it cannot be started.
    std::function<bool(const QString& path)> start;
};

/// The real implementation: the tools of Linux desktops, and the start of a detached program.
SystemInfoInterface InstalledSystemInfo();

/// Finds the system-information tool, in the registry or else among the installed programs, and
/// starts it. False if there is none, or it cannot be started.
bool StartSysInfo(const RegistryAPI& store, const SystemInfoInterface& system);

} // namespace quend::extras
