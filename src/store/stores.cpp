// SPDX-License-Identifier: MIT
#include "store/stores.h"

#include "platform/desktop.h"

namespace twk {

Database open_hive() {
    return OpenDatabase(beside_program(u"hive.mdb"), false, false, u";pwd=" + from_utf8(hive_key));
}

Database open_synonyms() {
    return OpenDatabase(beside_program(u"synonyms.mdb"), false, false);
}

} // namespace twk
