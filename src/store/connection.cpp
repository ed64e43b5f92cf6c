// SPDX-License-Identifier: MIT
#include "store/connection.h"

#include "platform/faults.h"
#include "store/store_setup.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <optional>
#include <regex>
#include <set>

namespace twk {

/// "delete A.* , B.* from A , B where ...", in its parts.
struct JoinDelete {
    std::string first, second; ///< the tables
    std::string condition;
};

namespace {

std::string lower_case(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return std::tolower(c); });
    return name;
}

/// Lets through what the screens do: reading and changing rows of the nine tables.
int authorize(void*, int action, const char* first, const char*, const char*, const char*) {
    static const std::set<std::string> tables{"projects", "keywords", "elements", "content", "ties",
                                              "host",     "host1",    "target",   "synonyms"};
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_TRANSACTION:
    case SQLITE_SAVEPOINT: return SQLITE_OK;
    case SQLITE_READ:
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
    case SQLITE_DELETE: {
        const std::string table = lower_case(first != nullptr ? first : "");
        return table.empty() || tables.contains(table) ? SQLITE_OK : SQLITE_DENY;
    }
    default: return SQLITE_DENY;
    }
}

Field::Value column_value(sqlite3_stmt* statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL: return std::monostate();
    case SQLITE_INTEGER: return static_cast<std::int64_t>(sqlite3_column_int64(statement, column));
    default: {
        const auto* text = static_cast<const char16_t*>(sqlite3_column_text16(statement, column));
        return Text(text,
                    static_cast<std::size_t>(sqlite3_column_bytes16(statement, column)) / sizeof(char16_t));
    }
    }
}

/// The parts of a statement that has that form.
std::optional<JoinDelete> parse_join_delete(const std::string& statement) {
    static const std::regex form(
        R"(\s*delete\s+(\w+)\.\*\s*,\s*(\w+)\.\*\s+from\s+(\w+)\s*,\s*(\w+)\s+where\s+)", std::regex::icase);
    // The pattern is looked for at the beginning only: the condition may be of any length.
    std::smatch parts;
    if (!std::regex_search(statement, parts, form, std::regex_constants::match_continuous)) return {};
    if (parts[1] != parts[3] || parts[2] != parts[4]) return {};
    return JoinDelete{parts[1], parts[2], parts.suffix()};
}

} // namespace

Connection::Connection(const std::string& file, bool read_only, const std::string& key)
    : db_(open_store(file, read_only ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE, key)) {
    sqlite3_set_authorizer(db_, authorize, nullptr);
}

void Connection::begin() {
    step(prepare_own("begin immediate").get());
}

void Connection::commit() {
    const int code = sqlite3_exec(db_, "commit", nullptr, nullptr, nullptr);
    if (code == SQLITE_OK) return;
    rollback();
    fail(code);
}

void Connection::rollback() noexcept {
    // A fault that ended the whole transaction has taken the writes back already.
    if (sqlite3_get_autocommit(db_) == 0) sqlite3_exec(db_, "rollback", nullptr, nullptr, nullptr);
}

int Connection::settings(const char* sql, int (*each)(void*, int, char**, char**), void* into) {
    sqlite3_set_authorizer(db_, nullptr, nullptr);
    const int code = sqlite3_exec(db_, sql, each, into, nullptr);
    sqlite3_set_authorizer(db_, authorize, nullptr);
    return code;
}

void Connection::set_durable(bool each) {
    const int code = settings(each ? "PRAGMA synchronous = FULL; PRAGMA wal_checkpoint(PASSIVE)"
                                   : "PRAGMA synchronous = NORMAL");
    if (code != SQLITE_OK) fail(code);
}

Connection::~Connection() {
    sqlite3_close_v2(db_);
}

void Connection::fail(int code) {
    const Text why = from_utf8(sqlite3_errmsg(db_));
    const bool full = (code & 0xFF) == SQLITE_IOERR && sqlite3_system_errno(db_) == ENOSPC;
    switch (full ? SQLITE_FULL : code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw RuntimeFault(fault_store_locked,
                           u"The store is in use by another program; it could not be locked.");
    case SQLITE_FULL: throw RuntimeFault(fault_disk_full, u"Disk full: the store could not be written.");
    case SQLITE_READONLY:
        throw RuntimeFault(fault_file_permission, u"Permission denied: the store cannot be written.");
    case SQLITE_NOMEM: throw RuntimeFault(fault_memory);
    case SQLITE_ERROR:
    case SQLITE_AUTH: throw RuntimeFault(fault_statement, u"Syntax error in the statement: " + why);
    default: throw RuntimeFault(fault_store, u"The store cannot be read or written: " + why);
    }
}

Connection::Prepared Connection::prepare_own(const std::string& sql) {
    sqlite3_stmt* made = nullptr;
    const int code = sqlite3_prepare_v2(db_, sql.c_str(), -1, &made, nullptr);
    if (code != SQLITE_OK) fail(code);
    return Prepared(made);
}

