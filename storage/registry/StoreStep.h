#pragma once

#include "OpenStore.h"

#include <functional>
#include <memory>

/// A store that is open while a step runs. After its first failure, and after its end, it does
/// nothing more, so that nothing is kept of a step that is broken.
class StoreStep {
public:
    enum class Kind { Reads, Writes };

    /// Without a store, one whose every action fails.
    StoreStep(std::unique_ptr<OpenStore> store, Kind kind)
        : m_store(std::move(store)), m_kind(kind) {}

    bool Writes() const { return m_kind == Kind::Writes; }
    bool IsWhole() const { return m_store != nullptr; }
    /// Whether it is broken because the store is damaged.
    bool MetDamage() const { return m_metDamage; }

    /// False when the action failed, now or before.
    bool Run(const std::function<void(KeyTree&)>& action);
    /// Keeps what was written and ends the step; false when it could not be kept.
    bool Keep();
    /// Ends the step and gives up what was written.
    void Break() { m_store.reset(); }

private:
    std::unique_ptr<OpenStore> m_store;
    Kind m_kind;
    bool m_metDamage = false;
};
