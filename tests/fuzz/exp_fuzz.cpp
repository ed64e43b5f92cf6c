// SPDX-License-Identifier: MIT
// Any bytes as a keyword list, exported or general: what the list shows is what the store holds.

#include "fuzz_app.h"
#include "inputs/form3.h"
#include "platform/file_system.h"
#include "shell/form2.h"
#include "shell/module1.h"

using namespace twk;

namespace {

/// One project's store, emptied for every input. Keys are never used again and end at 32767, so that a new
/// store takes its place in time.
class Store {
  public:
    explicit Store(test::TempApp& app) : app_(app) {
        std::filesystem::create_directory(app.folder() / "lists");
        app.run(u"insert into Projects ( name ) values ( 'any' )");
        fresh_ = app.read(u"hive.mdb");
        hive_ = app.hive(); // kept open: a new connection derives its key anew
    }

    void empty() {
        for (const char16_t* table : {u"keywords", u"elements"}) hive_.Execute(u"delete from " + Text(table));
        if (highest_ < 25000) return;
        hive_ = Database();
        app_.write(u"hive.mdb", fresh_);
        hive_ = app_.hive();
        highest_ = 0;
    }

    /// Every keyword of the store stands in the list, and no entry without its row.
    void require_list() {
        std::vector<Text> stored;
        for (Recordset row = hive_.OpenRecordset(u"select * from keywords"); !row.eof(); row.MoveNext()) {
            stored.push_back(row.Fields(u"keyword").text());
            highest_ = row.Fields(u"keyid").number();
        }
        fuzz::require(stored == screen<Form3>().List1.entries());
    }

  private:
    test::TempApp& app_;
    std::string fresh_;
    Database hive_;
    double highest_ = 0;
};

void import(test::TempApp& app, bool general) {
    Form3& step = screen<Form3>();
    step.Dir2.set_path(app.path(u"lists"));
    step.File2.set_pattern(u"*.*");
    step.File2.set_path(app.path(u"lists"));
    step.File2.list_index = 0;
    step.op_imp[0].value = !general;
    step.op_imp[1].value = general;
    screens().fire<Form3>("Command20", "Click");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    test::TempApp& app = fuzz::app();
    static Store& store = *new Store(app);
    store.empty();
    app.write(u"lists/any.exp", fuzz::bytes(data + 1, size - 1));
    module1().pid_actual = 1;
    screen<Form2>().txt_name[0].text = u"any";
    import(app, data[0] % 2 == 1);
    store.require_list();
    screens().unload_all();
    return 0;
}
