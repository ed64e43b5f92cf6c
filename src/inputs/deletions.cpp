// SPDX-License-Identifier: MIT
#include "inputs/deletions.h"

#include "platform/numbers.h"
#include "store/statements.h"

namespace twk {

namespace {

bool still_fits(Database& store, const StoredRow& tie) {
    const auto none = [&](const Statement& rows) { return store.OpenRecordset(rows).eof(); };
    return !none(statements::box(tie.value("cid").key())) &&
           none(statements::tie_of(tie.value("pid").key(), tie.value("keyid").key()));
}

} // namespace

void put_back(Database& store, const std::vector<StoredRow>& rows) {
    WriteTogether all(store);
    for (const StoredRow& row : rows)
        if (row.table != "ties" || still_fits(store, row)) store.put_back(row);
    all.finish();
}

} // namespace twk
