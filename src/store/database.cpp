// SPDX-License-Identifier: MIT
#include "store/database.h"

#include "platform/faults.h"
#include "platform/file_system.h"
#include "platform/numbers.h"
#include "platform/process.h"
#include "store/connection.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <utility>

namespace twk {

namespace {

std::string plain(TextView name) {
    return to_utf8(LCase(trim_view(name)));
}

Connection& opened(const std::shared_ptr<Connection>& connection) {
    if (!connection) throw RuntimeFault(fault_store, u"The store is not open.");
    return *connection;
}

} // namespace

Text Field::text() const {
    if (is_null()) throw RuntimeFault(fault_null);
    if (const auto* number = std::get_if<std::int64_t>(value_)) return to_text(*number);
    return std::get<Text>(*value_);
}

double Field::number() const {
    if (is_null()) throw RuntimeFault(fault_null);
    if (const auto* number = std::get_if<std::int64_t>(value_)) return static_cast<double>(*number);
    return CDbl(std::get<Text>(*value_));
}

std::int64_t Field::key() const {
    if (is_null()) throw RuntimeFault(fault_null);
    if (const auto* number = std::get_if<std::int64_t>(value_)) return *number;
    throw RuntimeFault(fault_type);
}

/// Rows as they were when the recordset was opened, the place among them, and the row being written.
struct Recordset::State {
    std::shared_ptr<Connection> connection;
    Connection::Rows data;
    std::string table; ///< the one table that can be written through the recordset
    std::size_t at = 0;
    enum class Writing { no, adding, changing } writing = Writing::no;
    std::vector<std::pair<std::string, Field::Value>> values;

    std::size_t column(const std::string& name) const {
        const auto found = std::find(data.columns.begin(), data.columns.end(), name);
        if (found == data.columns.end()) throw RuntimeFault(fault_field);
        return static_cast<std::size_t>(found - data.columns.begin());
    }

