// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <string>

#include <sqlcipher/sqlite3.h>

namespace twk {

/// Opens a store file with its key ("" for none), the cipher set in so many words and text compared without
/// regard to case. A store of the form that only later libraries read is carried over to the common one first
/// (`carry_over`), unless it is opened for reading alone. Faults 3024, 3031, 3260 and 3343 as `OpenDatabase`
/// tells them; 3031 says what to do when the library at hand cannot read such a store.
sqlite3* open_store(const std::string& file, int flags, const std::string& key);

/// Makes a new store with the given tables; for the build and the tests. Fault 75 when the file is there
/// already.
void create_store(const Text& path, const std::string& schema, const std::string& key);

} // namespace twk
