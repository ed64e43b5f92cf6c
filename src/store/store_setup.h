// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <string>

#include <sqlcipher/sqlite3.h>

namespace twk {

/// Opens a store file with its key ("" for none), the cipher set in so many words and text compared without
/// regard to case. Faults 3024, 3031 and 3343 as `OpenDatabase` tells them.
sqlite3* open_store(const std::string& file, int flags, const std::string& key);

/// Makes a new store with the given tables; for the build and the tests. Fault 75 when the file is there
/// already.
void create_store(const Text& path, const std::string& schema, const std::string& key);

} // namespace twk
