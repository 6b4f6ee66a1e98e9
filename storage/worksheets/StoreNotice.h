#pragma once

#include "RegistryAPI.h"
#include "StorageNames.h"

#include <QString>

#include <functional>
#include <string>

namespace quend::window {
class MessageQueue;
}

namespace quend::storage {

struct RepairedWorksheets;
enum class NameFault;

/// The message about a recovery, in the current language: where the damaged file is, how many
/// worksheets of the new store are complete, and which are not (if many: the first ones and their
/// number).
QString RepairNotice(const RepairedWorksheets& loans, const std::filesystem::path& keptAs);

/// Why a worksheet cannot be saved under a name, in the current language.
QString NameFaultText(NameFault fault);

/// Why the store could not be used, in the current language; empty when unknown.
QString ErrorText(StoreTrouble trouble);

/// The message about a store failure: the reason, then the failure.
QString StoreFailureText(const Failure& failure);

/// The store at this path. A recovery during a save is reported after that save; `messages` must
/// outlive the store and its copies. `today` is as in RepairInterface.
RegistryAPI ReportingStore(const std::filesystem::path& place, MessageQueue& messages,
                           std::function<std::string()> today);

} // namespace quend::storage
