// SPDX-License-Identifier: MIT
#include "store/store_file.h"

#include "platform/text.h"

#include <algorithm>
#include <cstdlib>

namespace twk {

namespace {

constexpr int busy_milliseconds = 5000;

int compare_units(TextView a, TextView b) {
    const std::size_t both = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < both; ++i)
        if (const int order = lower(a[i]) - lower(b[i]); order != 0) return order;
    return a.size() < b.size() ? -1 : a.size() > b.size();
}

/// Compares without regard to case, for all letters and not for ASCII alone. Takes the place of the library's
/// own.
int compare_texts(void*, int length_a, const void* a, int length_b, const void* b) {
    const std::string_view first(static_cast<const char*>(a), static_cast<std::size_t>(length_a));
    const std::string_view second(static_cast<const char*>(b), static_cast<std::size_t>(length_b));
    const std::size_t both = std::min(first.size(), second.size());
    for (std::size_t i = 0; i < both; ++i) {
        const auto x = static_cast<unsigned char>(first[i]), y = static_cast<unsigned char>(second[i]);
        if ((x | y) >= 0x80) return compare_units(from_utf8(first), from_utf8(second));
        if (x != y)
            if (const int order = lower(x) - lower(y); order != 0) return order;
    }
    return first.size() < second.size() ? -1 : first.size() > second.size();
}

} // namespace

bool run_own(sqlite3* db, const std::string& sql) {
    return sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::string value_of(sqlite3* db, const std::string& sql) {
    std::string value;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db, sql.c_str(), -1, &statement, nullptr) == SQLITE_OK &&
        sqlite3_step(statement) == SQLITE_ROW)
        if (const auto* text = sqlite3_column_text(statement, 0); text != nullptr)
            value = reinterpret_cast<const char*>(text);
    sqlite3_finalize(statement);
    return value;
}

std::string quoted(const std::string& text) {
    std::string out = "'";
    for (const char c : text) out.append(c == '\'' ? 2 : 1, c);
    return out + "'";
}

std::string cipher_version(sqlite3* db) {
    const std::string version = value_of(db, "PRAGMA cipher_version");
    return version.substr(0, version.find(' '));
}

bool reads_sha512(sqlite3* db) {
    return std::atoi(cipher_version(db).c_str()) >= 4;
}

bool set_form(sqlite3* db, const std::string& database, CipherForm form) {
    const std::string pragma = "PRAGMA " + database + ".";
    const std::string hash = form == CipherForm::sha512 ? "SHA512" : "SHA1";
    // The password stands in the program; many rounds would only make opening slow. 3.4 knows SHA-1 alone and
    // steps over the pragmas that name an algorithm.
    return run_own(db, pragma + "cipher_page_size = 4096") && run_own(db, pragma + "kdf_iter = 4000") &&
           run_own(db, pragma + "cipher_hmac_algorithm = HMAC_" + hash) &&
           run_own(db, pragma + "cipher_kdf_algorithm = PBKDF2_HMAC_" + hash) &&
           run_own(db, pragma + "cipher_use_hmac = ON") &&
           run_own(db, pragma + "cipher_plaintext_header_size = 0");
}

Opened try_open(const std::string& name, int flags, const std::string& key, CipherForm form) {
    Opened opened{nullptr, SQLITE_OK};
    opened.code = sqlite3_open_v2(name.c_str(), &opened.db, flags, nullptr);
    if (opened.code != SQLITE_OK) return opened;
    sqlite3_busy_timeout(opened.db, busy_milliseconds);
    sqlite3_create_collation_v2(opened.db, "NOCASE", SQLITE_UTF8, nullptr, compare_texts, nullptr);
    // Later libraries tell of a key that does not fit on the standard error; here it is a fault.
    run_own(opened.db, "PRAGMA cipher_log_level = NONE");
    if (!key.empty() &&
        !(run_own(opened.db, "PRAGMA key = " + quoted(key)) && set_form(opened.db, "main", form))) {
        opened.code = SQLITE_ERROR;
        return opened;
    }
    // A write is on the disk when its statement has returned. Reading the tables' names proves that the key
    // fits.
    opened.code = sqlite3_exec(opened.db, "PRAGMA synchronous = FULL; SELECT count(*) FROM sqlite_master;",
                               nullptr, nullptr, nullptr);
    return opened;
}

} // namespace twk
