#pragma once

#include "StorageNames.h"

#include <QStringList>

namespace quend::registry {
class RegistryAPI;
}

namespace quend::storage {

/// The worksheets of a store after recovery.
struct RepairedWorksheets {
    int whole = 0;
    QStringList incomplete; ///< names of worksheets that lack values that every save writes
};

/// Checks every worksheet and marks those that lack a value, so that a message appears when one is
/// opened. The next save of the worksheet removes the mark. The contents of values are not checked.
/// A read-only store gets no marks.
RepairedWorksheets FindIncomplete(const RegistryAPI& store);

} // namespace quend::storage
