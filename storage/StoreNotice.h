#pragma once

#include "RegistryAPI.h"

#include <QString>

#include <functional>
#include <string>

class Messages;
struct RepairedLoans;

/// What the user is told of a repair: where the damaged file is, how many whole worksheets there
/// are in the new one, and which are not whole (of many, the first ones and their number), in the
/// language in use.
QString RepairNotice(const RepairedLoans& loans, const std::filesystem::path& keptAs);

/// Why the store could not be used, in the language in use; empty where that is not known.
QString TroubleText(StoreTrouble trouble);

/// A failure of the store as the user is told of it: the reason, then the failure.
QString StoreFailureText(const Failure& failure);

/// The store at this place. A repair that a save makes is told once that save is over; `messages`
/// outlives the store and its copies. `today` is as in RepairDoor.
RegistryAPI StoreThatTells(const std::filesystem::path& place, Messages& messages,
                           std::function<std::string()> today);
