#pragma once

#include "store/database.h"

namespace twk {

/// Path of a file in the application folder.
Text beside_program(TextView file);

/// New handles on the project store and on the synonym store. Faults as `OpenDatabase` tells them.
Database open_hive();
Database open_synonyms();

} // namespace twk
