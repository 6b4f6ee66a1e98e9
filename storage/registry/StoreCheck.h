#pragma once

#include "RegistryAPI.h"

#include <cstddef>
#include <filesystem>
#include <string>

/// How the store was found when the program started.
struct StoreCondition {
    enum class State {
        Sound,
        Missing,  ///< as on the first start; it is made when something is kept
        Repaired, ///< it was damaged: `keptAs` is the damaged file, the store a new one
        Newer,    ///< made by a later version of the program: left untouched, and not to be used
        Unusable, ///< it cannot be read, or it is damaged and cannot be repaired where it is
    };

    State state = State::Sound;
    std::filesystem::path keptAs;
    std::size_t keys = 0;   ///< recovered
    std::size_t values = 0; ///< recovered
};

/// Looks at the store before anything else does, and repairs it when it is damaged: the damaged
/// file is kept beside it as "Loan.store.damaged-<today>", numbered when that name is taken, and
/// all that can be read of it goes into a new store, also the values of `named` keys whose own rows
/// are lost. `today` stands in the name as it is, as in
/// 2026-11-21. Throws nothing that is about the store. Does nothing where the platform has a
/// registry.
StoreCondition PrepareStore(const std::filesystem::path& store, const std::string& today,
                            const NamedKeys& named = {});

/// Repairs a store in which a step met damage, whatever the look at it says; as PrepareStore does.
/// Any state but Repaired: it was not done, as for a store of a later version. Throws nothing.
StoreCondition RepairStore(const std::filesystem::path& store, const std::string& today,
                           const NamedKeys& named = {});

/// Leaves the store as one file without a long log beside it. For the program's end; does nothing
/// when it cannot be done, or need not.
void TidyStore(const std::filesystem::path& store);
