#pragma once

#include "OpenStore.h"

#include <functional>
#include <memory>
#include <optional>

/// A store that is open while a step runs. After its first failure, and after its end, it does
/// nothing more, so that nothing is kept of a step that is broken.
class StoreStep {
public:
    enum class Kind { Reads, Writes };

    StoreStep(std::unique_ptr<OpenStore> store, Kind kind)
        : m_store(std::move(store)), m_kind(kind) {}
    /// One for a store that could not be opened.
    StoreStep(StoreError error, Kind kind) : m_kind(kind), m_error(std::move(error)) {}

    bool Writes() const { return m_kind == Kind::Writes; }
    bool IsWhole() const { return m_store != nullptr; }
    /// What broke it, if anything did.
    const std::optional<StoreError>& Error() const { return m_error; }
    /// Whether that is damage of the store.
    bool MetDamage() const { return m_error && m_error->IsDamage(); }

    /// False when the action failed, now or before.
    bool Run(const std::function<void(KeyTree&)>& action);
    /// Keeps what was written and ends the step; false when it could not be kept.
    bool Keep();
    /// Ends the step and gives up what was written.
    void Break() { m_store.reset(); }

private:
    std::unique_ptr<OpenStore> m_store;
    Kind m_kind;
    std::optional<StoreError> m_error;
};
