// SPDX-License-Identifier: MIT
#pragma once

#include "store/database.h"

#include <memory>
#include <string>
#include <vector>

#include <sqlcipher/sqlite3.h>

namespace twk {

struct JoinDelete;

/// One open store file, shared by all handles on it.
class Connection {
  public:
    /// Faults as `OpenDatabase` tells them.
    Connection(const std::string& file, bool read_only, const std::string& key);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    struct Rows {
        std::vector<std::string> columns; ///< lower case
        std::vector<std::vector<Field::Value>> rows;
    };

    /// What the library tells of changes by others, and by this connection.
    std::int64_t data_version();
    std::int64_t changed_rows() const { return sqlite3_total_changes(db_); }

    /// Run a statement of a screen: one that gives rows, or one that changes some. Fault 3075 for one of the
    /// other kind, 3260 and 61 when the store cannot be locked or written.
    Rows select(const Statement& statement);
    void change(const Statement& statement);

    /// Hold the writes between them together. A commit that fails takes them back.
    void begin();
    void commit();
    /// Takes the writes since `begin` back.
    void rollback() noexcept;

    /// Whether each write is on the disk when its statement has returned, as at first. Turning it on again
    /// brings the writes since to the disk.
    void set_durable(bool each);

    /// Inserts a row of the table by bound values or, with another row id than 0, changes that row.
    void write_row(const std::string& table, std::int64_t row_id,
                   const std::vector<std::pair<std::string, Field::Value>>& values);

  private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    using Prepared = std::unique_ptr<sqlite3_stmt, Finalizer>;

    Prepared prepare(const Statement& statement);
    /// One that the store itself runs.
    Prepared prepare_own(const std::string& sql);
    /// Runs settings of the store, which are none of the statements that the authorizer lets through.
    int settings(const char* sql, int (*each)(void*, int, char**, char**) = nullptr, void* into = nullptr);
    void delete_joined(const JoinDelete& parts);
    int step(sqlite3_stmt* statement);
    [[noreturn]] void fail(int code);

    sqlite3* db_ = nullptr;
};

} // namespace twk
