// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <sqlcipher/sqlite3.h>

namespace twk {

/// Carries the store that `from` has open over to the common form: a sibling is written and checked, the old
/// file stays under the name `<file>.debian13` (with ".2" and so on behind it when that is taken), and the
/// sibling takes the file's name. Whenever the program ends, a whole store with all rows stands under
/// `file`.
///
/// True when `file` is of the common form now, by this process or by another; `from` is then to be closed and
/// `file` to be opened again. False when another process has it open or the sibling could not be written: the
/// store is as it was, and `from` is to be closed as well, since it may still hold the file alone.
bool carry_over(sqlite3* from, const std::string& file, const std::string& key);

} // namespace twk
