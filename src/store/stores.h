// SPDX-License-Identifier: MIT
#pragma once

#include "store/database.h"

namespace twk {

/// The key of the project store.
inline constexpr const char* hive_key = "lantern4821";

/// New handles on the project store and on the synonym store. Faults as `OpenDatabase` tells them.
Database open_hive();
Database open_synonyms();

} // namespace twk
