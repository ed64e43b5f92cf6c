// SPDX-License-Identifier: MIT
// Good files with some of their bytes changed, doubled or lost: whatever they have become, what is made of
// them is sound.

#include "engine/form17.h"
#include "inputs/form3.h"
#include "settings/form6.h"
#include "settings/settings_file.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "support/faults.h"
#include "support/temp_app.h"

#include <random>

namespace twk::test {
namespace {

class AnyBytes : public testing::Test {
  protected:
    AnyBytes() { app.desktop.always(u"", Answer::ok); }

    std::size_t below(std::size_t n) { return draw_() % n; }

    std::string disturbed(std::string bytes) {
        for (std::size_t i = 1 + below(8); i > 0 && !bytes.empty(); --i) {
            const std::size_t at = below(bytes.size()), length = below(40);
            switch (below(4)) {
            case 0: bytes[at] = static_cast<char>(draw_()); break;
            case 1: bytes.erase(at, length); break;
            case 2: bytes.insert(at, bytes.substr(below(bytes.size()), length)); break;
            default: bytes.insert(at, 1, "=;*\"\r\n#"[below(8)]); // or a zero
            }
        }
        return bytes;
    }

    TempApp app;

  private:
    std::mt19937 draw_{1};
};

TEST_F(AnyBytes, AsSettingsAreSavedAgainOrToldNotToBe) {
    const std::string good = app.read(u"twk.dat");
    int saved = 0;
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE(round);
        app.write(u"any.dat", disturbed(good));
        app.write(u"saved.dat", "before");
        Form6 form;
        if (round % 2 == 0) tomar_de_dat(form, app.path(u"twk.dat")); // on top of the delivered strategy
        fault_of([&] { tomar_de_dat(form, app.path(u"any.dat")); });  // a number that is none ends the load
        app.desktop.messages.clear();
        guardar_dat(form, app.path(u"saved.dat")); // a list that stayed empty cannot be saved
        const bool told = app.desktop.last_message() == u"File wasn't saved.";
        EXPECT_EQ(told, app.read(u"saved.dat") == "before");
        EXPECT_TRUE(told || app.read(u"saved.dat").ends_with("\r\n#\r\n"));
        saved += told ? 0 : 1;
    }
    EXPECT_GT(saved, 50);
}

TEST_F(AnyBytes, AsKeywordListsLeaveScreenAndStoreAlike) {
    app.run(u"insert into Projects ( name ) values ( 'any' )");
    std::filesystem::create_directory(app.folder() / "lists");
    Database hive = app.hive(); // spares every statement the opening
    std::string good = "#\r\n# list\r\n\r\n";
    for (const char* word : {"roses", "red tulips", "caf\xC3\xA9 lilies", "late ferns"})
        good += std::string(" 1.= ") + word + "\r\n Subkeyword 1.= below\r\n";
    std::size_t imported = 0;
    for (int round = 0; round < 100; ++round) {
        SCOPED_TRACE(round);
        for (const char16_t* table : {u"keywords", u"elements"}) hive.Execute(u"delete from " + Text(table));
        app.write(u"lists/any.exp", disturbed(good));
        module1().pid_actual = 1;
        screen<Form2>().txt_name[0].text = u"any";
        Form3& step = screen<Form3>();
        step.Dir2.set_path(app.path(u"lists"));
        step.File2.set_pattern(u"*.*");
        step.File2.set_path(app.path(u"lists"));
        step.File2.list_index = 0;
        step.op_imp[0].value = round % 2 == 0;
        step.op_imp[1].value = round % 2 == 1; // any file, by lines
        screens().fire<Form3>("Command20", "Click");
        std::vector<Text> stored;
        for (Recordset row = hive.OpenRecordset(u"select * from keywords"); !row.eof(); row.MoveNext())
            stored.push_back(row.Fields(u"keyword").text());
        EXPECT_EQ(stored, step.List1.entries());
        imported += stored.size();
        screens().unload_all();
    }
    EXPECT_GT(imported, 100U);
}

TEST_F(AnyBytes, AsPageNamesKeepTheirNumberOrLackOne) {
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE(round);
        app.write(u"any.fnm",
                  disturbed("#\r\n# Host: h\r\na.htm\r\n     # Host: h\r\nb.htm\r\nc.htm\r\n#\r\n"));
        Form17& step = screen<Form17>();
        const int count = round % 16;
        for (int i = 0; i < count; ++i) {
            step.List1.add_item(Text(1, static_cast<char16_t>(u'a' + i)) + u".htm");
            step.List2.add_item(u"http://host.com");
        }
        app.desktop.open_files.push_back(app.path(u"any.fnm"));
        screens().fire<Form17>("Command3", "Click");
        EXPECT_LE(step.List1.list_count(), count);
        EXPECT_GE(step.List1.list_count(), count - 1); // one short is left so
        EXPECT_EQ(step.List2.list_count(), count);
        screens().unload_all();
    }
}

} // namespace
} // namespace twk::test
