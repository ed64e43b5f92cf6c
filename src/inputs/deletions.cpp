// SPDX-License-Identifier: MIT
#include "inputs/deletions.h"

#include "platform/numbers.h"

namespace twk {

namespace {

bool still_fits(Database& store, const StoredRow& tie) {
    const auto none = [&](const Text& rows) { return store.OpenRecordset(u"select * from " + rows).eof(); };
    return !none(u"content where cid = " + tie.value("cid").text()) &&
           none(u"ties where pid = " + tie.value("pid").text() + u" and keyid = " +
                tie.value("keyid").text());
}

} // namespace

void put_back(Database& store, const std::vector<StoredRow>& rows) {
    WriteTogether all(store);
    for (const StoredRow& row : rows)
        if (row.table != "ties" || still_fits(store, row)) store.put_back(row);
    all.finish();
}

} // namespace twk