Connection::Prepared Connection::prepare(const Statement& statement) {
    // In our own encoding: the library's reading of 16-bit text lets half a character swallow the quote
    // behind it.
    const std::string sql = to_utf8(statement.text());
    sqlite3_stmt* made = nullptr;
    const int code = sqlite3_prepare_v2(db_, sql.data(), static_cast<int>(sql.size()), &made, nullptr);
    Prepared prepared(made);
    if (code == SQLITE_ERROR || code == SQLITE_AUTH)
        malformed_statement(statement.text(), from_utf8(sqlite3_errmsg(db_)));
    if (code != SQLITE_OK) fail(code);
    return prepared;
}

std::int64_t Connection::data_version() {
    std::int64_t version = 0;
    const auto take = [](void* into, int, char** values, char**) {
        *static_cast<std::int64_t*>(into) = std::atoll(values[0]);
        return 0;
    };
    const int code = settings("pragma data_version", take, &version);
    if (code != SQLITE_OK) fail(code);
    return version;
}

int Connection::step(sqlite3_stmt* statement) {
    const int code = sqlite3_step(statement);
    if (code != SQLITE_ROW && code != SQLITE_DONE) fail(code);
    return code;
}

Connection::Rows Connection::select(const Statement& statement) {
    const Prepared prepared = prepare(statement);
    if (sqlite3_stmt_readonly(prepared.get()) == 0) malformed_statement(statement.text(), u"it changes rows");
    Rows result;
    const int columns = sqlite3_column_count(prepared.get());
    for (int i = 0; i < columns; ++i)
        result.columns.push_back(lower_case(sqlite3_column_name(prepared.get(), i)));
    while (step(prepared.get()) == SQLITE_ROW) {
        std::vector<Field::Value>& row = result.rows.emplace_back();
        row.reserve(static_cast<std::size_t>(columns));
        for (int i = 0; i < columns; ++i) row.push_back(column_value(prepared.get(), i));
    }
    return result;
}

void Connection::change(const Statement& statement) {
    if (const auto parts = parse_join_delete(to_utf8(statement.text()))) return delete_joined(*parts);
    const Prepared prepared = prepare(statement);
    if (sqlite3_column_count(prepared.get()) != 0) malformed_statement(statement.text(), u"it gives rows");
    step(prepared.get());
}

/// Deletes the rows of both tables that the join matches, and no others, in one go: one of its own, unless
/// writes are held together already.
void Connection::delete_joined(const JoinDelete& parts) {
    const std::string& a = parts.first;
    const std::string& b = parts.second;
    const bool own = sqlite3_get_autocommit(db_) != 0;
    if (own) begin();
    try {
        const Prepared matches = prepare_own("select " + a + ".rowid , " + b + ".rowid from " + a + " , " +
                                             b + " where " + parts.condition);
        std::set<std::int64_t> of_a, of_b;
        while (step(matches.get()) == SQLITE_ROW) {
            of_a.insert(sqlite3_column_int64(matches.get(), 0));
            of_b.insert(sqlite3_column_int64(matches.get(), 1));
        }
        const auto remove = [this](const std::string& table, const std::set<std::int64_t>& rows) {
            const Prepared statement = prepare_own("delete from " + table + " where rowid = ?");
            for (const std::int64_t row : rows) {
                sqlite3_bind_int64(statement.get(), 1, row);
                step(statement.get());
                sqlite3_reset(statement.get());
            }
        };
        remove(a, of_a);
        remove(b, of_b);
    } catch (...) {
        if (own) rollback();
        throw;
    }
    if (own) commit();
}

void Connection::write_row(const std::string& table, std::int64_t row_id,
                           const std::vector<std::pair<std::string, Field::Value>>& values) {
    if (values.empty()) return;
    std::string names, places, changes;
    for (const auto& [name, value] : values) {
        names += (names.empty() ? "" : " , ") + name;
        places += places.empty() ? "?" : " , ?";
        changes += (changes.empty() ? "" : " , ") + name + " = ?";
    }
    const Prepared statement = prepare_own(
        row_id == 0 ? "insert into " + table + " ( " + names + " ) values ( " + places + " )"
                    : "update " + table + " set " + changes + " where rowid = " + std::to_string(row_id));
    int place = 0;
    for (const auto& [name, value] : values) {
        ++place;
        if (const auto* number = std::get_if<std::int64_t>(&value))
            sqlite3_bind_int64(statement.get(), place, *number);
        else if (const auto* text = std::get_if<Text>(&value)) {
            const std::string bytes = to_utf8(*text);
            sqlite3_bind_text(statement.get(), place, bytes.data(), static_cast<int>(bytes.size()),
                              SQLITE_TRANSIENT);
        }
    }
    step(statement.get());
}

} // namespace twk
