#pragma once

#include "RegistryAPI.h"
#include "StorageNames.h"
#include "WorksheetStore.h"

#include <QString>

#include <optional>
#include <string>

namespace quend::storage {

/// The worksheets that were closed unsaved because there was no time to ask. They are kept in the
/// user's store, apart from those that are saved under names: one for each window that was closed.
class UnsavedWorksheets {
public:
    explicit UnsavedWorksheets(RegistryAPI store) : m_store(std::move(store)) {}

    struct Found {
        std::string slot;
        QString name; ///< may be empty
    };

    /// Keeps the worksheet, in place of the one in `slot` if that is not empty. Returns its slot.
    /// Throws StoreFailure; nothing has changed then.
    std::string Keep(const Worksheet& worksheet, const std::string& slot = {}) const;
    /// One of them; no value when there is none or the store cannot be read.
    std::optional<Found> First() const;
    /// Removes it. Empty when there is none in this slot, because another window has taken it.
    /// Throws StoreFailure; it is still kept then.
    AllValues Take(const std::string& slot) const;

private:
    RegistryAPI m_store;
};

} // namespace quend::storage
