#pragma once

#include "RegistryAPI.h"

#include <QString>

#include <functional>
#include <optional>

/// A value of the registry as a text: a text as it stands, a number in decimal, any other value's
/// bytes as characters. Nothing when key or value is missing, or the value longer than 1,023
/// characters.
std::optional<QString> GetKeyValue(const RegistryAPI& store, RegistryRoot keyRoot,
                                   const std::string& keyName, const std::string& valueName);

/// The doors of the system-information tool.
struct SystemInfoDoors {
    /// Where there are no such registry entries: the path of a tool that is installed, or nothing.
    std::function<std::optional<QString>()> installed;
    /// Starts a program by its path in a normal window; false when it cannot be started.
    std::function<bool(const QString& path)> start;
};

/// Finds the system-information tool, by the registry or else among the installed programs, and
/// starts it. False when there is none, or it cannot be started.
bool StartSysInfo(const RegistryAPI& store, const SystemInfoDoors& doors);