    Field::Value& writing_value(TextView name) {
        if (writing == Writing::no) throw RuntimeFault(fault_no_record, u"No row is being added or changed.");
        const std::string wanted = plain(name);
        column(wanted);
        for (auto& [known, value] : values)
            if (known == wanted) return value;
        return values.emplace_back(wanted, std::monostate()).second;
    }
};

bool Recordset::eof() const {
    return state_->at >= state_->data.rows.size();
}

void Recordset::MoveNext() {
    if (eof()) throw RuntimeFault(fault_no_record);
    ++state_->at;
}

Field Recordset::Fields(TextView name) const {
    const std::size_t column = state_->column(plain(name));
    if (eof()) throw RuntimeFault(fault_no_record);
    return Field(&state_->data.rows[state_->at][column]);
}

Field Recordset::Row::Fields(TextView name) const {
    return Field(&state_->data.rows[at_][state_->column(plain(name))]);
}

int Recordset::RecordCount() const {
    return static_cast<int>(state_->data.rows.size());
}

std::vector<StoredRow> Recordset::rows_of(const std::string& table) const {
    std::vector<StoredRow> all;
    for (const auto& values : state_->data.rows) {
        StoredRow& row = all.emplace_back(StoredRow{table, {}});
        for (std::size_t i = 0; i < values.size(); ++i)
            row.values.emplace_back(state_->data.columns[i], values[i]);
    }
    return all;
}

Field StoredRow::value(const std::string& column) const {
    for (const auto& [name, value] : values)
        if (name == column) return Field(&value);
    throw RuntimeFault(fault_field);
}

void Recordset::AddNew() {
    state_->values.clear();
    state_->writing = State::Writing::adding;
}

void Recordset::Edit() {
    if (eof()) throw RuntimeFault(fault_no_record);
    state_->values.clear();
    state_->writing = State::Writing::changing;
}

void Recordset::set(TextView column, std::int64_t value) {
    state_->writing_value(column) = value;
}
void Recordset::set(TextView column, const Text& value) {
    state_->writing_value(column) = value;
}

void Recordset::AppendChunk(TextView column, TextView chunk) {
    Field::Value& value = state_->writing_value(column);
    if (auto* text = std::get_if<Text>(&value))
        text->append(chunk);
    else
        value = Text(chunk);
}

void Recordset::Update() {
    State& state = *state_;
    if (state.writing == State::Writing::no)
        throw RuntimeFault(fault_no_record, u"No row is being added or changed.");
    if (state.table.empty()) throw RuntimeFault(fault_statement, u"These rows cannot be written.");
    const bool adding = state.writing == State::Writing::adding;
    const std::int64_t key =
        adding ? 0 : std::get<std::int64_t>(state.data.rows[state.at][state.column("cid")]);
    state.connection->write_row(state.table, key, state.values);
    if (!adding)
        for (const auto& [name, value] : state.values) state.data.rows[state.at][state.column(name)] = value;
    state.writing = State::Writing::no;
}

void Recordset::Close() {
    *state_ = State();
}

void take_last_key(const Recordset& rows, TextView column, std::int16_t& key) {
    for (const Recordset::Row row : rows) key = CInt(row.Fields(column).number());
}

Recordset Database::OpenRecordset(const Statement& statement) {
    const std::string text = plain(statement.text());
    const bool bare = text == "content";
    auto state = std::make_shared<Recordset::State>();
    state->connection = connection_;
    state->data =
        opened(connection_).select(bare ? Statement(u"select * from content where 1 = 0") : statement);
    // Boxes alone are written row by row, and only through rows of their own table.
    const bool of_content =
        text.find("content") != std::string::npos && text.find("projects") == std::string::npos;
    if (bare || (of_content && state->data.columns == std::vector<std::string>{"cid", "pid", "content"}))
        state->table = "content";
    return Recordset(std::move(state));
}

void Database::Execute(const Statement& statement) {
    opened(connection_).change(statement);
}

void Database::put_back(const StoredRow& row) {
    opened(connection_).write_row(row.table, 0, row.values);
}

BulkWrite::BulkWrite(const Database& store) : connection_(store.connection_) {
    if (connection_) connection_->set_durable(false);
}

BulkWrite::~BulkWrite() {
    try {
        if (connection_) connection_->set_durable(true);
    } catch (const RuntimeFault&) {
        // The writes stand; the next checkpoint brings them to the disk.
    }
}

WriteTogether::WriteTogether(const Database& store) : connection_(store.connection_) {
    opened(connection_).begin();
}

WriteTogether::~WriteTogether() {
    if (connection_) connection_->rollback();
}

void WriteTogether::finish() {
    if (const auto connection = std::exchange(connection_, nullptr)) connection->commit();
}

Database::RowState Database::row_state() const {
    Connection& connection = opened(connection_);
    return {connection.data_version(), connection.changed_rows()};
}

namespace {

/// The connections of the process, by file, key and mode.
struct OpenStores {
    // cppcheck-suppress unusedStructMember
    std::map<std::string, std::weak_ptr<Connection>> connections;
};

} // namespace

Database OpenDatabase(const Text& path, bool exclusive, bool read_only, const Text& connect) {
    (void)exclusive; // stores are opened shared
    std::error_code error;
    const std::string file = std::filesystem::canonical(disk_path(path), error).string();
    if (error || !file_exists(path))
        throw RuntimeFault(fault_store_missing, u"Could not find file '" + path + u"'.");
    // An empty file would pass for a store without tables.
    if (FileLen(path) == 0) throw RuntimeFault(fault_store, u"Unrecognized database format '" + path + u"'.");
    const std::string key =
        connect.starts_with(u";pwd=") ? to_utf8(TextView(connect).substr(5)) : std::string();
    // A handle with another key does not profit from one that is open.
    std::weak_ptr<Connection>& kept =
        process().part<OpenStores>().connections[file + '\n' + key + (read_only ? "\nr" : "\nw")];
    Database database;
    database.connection_ = kept.lock();
    if (!database.connection_) {
        database.connection_ = std::make_shared<Connection>(file, read_only, key);
        kept = database.connection_;
    }
    return database;
}

} // namespace twk
