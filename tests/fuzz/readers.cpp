// SPDX-License-Identifier: MIT
#include "fuzz/readers.h"

#include "engine/form17.h"
#include "inputs/form3.h"
#include "platform/faults.h"
#include "settings/form6.h"
#include "settings/settings_file.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "support/temp_app.h"

namespace twk::fuzz {

namespace {

test::TempApp& app() {
    // Never destroyed: a fuzzer ends in the middle of things.
    static test::TempApp& one = []() -> test::TempApp& {
        auto* const made = new test::TempApp;
        made->desktop.always(u"", Answer::ok);
        return *made;
    }();
    return one;
}

void require(bool holds, const char* what) {
    if (!holds) throw std::logic_error(what);
}

/// One project's store, emptied for every input. Keys are never used again and end at 32767, so that a new
/// store takes its place in time.
struct Store {
    Store() {
        app().run(u"insert into Projects ( name ) values ( 'any' )");
        fresh = app().read(u"hive.mdb");
        hive = app().hive(); // kept open: a new connection derives its key anew
    }
    void empty() {
        for (const StatementName table : {StatementName(u"keywords"), StatementName(u"elements")})
            hive.Execute({u"delete from {}", table});
        if (highest < 25000) return;
        hive = Database();
        app().write(u"hive.mdb", fresh);
        hive = app().hive();
        highest = 0;
    }

    std::string fresh;
    Database hive;
    double highest = 0;
};

} // namespace

bool settings(std::string_view bytes) {
    app().write(u"any.dat", bytes);
    Form6 form;
    if (bytes.size() % 2 == 0) tomar_de_dat(form, app().path(u"twk.dat")); // on top of the delivered strategy
    const auto load = [](Form6& into, TextView file) {
        try {
            tomar_de_dat(into, app().path(file));
        } catch (const RuntimeFault&) { // a number that is none ends the load
        }
    };
    load(form, u"any.dat");
    // A list that stayed empty cannot be saved. That is told, and a file that was there before stays.
    std::filesystem::remove(app().folder() / "saved.dataux");
    app().write(u"saved.dat", "before");
    app().desktop.messages.clear();
    guardar_dat(form, app().path(u"saved.dat"));
    const std::string saved = app().read(u"saved.dat");
    const bool told = app().desktop.last_message() == u"File wasn't saved.";
    require(told == (saved == "before"), "told, or saved");
    require(told || saved.ends_with("\r\n#\r\n"), "saved whole");
    Form6 again;
    load(again, u"saved.dat");
    screens().unload_all();
    return !told;
}

int keywords(std::string_view bytes) {
    app().desktop.messages.clear();
    static Store& store = *new Store;
    store.empty();
    app().write(u"lists/any.exp", bytes.substr(1));
    module1().pid_actual = 1;
    screen<Form2>().txt_name[0].text = u"any";
    Form3& step = screen<Form3>();
    step.Dir2.set_path(app().path(u"lists"));
    step.File2.set_pattern(u"*.*");
    step.File2.set_path(app().path(u"lists"));
    step.File2.list_index = 0;
    step.op_imp[0].value = bytes[0] % 2 == 0;
    step.op_imp[1].value = bytes[0] % 2 != 0;
    screens().fire<Form3>("Command20", "Click");
    std::vector<Text> stored;
    for (const auto row : store.hive.OpenRecordset({u"select * from keywords"})) {
        stored.push_back(row.Fields(u"keyword").text());
        store.highest = row.Fields(u"keyid").number();
    }
    require(stored == step.List1.entries(), "listed as stored");
    screens().unload_all();
    return static_cast<int>(stored.size());
}

int page_names(std::string_view bytes) {
    app().desktop.messages.clear();
    app().write(u"any.fnm", bytes.substr(1));
    Form17& step = screen<Form17>();
    const int count = bytes[0] & 15;
    for (int i = 0; i < count; ++i) {
        step.List1.add_item(Text(1, static_cast<char16_t>(u'a' + i)) + u".htm");
        step.List2.add_item(u"http://host.com");
    }
    app().desktop.open_files.push_back(app().path(u"any.fnm"));
    screens().fire<Form17>("Command3", "Click");
    const int named = step.List1.list_count();
    require(named <= count && named >= count - 1, "as many names, or one short");
    require(step.List2.list_count() == count, "every host");
    screens().unload_all();
    return named;
}

} // namespace twk::fuzz
