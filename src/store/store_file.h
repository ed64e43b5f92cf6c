// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <sqlcipher/sqlite3.h>

/// A store file and the ways in which it is encrypted.
namespace twk {

/// `common` is what SQLCipher 3.4 (Debian 12) and 4.x (Debian 13) both read and write, and what every store
/// is made in. `sha512` is what builds on Debian 13 made for a while; 3.4 cannot read it.
enum class CipherForm { common, sha512 };

struct Opened {
    sqlite3* db; ///< to be closed by the caller, whatever the code
    int code;    ///< SQLITE_OK when the key fits, SQLITE_NOTADB when it does not or the form is another
};

/// Opens the file with its key ("" for none) in that form, text compared without regard to case, waiting up
/// to five seconds for another process.
Opened try_open(const std::string& name, int flags, const std::string& key, CipherForm form);

/// Sets the parameters of the form on a database of the connection ("main", or one that was attached).
bool set_form(sqlite3* db, const std::string& database, CipherForm form);

/// Whether the library at hand can read the form `sha512`.
bool reads_sha512(sqlite3* db);

/// Version of the library at hand, as "3.4.1".
std::string cipher_version(sqlite3* db);

/// Runs what the store itself wants to be run; false when it fails.
bool run_own(sqlite3* db, const std::string& sql);

/// First value of the first row, empty when there is none or the statement fails.
std::string value_of(sqlite3* db, const std::string& sql);

/// The text between single quotes, those in it doubled.
std::string quoted(const std::string& text);

} // namespace twk
