#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace quend::registry {

/// The store cannot be opened, read or written, for the reason that SQLite gives.
class StoreError : public std::runtime_error {
public:
    explicit StoreError(int code);
    StoreError(int code, const std::string& text, int systemError = 0)
        : std::runtime_error(text), m_code(code), m_systemError(systemError) {}

    /// SQLite's primary result code.
    int Code() const { return m_code & 0xFF; }
    /// Whether the file's content is the reason.
    bool IsDamage() const;
    /// The errno of the operating system; 0 when unknown.
    int SystemError() const { return m_systemError; }

private:
    int m_code;
    int m_systemError = 0;
};

/// A prepared statement, reused between runs. All failures throw StoreError.
class Statement {
public:
    Statement(sqlite3* connection, const char* command);

    /// Restarts the statement and binds the values to its question marks in order.
    template <typename... Values>
    Statement& With(const Values&... values) {
        Reset();
        int position = 0;
        (Bind(++position, values), ...);
        return *this;
    }
    /// Steps to the next row; false at the end, which also ends the run.
    bool Next();
    /// Runs to the end.
    void Run();
    /// Ends the run early, so that it holds no lock.
    void Reset();

    std::int64_t Number(int column) const;
    std::string Bytes(int column) const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };

    void Bind(int position, std::int64_t number);
    void Bind(int position, const std::string& bytes);
    void Bind(int position, std::string_view text);

    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};

/// An open store file. Creates no file and knows nothing of its schema.
class Connection {
public:
    /// Opens an existing file; every access waits up to `wait` for other programs. Reads nothing
    /// yet.
    Connection(const std::filesystem::path& file, std::chrono::milliseconds wait);

    /// An empty store in memory.
    static Connection InMemory();
    /// A read-only store in memory, from the bytes of a file.
    static Connection OfBytes(std::string bytes);

    sqlite3* Handle() const { return m_connection.get(); }

    /// Runs one or several commands, separated by semicolons.
    void Execute(const char* commands) const;
    /// The number that a command returns.
    std::int64_t Ask(const char* command) const;

private:
    struct Close {
        void operator()(sqlite3* connection) const;
    };

    Connection() = default;

    std::unique_ptr<std::string> m_bytes; ///< of a store in memory, read until it is closed
    std::unique_ptr<sqlite3, Close> m_connection;
};

/// An SQLite transaction. Keep() commits it; otherwise it is rolled back.
class Transaction {
public:
    enum class Kind {
        Read, ///< sees one snapshot of the store
        Write ///< excludes other writers from the start
    };

    Transaction(const Connection& connection, Kind kind);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    Transaction(Transaction&&) = delete;
    Transaction& operator=(Transaction&&) = delete;
    ~Transaction();

    void Keep();

private:
    const Connection* m_connection;
    bool m_open = true;
};

} // namespace quend::registry
