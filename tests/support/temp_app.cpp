// SPDX-License-Identifier: MIT
#include "support/temp_app.h"

#include "store/store_setup.h"
#include "store/stores.h"

#include <cstdlib>
#include <fstream>
#include <optional>
#include <sstream>

namespace twk::test {

namespace fs = std::filesystem;

std::string bytes_of(const fs::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

fs::path golden(const std::string& name) {
    return fs::path(TEST_GOLDEN_DIR) / name;
}

namespace {

fs::path new_folder() {
    std::string name = (fs::temp_directory_path() / "tarnwick-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    return name;
}

/// Bytes of a fresh store; made once, as making one waits for the disk several times.
std::string fresh_store(const char* schema, const std::string& key) {
    const fs::path folder = new_folder();
    const fs::path file = folder / "fresh.mdb";
    create_store(from_utf8(file.string()), bytes_of(fs::path(TEST_DATA_DIR) / schema), key);
    std::string bytes = bytes_of(file);
    fs::remove_all(folder);
    return bytes;
}

void deliver(const fs::path& folder) {
    const fs::path data = TEST_DATA_DIR;
    for (const char* name : {"twk.dat", "TIPOFDAY.TXT", "help.htm", "Images", "swf"})
        if (fs::exists(data / name)) fs::copy(data / name, folder / name, fs::copy_options::recursive);
}

} // namespace

TempApp::TempApp(fs::path folder)
    : clock(std::make_shared<FixedClock>(LocalTime{2026, 11, 24, 10, 18, 5, 0})), folder_(std::move(folder)) {
    guard_.emplace(desktop, from_utf8(folder_.string()), clock, 1);
}

TempApp::TempApp() : TempApp(new_folder()) {
    temporary_ = true;
    static const std::string hive_bytes = fresh_store("schema_hive.sql", "lantern4821");
    static const std::string synonyms_bytes = fresh_store("schema_synonyms.sql", "");
    write(u"hive.mdb", hive_bytes);
    write(u"synonyms.mdb", synonyms_bytes);
    deliver(folder_);
}

TempApp::~TempApp() {
    guard_.reset();
    std::error_code error;
    if (temporary_) fs::remove_all(folder_, error);
}

Text TempApp::path(TextView relative) const {
    return joined_path(app_path(), relative);
}

void TempApp::write(TextView relative, std::string_view bytes) const {
    const fs::path file = to_utf8(path(relative));
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
}

std::string TempApp::read(TextView relative) const {
    return bytes_of(to_utf8(path(relative)));
}
bool TempApp::exists(TextView relative) const {
    return fs::exists(to_utf8(path(relative)));
}

Database TempApp::hive() const {
    return OpenDatabase(path(u"hive.mdb"), false, false, u";pwd=lantern4821");
}
Database TempApp::synonyms() const {
    return OpenDatabase(path(u"synonyms.mdb"), false, false, u"");
}

int TempApp::query(const Text& sql, TextView store, EachRow each, void* into) const {
    sqlite3* const db = open_store(to_utf8(path(store)), SQLITE_OPEN_READWRITE,
                                   same_text(store, u"hive.mdb") ? hive_key : "");
    const int code = sqlite3_exec(db, to_utf8(sql).c_str(), each, into, nullptr);
    sqlite3_close_v2(db);
    return code;
}

void TempApp::run(const Text& statement, TextView store) const {
    if (query(statement, store, nullptr, nullptr) != SQLITE_OK) throw std::runtime_error(to_utf8(statement));
}

std::string TempApp::rows_of(const std::string& sql) const {
    std::string all;
    const auto add = [](void* rows, int columns, char** values, char**) {
        auto& text = *static_cast<std::string*>(rows);
        if (!text.empty()) text += '|';
        for (int i = 0; i < columns; ++i)
            text.append(i > 0 ? "," : "").append(values[i] != nullptr ? values[i] : "null");
        return 0;
    };
    const bool other = sql.find("from synonyms") != std::string::npos;
    const int code = query(from_utf8(sql), other ? u"synonyms.mdb" : u"hive.mdb", add, &all);
    return code == SQLITE_OK ? all : "error " + std::to_string(code);
}

std::string TempApp::all_rows() const {
    std::string all;
    const auto add = [](void* rows, int columns, char** values, char**) {
        auto& text = *static_cast<std::string*>(rows);
        for (int i = 0; i < columns; ++i) text.append(values[i] != nullptr ? values[i] : "null").append("|");
        text += '\n';
        return 0;
    };
    for (const char16_t* table : {u"Projects", u"keywords", u"elements", u"content", u"ties", u"host",
                                  u"host1", u"target", u"sqlite_master"})
        query(u"select * from " + Text(table), u"hive.mdb", add, &all);
    return all;
}

Text TempApp::value(const Text& statement, TextView column) const {
    std::pair<std::string, std::optional<Text>> wanted(to_utf8(column), std::nullopt);
    const auto take = [](void* into, int columns, char** values, char** names) {
        auto& [name, value] = *static_cast<decltype(wanted)*>(into);
        for (int i = 0; i < columns && !value; ++i)
            if (name == names[i]) value = from_utf8(values[i] != nullptr ? values[i] : "");
        return 0;
    };
    if (query(statement, u"hive.mdb", take, &wanted) != SQLITE_OK)
        throw std::runtime_error(to_utf8(statement));
    return wanted.second.value_or(Text());
}

int TempApp::count(const Text& statement, TextView store) const {
    int rows = 0;
    const auto add = [](void* into, int, char**, char**) {
        ++*static_cast<int*>(into);
        return 0;
    };
    if (query(statement, store, add, &rows) != SQLITE_OK) throw std::runtime_error(to_utf8(statement));
    return rows;
}

} // namespace twk::test
