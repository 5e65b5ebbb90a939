#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace ccsim {

struct StoreError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A null SQL value, to bind with Stmt::bindAll.
struct Null {};

/// One prepared statement; rows are read with step() and the typed column getters.
class Stmt {
public:
    Stmt(sqlite3* db, std::string_view sql);
    Stmt(Stmt&& other) noexcept;
    Stmt(const Stmt&) = delete;
    Stmt& operator=(const Stmt&) = delete;
    ~Stmt();

    void bindInteger(int index, std::int64_t value);
    template <std::integral T>
    void bind(int index, T value)
    {
        bindInteger(index, static_cast<std::int64_t>(value));
    }
    void bind(int index, std::string_view value);
    void bind(int index, const std::string& value) { bind(index, std::string_view(value)); }
    void bind(int index, const char* value) { bind(index, std::string_view(value)); }
    void bind(int index, Null);
    template <class T>
    void bind(int index, const std::optional<T>& value)
    {
        if (value)
            bind(index, *value);
        else
            bind(index, Null{});
    }
    template <class... A>
    void bindAll(const A&... args)
    {
        int i = 0;
        (bind(++i, args), ...);
    }

    /// Advances to the next row; false when the statement is done.
    bool step();
    std::int64_t integer(int col) const;
    std::string text(int col) const;
    bool isNull(int col) const;
    std::optional<std::int64_t> optInteger(int col) const;

private:
    sqlite3* m_db;
    sqlite3_stmt* m_stmt = nullptr;
};

/// The simulator's database: one file, WAL journal, waits for other writers.
class Store {
public:
    explicit Store(const std::string& path);
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;
    ~Store();

    void exec(std::string_view sql);
    Stmt prepare(std::string_view sql) { return Stmt(m_db, sql); }

    template <class... A>
    Stmt query(std::string_view sql, const A&... args)
    {
        Stmt s(m_db, sql);
        s.bindAll(args...);
        return s;
    }
    /// Runs a statement that returns no rows; gives the last inserted row id.
    template <class... A>
    std::int64_t run(std::string_view sql, const A&... args)
    {
        Stmt s = query(sql, args...);
        s.step();
        return lastId();
    }
    /// First column of the first row, if any.
    template <class... A>
    std::optional<std::int64_t> scalar(std::string_view sql, const A&... args)
    {
        Stmt s = query(sql, args...);
        if (!s.step() || s.isNull(0))
            return std::nullopt;
        return s.integer(0);
    }
    template <class... A>
    std::optional<std::string> scalarText(std::string_view sql, const A&... args)
    {
        Stmt s = query(sql, args...);
        if (!s.step() || s.isNull(0))
            return std::nullopt;
        return s.text(0);
    }

    std::int64_t lastId() const;
    int changes() const;

private:
    void createSchema();
    sqlite3* m_db = nullptr;
};

/// Rolls back unless committed: a command that throws leaves the store untouched.
class Transaction {
public:
    explicit Transaction(Store& store);
    ~Transaction();
    void commit();

private:
    Store& m_store;
    bool m_done = false;
};

/// Undoes one operand's work when it fails, keeping what earlier operands did.
class Savepoint {
public:
    explicit Savepoint(Store& store);
    ~Savepoint();
    void release();

private:
    Store& m_store;
    bool m_done = false;
};

} // namespace ccsim
