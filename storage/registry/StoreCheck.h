#pragma once

#include "RegistryAPI.h"

#include <cstddef>
#include <filesystem>
#include <string>

namespace quend::registry {

/// The state of the store at program start.
struct StoreCondition {
    enum class State {
        Sound,
        Missing,  ///< as on the first start; created by the first write
        Repaired, ///< it was damaged: `keptAs` is the damaged file, the store is a new one
        Newer,    ///< made by a later version of the program: left untouched, must not be used
        Unusable, ///< it cannot be read, or it is damaged and recovery is not possible
    };

    State state = State::Sound;
    std::filesystem::path keptAs;
    std::size_t keys = 0;   ///< recovered
    std::size_t values = 0; ///< recovered
};

/// Checks the store before anything else uses it, and recovers it when it is damaged. The damaged
/// file is kept beside it as "Loan.store.damaged-<today>", with a number when that name is taken.
/// All readable data goes into a new store, including the values of `named` keys whose own rows are
/// lost. `today` is used in the name unchanged, such as 2026-11-21. Throws nothing for problems of
/// the store. Does nothing where the platform has a registry.
StoreCondition PrepareStore(const std::filesystem::path& store, const std::string& today,
                            const NamedKeys& named = {});

/// Recovers a store after a transaction met damage, even if the check finds none; otherwise like
/// PrepareStore. Any state but Repaired means that it was not done, such as for a store of a later
/// version. Throws nothing.
StoreCondition RepairStore(const std::filesystem::path& store, const std::string& today,
                           const NamedKeys& named = {});

/// Leaves the store as one file without a long log beside it. Called at program end; does nothing
/// when it is not possible or not necessary.
void TidyStore(const std::filesystem::path& store);

} // namespace quend::registry
