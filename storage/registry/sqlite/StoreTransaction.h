#pragma once

#include "OpenStore.h"

#include <functional>
#include <memory>
#include <optional>

namespace quend::registry {

/// An open store during a transaction. After its first failure, and after its end, all calls do
/// nothing, so that nothing of a failed transaction is committed.
class StoreTransaction {
public:
    enum class Kind { Reads, Writes };

    StoreTransaction(std::unique_ptr<OpenStore> store, Kind kind)
        : m_store(std::move(store)), m_kind(kind) {}
    /// For a store that could not be opened.
    StoreTransaction(StoreError error, Kind kind) : m_kind(kind), m_error(std::move(error)) {}

    bool Writes() const { return m_kind == Kind::Writes; }
    bool IsWhole() const { return m_store != nullptr; }
    /// The failure that broke the transaction, if any.
    const std::optional<StoreError>& Error() const { return m_error; }
    /// Whether that failure is damage of the store.
    bool MetDamage() const { return m_error && m_error->IsDamage(); }

    /// False when this action or an earlier one failed.
    bool Run(const std::function<void(KeyTree&)>& action);
    /// Commits and ends the transaction; false when the commit failed.
    bool Keep();
    /// Ends the transaction and discards its writes.
    void Break() { m_store.reset(); }

private:
    std::unique_ptr<OpenStore> m_store;
    Kind m_kind;
    std::optional<StoreError> m_error;
};

} // namespace quend::registry
