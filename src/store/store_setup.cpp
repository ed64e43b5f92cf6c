// SPDX-License-Identifier: MIT
#include "store/store_setup.h"

#include "platform/faults.h"
#include "platform/file_system.h"
#include "store/carry_over.h"
#include "store/store_file.h"

#include <cerrno>

namespace twk {

namespace {

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

/// Opens the file in the form that it has, carried over when that is not the common one and it may be
/// changed.
Opened open_any_form(const std::string& name, int flags, const std::string& key) {
    Opened opened = try_open(name, flags, key, CipherForm::common);
    if (key.empty() || opened.code != SQLITE_NOTADB || !reads_sha512(opened.db)) return opened;
    sqlite3_close_v2(opened.db);
    opened = try_open(name, flags, key, CipherForm::sha512);
    CipherForm now = CipherForm::sha512;
    if (opened.code == SQLITE_OK) {
        if (sqlite3_db_readonly(opened.db, "main") != 0) return opened;
        if (carry_over(opened.db, name, key)) now = CipherForm::common;
    } else if (opened.code == SQLITE_NOTADB) {
        now = CipherForm::common; // perhaps another process has just carried it over
    } else {
        return opened;
    }
    sqlite3_close_v2(opened.db);
    return try_open(name, flags, key, now);
}

/// Why the key does not open the file, as far as the library at hand can tell.
RuntimeFault refused_key(sqlite3* db, const Text& path) {
    if (reads_sha512(db)) return RuntimeFault(fault_store_password);
    return RuntimeFault(
        fault_store_password,
        u"Not a valid password. The store '" + path +
            u"' comes from Debian 13, where this program once encrypted it in a way that the library of "
            u"Debian 12 (SQLCipher " +
            from_utf8(cipher_version(db)) +
            u") cannot read, or it is damaged. Start this version of the program once on Debian 13 with the "
            u"store in its folder: that makes it a store for both. Then copy it back.");
}

} // namespace

sqlite3* open_store(const std::string& file, int flags, const std::string& key) {
    Opened opened = open_any_form(file, flags, key);
    if ((opened.code == SQLITE_CANTOPEN || opened.code == SQLITE_READONLY) &&
        (flags & SQLITE_OPEN_CREATE) == 0) {
        sqlite3_close_v2(opened.db);
        opened = open_any_form(unchangeable(file), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, key);
    }
    if (opened.code == SQLITE_OK) return opened.db;
    // Even reading a store wants a little room beside it.
    const bool full = opened.code == SQLITE_FULL || sqlite3_system_errno(opened.db) == ENOSPC;
    const Text path = from_utf8(file);
    const RuntimeFault refused = refused_key(opened.db, path);
    sqlite3_close_v2(opened.db);
    if (full) throw RuntimeFault(fault_disk_full, u"Disk full: the store could not be opened.");
    switch (opened.code) {
    case SQLITE_BUSY:
        throw RuntimeFault(fault_store_locked,
                           u"The store is in use by another program; it could not be locked.");
    case SQLITE_CANTOPEN:
        throw RuntimeFault(fault_store_missing, u"Could not open the file '" + path + u"'.");
    case SQLITE_NOTADB:
        if (!key.empty()) throw refused;
        throw RuntimeFault(fault_store, u"Unrecognized database format '" + path + u"'.");
    default: throw RuntimeFault(fault_store, u"The store '" + path + u"' cannot be read.");
    }
}

void create_store(const Text& path, const std::string& schema, const std::string& key) {
    if (file_exists(path)) throw RuntimeFault(fault_path_access, u"There is a store already: " + path);
    sqlite3* const db = open_store(to_utf8(path), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, key);
    char* why = nullptr;
    // With a log beside the file a write waits for the disk once.
    const bool made = run_own(db, "PRAGMA journal_mode = WAL") &&
                      sqlite3_exec(db, schema.c_str(), nullptr, nullptr, &why) == SQLITE_OK;
    const Text reason = why != nullptr ? from_utf8(why) : Text();
    sqlite3_free(why);
    sqlite3_close_v2(db);
    if (!made) throw RuntimeFault(fault_store, u"The tables of the store could not be made: " + reason);
}

} // namespace twk
