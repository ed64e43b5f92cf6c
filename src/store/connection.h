#pragma once

#include "store/database.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <sqlcipher/sqlite3.h>

namespace twk {

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

    Rows select(const Text& text);
    void change(const Text& text);

    /// Holds the writes between them together. A commit that fails takes them back.
    void begin();
    void commit();

    /// Whether each write is on the disk when its statement has returned, as at first. Turning it on again
    /// brings the writes since to the disk.
    void set_durable(bool each);

    /// Inserts or, with a row id, changes one row of `content` by bound values.
    void write_row(const std::string& table, std::int64_t row_id,
                   const std::vector<std::pair<std::string, Field::Value>>& values);

  private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

    /// A fenced statement ready to run.
    Statement prepare(const Text& text);
    Statement prepare_own(const std::string& sql);
    void delete_joined(const Text& text);
    int step(sqlite3_stmt* statement);
    [[noreturn]] void fail(int code);

    sqlite3* db_ = nullptr;
};

/// "delete A.* , B.* from A , B where ...", in its parts.
struct JoinDelete {
    std::vector<std::string> tables;
    std::string condition;
};

/// The parts when the statement has that form; otherwise no tables.
JoinDelete parse_join_delete(const std::string& statement);

} // namespace twk
