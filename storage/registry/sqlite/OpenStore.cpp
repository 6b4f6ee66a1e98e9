#include "OpenStore.h"

#include "StoreFile.h"
#include "StoreSchema.h"
#include "StoreSnapshot.h"

#include <sqlite3.h>

namespace quend::registry {

namespace {

using StoreSchema::State;

/// Whether a store that cannot be opened may still be readable as a plain file.
bool IsOutOfReach(const StoreError& error) {
    switch (error.Code()) {
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
    case SQLITE_IOERR:
    case SQLITE_FULL:
    case SQLITE_PERM:
        return true;
    default:
        return false;
    }
}

void Require(bool fine, const char* otherwise) {
    if (!fine) {
        throw StoreError(SQLITE_MISUSE, otherwise);
    }
}

} // namespace

OpenStore::OpenStore(Connection connection, Transaction::Kind kind)
    : m_connection(std::move(connection)), m_transaction(m_connection, kind), m_keys(m_connection) {
    const State state = StoreSchema::StateOf(m_connection);
    if (kind == Transaction::Kind::Write && state == State::Older) {
        StoreSchema::Migrate(m_connection);
        return;
    }
    Require(state == State::Current, "no store of this version");
}

std::unique_ptr<OpenStore> OpenStore::ToRead(const std::filesystem::path& store,
                                             std::chrono::milliseconds wait) {
    const auto opened = [](Connection connection) {
        return std::unique_ptr<OpenStore>(
            new OpenStore(std::move(connection), Transaction::Kind::Read));
    };
    try {
        return opened(Connection(store, wait));
    } catch (const StoreError& error) {
        std::string image =
            IsOutOfReach(error) ? StoreSnapshot(store).AsPlainFile() : std::string();
        if (image.empty()) {
            throw;
        }
        return opened(Connection::OfBytes(std::move(image)));
    }
}

std::unique_ptr<OpenStore> OpenStore::ToWrite(const std::filesystem::path& store,
                                              std::chrono::milliseconds wait, Missing missing) {
    if (missing == Missing::IsMade) {
        StoreFile::MakeWhereMissing(store, wait);
    }
    Connection connection(store, wait);
    StoreFile::SetUpForWriting(connection);
    return std::unique_ptr<OpenStore>(
        new OpenStore(std::move(connection), Transaction::Kind::Write));
}

} // namespace quend::registry
