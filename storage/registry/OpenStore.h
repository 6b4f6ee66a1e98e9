#pragma once

#include "KeyTree.h"
#include "Sqlite.h"

#include <chrono>
#include <filesystem>
#include <memory>

/// The store file opened for one step: reading of one moment, or writing that is kept as a whole by
/// Keep() or not at all. Every function throws StoreError; a store of a newer version, an empty one
/// and a foreign file cannot be opened.
class OpenStore {
public:
    /// Where the store or its folder cannot be written to, so that SQLite cannot set up its log, a
    /// copy in memory is read instead.
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
