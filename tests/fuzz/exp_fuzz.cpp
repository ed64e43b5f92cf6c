// Any bytes as a keyword list, exported or general: what the list shows is what the store holds.

#include "fuzz_app.h"
#include "inputs/form3.h"
#include "platform/files.h"
#include "shell/form2.h"
#include "shell/module1.h"

#include <algorithm>

using namespace twk;

namespace {

void empty_store(Database& hive) {
    for (const char16_t* table : {u"keywords", u"elements"}) hive.Execute(u"delete from " + Text(table));
}

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

/// Every keyword of the store stands in the list, and no entry without its row.
void require_list_as_stored(Database& hive) {
    std::vector<Text> stored;
    for (Recordset row = hive.OpenRecordset(u"select * from keywords"); !row.eof(); row.MoveNext())
        stored.push_back(row.Fields(u"keyword").text());
    fuzz::require(stored == screen<Form3>().List1.entries());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    test::TempApp& app = fuzz::app();
    static Database hive = app.hive(); // kept open: a new connection derives its key anew
    static const bool prepared = [&app] {
        std::filesystem::create_directory(app.folder() / "lists");
        app.run(u"insert into Projects ( name ) values ( 'any' )");
        return true;
    }();
    fuzz::require(prepared);
    empty_store(hive);
    app.write(u"lists/any.exp", fuzz::bytes(data + 1, size - 1));
    module1().pid_actual = 1;
    screen<Form2>().txt_name[0].text = u"any";
    import(app, data[0] % 2 == 1);
    require_list_as_stored(hive);
    screens().unload_all();
    return 0;
}
