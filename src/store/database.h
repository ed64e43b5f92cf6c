// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"
#include "store/statement.h"

#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

/// The project store and the synonym store: files that open only with their key, reached by statements.
namespace twk {

class Connection;

/// One value of a row.
class Field {
  public:
    using Value = std::variant<std::monostate, std::int64_t, Text>;
    explicit Field(const Value* value) : value_(value) {}
    bool is_null() const { return std::holds_alternative<std::monostate>(*value_); }
    /// Fault 94 when it is null. A number comes as its decimal text.
    Text text() const;
    /// Fault 94 when it is null, 13 when it is a text that is no number.
    double number() const;
    /// A key, for a statement. Fault 94 when it is null, 13 when it is no whole number.
    std::int64_t key() const;

  private:
    const Value* value_;
};

/// One whole row, kept apart from the store.
struct StoredRow {
    std::string table;
    std::vector<std::pair<std::string, Field::Value>> values; ///< by column, lower case

    /// Fault 3265 when there is no such column.
    Field value(const std::string& column) const;
};

/// The rows that a statement gave, or all rows of a table for adding and changing. Positioned on the first
/// row, and a range of all of them, whatever the position:
/// `for (const Recordset::Row row : store.OpenRecordset(...)) list.add_item(row.Fields(u"name").text());`
class Recordset {
    struct State;

  public:
    /// One of the rows; lives as long as they do.
    class Row {
      public:
        /// Column by name or alias, without regard to case. Fault 3265 when there is none.
        Field Fields(TextView name) const;

      private:
        friend class Recordset;
        Row(const State* state, std::size_t at) : state_(state), at_(at) {}
        const State* state_;
        std::size_t at_;
    };

    class Iterator {
      public:
        using value_type = Row;
        using difference_type = std::ptrdiff_t;
        Row operator*() const { return row_; }
        Iterator& operator++() {
            ++row_.at_;
            return *this;
        }
        void operator++(int) { ++row_.at_; }
        bool operator==(const Iterator& other) const { return row_.at_ == other.row_.at_; }

      private:
        friend class Recordset;
        explicit Iterator(Row row) : row_(row) {}
        Row row_;
    };
    Iterator begin() const { return Iterator(Row(state_.get(), 0)); }
    Iterator end() const { return Iterator(Row(state_.get(), static_cast<std::size_t>(RecordCount()))); }

    bool eof() const;
    /// Fault 3021 past the last row.
    void MoveNext();
    /// Column by name or alias, without regard to case. Fault 3265 when there is none, 3021 past the last
    /// row.
    Field Fields(TextView name) const;
    /// Number of all rows.
    int RecordCount() const;
    /// All rows, as rows of that table; the place among them stays.
    std::vector<StoredRow> rows_of(const std::string& table) const;

    /// Start a new row, or a change of the current one; `set` and `AppendChunk` fill it, `Update` writes it.
    void AddNew();
    void Edit();
    void set(TextView column, std::int64_t value);
    void set(TextView column, const Text& value);
    /// Adds to a long text column of the row being written.
    void AppendChunk(TextView column, TextView chunk);
    void Update();
    void Close();

  private:
    friend class Database;
    explicit Recordset(std::shared_ptr<State> state) : state_(std::move(state)) {}
    std::shared_ptr<State> state_;
};

/// Puts a column of keys into `key`, row by row: that of the last row stays, and without a row `key` is left
/// as it is. Fault 6 when one needs more than 16 bits.
void take_last_key(const Recordset& rows, TextView column, std::int16_t& key);

/// A handle on a store. Handles on one file share one connection, which ends with the last of them.
class Database {
  public:
    Database() = default;

    /// Runs a select, or opens "content" to add rows to it. Fault 3075 for a statement of another kind or one
    /// that the store does not understand, 3260 when another process holds the store for more than five
    /// seconds.
    Recordset OpenRecordset(const Statement& statement);

    /// Runs an insert, update or delete; durable when it returns. The same faults.
    void Execute(const Statement& statement);

    /// Inserts a row that was there before, under its old key: keys are never used again, so nothing else can
    /// have it. The faults of a write.
    void put_back(const StoredRow& row);

    /// Two equal states of one handle have no change to any row between them, by whomever.
    struct RowState {
        std::int64_t others = 0; ///< moves when another connection has written
        std::int64_t own = 0;    ///< rows changed through this connection
        bool operator==(const RowState&) const = default;
    };
    RowState row_state() const;

  private:
    friend class BulkWrite;
    friend class WriteTogether;
    friend Database OpenDatabase(const Text&, bool, bool, const Text&);
    std::shared_ptr<Connection> connection_;
};

/// For thousands of writes in a row: while it lives, a statement does not wait for the disk. Each write
/// stands by itself, as ever; only a machine that goes down may lose the last of them. They are durable when
/// it ends.
class BulkWrite {
  public:
    explicit BulkWrite(const Database& store);
    ~BulkWrite();
    BulkWrite(const BulkWrite&) = delete;
    BulkWrite& operator=(const BulkWrite&) = delete;

  private:
    std::shared_ptr<Connection> connection_;
};

/// Writes of which none may stand without the others: whenever the program ends, all of them are there or
/// none. What has not been finished when it ends, after a fault for one, is taken back. Nothing else may run
/// meanwhile: no message, no event.
class WriteTogether {
  public:
    /// Fault 3260 when another process holds the store for more than five seconds.
    explicit WriteTogether(const Database& store);
    ~WriteTogether();
    WriteTogether(const WriteTogether&) = delete;
    WriteTogether& operator=(const WriteTogether&) = delete;
    /// Makes the writes durable. The faults of a write.
    void finish();

  private:
    std::shared_ptr<Connection> connection_; ///< empty when they are written
};

/// Opens a store file; nothing is ever created. `connect` is "" or ";pwd=" and the password. Fault 3024 when
/// the file is missing, 3031 when the password does not open it, 3260 when another process holds
/// it for more than five seconds, 3343 when it is no store.
Database OpenDatabase(const Text& path, bool exclusive, bool read_only, const Text& connect = {});

} // namespace twk
