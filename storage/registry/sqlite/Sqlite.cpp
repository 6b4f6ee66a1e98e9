#include "Sqlite.h"

#include <sqlite3.h>

#include <utility>

namespace quend::registry {

namespace {

constexpr const char* FileSystemName = "quend-loan";

void Check(int code, sqlite3* connection) {
    if (code != SQLITE_OK) {
        throw connection != nullptr
            ? StoreError(code, sqlite3_errmsg(connection), sqlite3_system_errno(connection))
            : StoreError(code);
    }
}

bool IsThere(const char* file) {
    std::error_code error;
    return std::filesystem::exists(file, error);
}

/// SQLite flushes the folder when it creates a log file. It assumes so whenever creation is
/// allowed, so allow it only when the log is missing: that halves the flushes of a save.
int OpenFile(sqlite3_vfs* system, sqlite3_filename name, sqlite3_file* file, int flags,
             int* outFlags) {
    auto* const base = static_cast<sqlite3_vfs*>(system->pAppData);
    if ((flags & SQLITE_OPEN_WAL) != 0 && name != nullptr && IsThere(name)) {
        flags &= ~SQLITE_OPEN_CREATE;
    }
    return base->xOpen(base, name, file, flags, outFlags);
}

/// A foreign file must not run its code here.
void Distrust(sqlite3* connection) {
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
}

const char* FileSystem() {
    static sqlite3_vfs system = [] {
        sqlite3_vfs* const base = sqlite3_vfs_find(nullptr);
        sqlite3_vfs copy = *base;
        copy.pNext = nullptr;
        copy.zName = FileSystemName;
        copy.pAppData = base;
        copy.xOpen = OpenFile;
        return copy;
    }();
    static const int registered = sqlite3_vfs_register(&system, 0);
    return registered == SQLITE_OK ? FileSystemName : nullptr;
}

} // namespace

StoreError::StoreError(int code) : StoreError(code, sqlite3_errstr(code)) {}

bool StoreError::IsDamage() const { return Code() == SQLITE_CORRUPT || Code() == SQLITE_NOTADB; }

void Statement::Finalize::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

Statement::Statement(sqlite3* connection, const char* command) {
    sqlite3_stmt* statement = nullptr;
    Check(sqlite3_prepare_v2(connection, command, -1, &statement, nullptr), connection);
    m_statement.reset(statement);
}

void Statement::Reset() {
    sqlite3_reset(m_statement.get()); // returns the failure of the last run, already reported
}

void Statement::Bind(int position, std::int64_t number) {
    Check(sqlite3_bind_int64(m_statement.get(), position, number), nullptr);
}

void Statement::Bind(int position, const std::string& bytes) {
    Check(sqlite3_bind_blob64(m_statement.get(), position, bytes.data(), bytes.size(),
                              SQLITE_TRANSIENT),
          nullptr);
}

void Statement::Bind(int position, std::string_view text) {
    Check(sqlite3_bind_text64(m_statement.get(), position, text.data(), text.size(),
                              SQLITE_TRANSIENT, SQLITE_UTF8),
          nullptr);
}

bool Statement::Next() {
    const int code = sqlite3_step(m_statement.get());
    if (code == SQLITE_ROW) {
        return true;
    }
    sqlite3* const connection = sqlite3_db_handle(m_statement.get());
    if (code != SQLITE_DONE) {
        const std::string message = sqlite3_errmsg(connection);
        const int systemError = sqlite3_system_errno(connection);
        Reset();
        throw StoreError(code, message, systemError);
    }
    Reset();
    return false;
}

void Statement::Run() {
    while (Next()) {
    }
}

std::int64_t Statement::Number(int column) const {
    return sqlite3_column_int64(m_statement.get(), column);
}

std::string Statement::Bytes(int column) const {
    const auto* const bytes =
        static_cast<const char*>(sqlite3_column_blob(m_statement.get(), column));
    const int size = sqlite3_column_bytes(m_statement.get(), column);
    return bytes == nullptr ? std::string() : std::string(bytes, static_cast<std::size_t>(size));
}

void Connection::Close::operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }

Connection::Connection(const std::filesystem::path& file, std::chrono::milliseconds wait) {
    sqlite3* connection = nullptr;
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
    const int code = sqlite3_open_v2(file.c_str(), &connection, flags, FileSystem());
    m_connection.reset(connection);
    Check(code, connection);
    Check(sqlite3_busy_timeout(connection, static_cast<int>(wait.count())), connection);
    Distrust(connection);
    // Checkpoint the log at program start and end, not with every save.
    sqlite3_db_config(connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

Connection Connection::InMemory() {
    Connection made;
    sqlite3* connection = nullptr;
    const int code = sqlite3_open_v2(":memory:", &connection,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    made.m_connection.reset(connection);
    Check(code, connection);
    return made;
}

Connection Connection::OfBytes(std::string bytes) {
    Connection made = InMemory();
    made.m_bytes = std::make_unique<std::string>(std::move(bytes));
    const auto size = static_cast<sqlite3_int64>(made.m_bytes->size());
    Check(sqlite3_deserialize(made.Handle(), "main",
                              reinterpret_cast<unsigned char*>(made.m_bytes->data()), size, size,
                              SQLITE_DESERIALIZE_READONLY),
          made.Handle());
    Distrust(made.Handle());
    return made;
}

void Connection::Execute(const char* commands) const {
    Check(sqlite3_exec(Handle(), commands, nullptr, nullptr, nullptr), Handle());
}

std::int64_t Connection::Ask(const char* command) const {
    Statement statement(Handle(), command);
    return statement.Next() ? statement.Number(0) : 0;
}

Transaction::Transaction(const Connection& connection, Kind kind) : m_connection(&connection) {
    connection.Execute(kind == Kind::Write ? "BEGIN IMMEDIATE" : "BEGIN");
}

Transaction::~Transaction() {
    if (m_open) {
        // Fails when SQLite has already rolled back, which is harmless.
        sqlite3_exec(m_connection->Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void Transaction::Keep() {
    m_connection->Execute("COMMIT");
    m_open = false;
}

} // namespace quend::registry
