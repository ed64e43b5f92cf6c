// SPDX-License-Identifier: MIT
#include "store/store_setup.h"

#include "platform/faults.h"
#include "platform/files.h"

#include <algorithm>
#include <cerrno>

namespace twk {

namespace {

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

bool run(sqlite3* db, const std::string& sql) {
    return sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::string quoted(const std::string& text) {
    std::string out = "'";
    for (const char c : text) out.append(c == '\'' ? 2 : 1, c);
    return out + "'";
}

/// The password stands in the program; many rounds would only make opening slow.
bool set_cipher(sqlite3* db, const std::string& key) {
    return run(db, "PRAGMA key = " + quoted(key)) && run(db, "PRAGMA cipher_page_size = 4096") &&
           run(db, "PRAGMA kdf_iter = 4000") && run(db, "PRAGMA cipher_hmac_algorithm = HMAC_SHA512") &&
           run(db, "PRAGMA cipher_kdf_algorithm = PBKDF2_HMAC_SHA512") &&
           run(db, "PRAGMA cipher_use_hmac = ON") && run(db, "PRAGMA cipher_plaintext_header_size = 0");
}

struct Opened {
    sqlite3* db;
    int code;
};

/// Opens, sets the cipher, and reads the schema, which proves that the key fits.
Opened try_open(const std::string& name, int flags, const std::string& key) {
    Opened opened{nullptr, SQLITE_OK};
    opened.code = sqlite3_open_v2(name.c_str(), &opened.db, flags, nullptr);
    if (opened.code != SQLITE_OK) return opened;
    sqlite3_create_collation_v2(opened.db, "NOCASE", SQLITE_UTF8, nullptr, compare_texts, nullptr);
    if (!key.empty() && !set_cipher(opened.db, key)) {
        opened.code = SQLITE_ERROR;
        return opened;
    }
    // A write is on the disk when its statement has returned.
    opened.code = sqlite3_exec(opened.db, "PRAGMA synchronous = FULL; SELECT count(*) FROM sqlite_master;",
                               nullptr, nullptr, nullptr);
    return opened;
}

/// Name of a file that nobody can change, as in a folder without write permission, where no log can stand.
std::string unchangeable(const std::string& file) {
    std::string name = "file:";
    for (const char c : file) {
        if (c == '?' || c == '#' || c == '%') {
            static constexpr char digits[] = "0123456789ABCDEF";
            name.append({'%', digits[(c >> 4) & 15], digits[c & 15]});
        } else {
            name.push_back(c);
        }
    }
    return name + "?immutable=1";
}

} // namespace

sqlite3* open_store(const std::string& file, int flags, const std::string& key) {
    Opened opened = try_open(file, flags, key);
    if ((opened.code == SQLITE_CANTOPEN || opened.code == SQLITE_READONLY) &&
        (flags & SQLITE_OPEN_CREATE) == 0) {
        sqlite3_close_v2(opened.db);
        opened = try_open(unchangeable(file), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, key);
    }
    if (opened.code == SQLITE_OK || opened.code == SQLITE_BUSY) return opened.db;
    // Even reading a store wants a little room beside it.
    const bool full = opened.code == SQLITE_FULL || sqlite3_system_errno(opened.db) == ENOSPC;
    sqlite3_close_v2(opened.db);
    if (full) throw RuntimeFault(fault_disk_full, u"Disk full: the store could not be opened.");
    const Text path = from_utf8(file);
    if (opened.code == SQLITE_CANTOPEN)
        throw RuntimeFault(fault_store_missing, u"Could not open the file '" + path + u"'.");
    if (opened.code != SQLITE_NOTADB)
        throw RuntimeFault(fault_store, u"The store '" + path + u"' cannot be read.");
    if (key.empty()) throw RuntimeFault(fault_store, u"Unrecognized database format '" + path + u"'.");
    throw RuntimeFault(fault_store_password);
}

void create_store(const Text& path, const std::string& schema, const std::string& key) {
    if (file_exists(path)) throw RuntimeFault(fault_path_access, u"There is a store already: " + path);
    sqlite3* const db = open_store(to_utf8(path), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, key);
    char* why = nullptr;
    // With a log beside the file a write waits for the disk once.
    const bool made = run(db, "PRAGMA journal_mode = WAL") &&
                      sqlite3_exec(db, schema.c_str(), nullptr, nullptr, &why) == SQLITE_OK;
    const Text reason = why != nullptr ? from_utf8(why) : Text();
    sqlite3_free(why);
    sqlite3_close_v2(db);
    if (!made) throw RuntimeFault(fault_store, u"The tables of the store could not be made: " + reason);
}

} // namespace twk
