// SPDX-License-Identifier: MIT
#pragma once

#include "store/database.h"

#include <vector>

namespace twk {

/// Puts rows that a screen has deleted back into the project store, keys and all, in the order given: all of
/// them or, after a fault, none. A tie stays away when its box has gone or its keyword has got another one.
void put_back(Database& store, const std::vector<StoredRow>& rows);

} // namespace twk
