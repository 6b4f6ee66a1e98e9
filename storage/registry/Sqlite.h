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

/// The store cannot be reached, read or written, for the reason that SQLite gives.
class StoreError : public std::runtime_error {
public:
    explicit StoreError(int code);
    StoreError(int code, const std::string& text, int systemError = 0)
        : std::runtime_error(text), m_code(code), m_systemError(systemError) {}

    /// SQLite's primary result code.
    int Code() const { return m_code & 0xFF; }
    /// Whether what is in the file is the reason.
    bool IsDamage() const;
    /// What the system gave as its reason (errno); 0 when that is not known.
    int SystemError() const { return m_systemError; }

private:
    int m_code;
    int m_systemError = 0;
};

/// A command with its bound values, kept to be run again. All failures throw StoreError.
class Statement {
public:
    Statement(sqlite3* connection, const char* command);

    /// Starts anew, with the values in the order of their question marks.
    template <typename... Values>
    Statement& With(const Values&... values) {
        Reset();
        int position = 0;
        (Bind(++position, values), ...);
        return *this;
    }
    /// The next row; false when there is none, which also ends the run.
    bool Next();
    /// Runs to the end.
    void Run();
    /// Ends the run where it is, so that nothing is held open for it.
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

/// One open store file. It makes no file and knows nothing of what is in it.
class Connection {
public:
    /// Opens an existing file, waiting `wait` whenever another program is in the way. Nothing of it
    /// is read yet.
    Connection(const std::filesystem::path& file, std::chrono::milliseconds wait);

    /// An empty store in memory.
    static Connection InMemory();
    /// A store in memory, from the bytes of a file; for reading.
    static Connection OfBytes(const std::string& bytes);

    sqlite3* Handle() const { return m_connection.get(); }

    /// Runs one command, or several between semicolons.
    void Execute(const char* commands) const;
    /// The number that a command answers with.
    std::int64_t Ask(const char* command) const;

private:
    struct Close {
        void operator()(sqlite3* connection) const;
    };

    Connection() = default;

    std::unique_ptr<sqlite3, Close> m_connection;
};

/// What is written between here and Keep() is kept as a whole; without Keep() nothing is.
class Transaction {
public:
    enum class Kind {
        Read, ///< sees one moment of the store
        Write ///< keeps others from writing, from the start
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
