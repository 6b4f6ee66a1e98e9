#pragma once

#include "KeyTree.h"
#include "Sqlite.h"

#include <chrono>
#include <filesystem>
#include <memory>

namespace quend::registry {

/// The store file, opened for one transaction: a read snapshot, or writes that Keep() commits as a
/// whole. All functions throw StoreError. A store of a newer version, an empty store and a foreign
/// file cannot be opened.
class OpenStore {
public:
    /// Reads a copy in memory when the store or its folder is not writable, because SQLite cannot
    /// create its log then.
    static std::unique_ptr<OpenStore> ToRead(const std::filesystem::path& store,
                                             std::chrono::milliseconds wait);

    enum class Missing { Fails, IsMade };
    static std::unique_ptr<OpenStore> ToWrite(const std::filesystem::path& store,
                                              std::chrono::milliseconds wait, Missing missing);

    KeyTree& Keys() { return m_keys; }
    void Keep() { m_transaction.Keep(); }

private:
    OpenStore(Connection connection, Transaction::Kind kind);

    Connection m_connection;
    Transaction m_transaction;
    KeyTree m_keys;
};

} // namespace quend::registry
