#pragma once

#include <filesystem>
#include <functional>

/// Runs the expectations in a separate process; false when one failed or the process died.
bool HoldsInChild(const std::function<void()>& expectations);

/// The same as a user without permission, because root may write everywhere.
bool HoldsForAnotherUser(const std::function<void()>& expectations);

/// Puts a disk of one megabyte at a folder, for this process only. False if this user must not.
bool MountSmallDisk(const std::filesystem::path& folder);
