// SPDX-License-Identifier: MIT
#pragma once

#include "inputs/form3.h"
#include "platform/numbers.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "support/temp_app.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace twk::test {

/// A project "garden" of key 1 that is open, with what a test puts into the store before `form()` loads
/// Step 2.
class StepTwo : public testing::Test {
  protected:
    StepTwo() {
        app.run(u"insert into Projects ( name ) values ( 'garden' ) ");
        app.run(u"insert into Projects ( name ) values ( 'other' ) ");
        screen<Form2>().txt_name[0].text = u"garden";
        module1().pid_actual = 1;
    }

    Form3& form() { return screen<Form3>(); }
    bool click(const std::string& control, int index = -1) {
        return screens().fire<Form3>(control, "Click", index);
    }

    void store_keyword(const Text& keyword, int pid = 1) {
        app.run(u"insert into keywords ( pid , keyword ) values ( " + to_text(pid) + u" , '" + keyword +
                u"' ) ");
    }
    void store_subkeyword(int keyid, const Text& element) {
        app.run(u"insert into elements ( catid , element ) values ( " + to_text(keyid) + u" , '" + element +
                u"' ) ");
    }

    static std::string joined(const std::vector<Text>& entries) {
        Text all;
        for (const Text& entry : entries) all += (all.empty() ? u"" : u"|") + entry;
        return to_utf8(all);
    }
    std::string keywords() { return joined(form().List1.entries()); }
    std::string subkeywords() { return joined(form().List2.entries()); }
    /// One column of a statement's rows, as the store has them.
    std::string stored(const Text& statement, TextView column) {
        std::vector<Text> all;
        for (Recordset row = app.hive().OpenRecordset(statement); !row.eof(); row.MoveNext())
            all.push_back(row.Fields(column).text());
        return joined(all);
    }
    std::string stored_keywords() { return stored(u"select * from keywords where pid = 1", u"keyword"); }
    std::string stored_subkeywords(int keyid) {
        return stored(u"select * from elements where catid = " + to_text(keyid), u"element");
    }

    static void select(ListBox& list, const std::vector<int>& marked) {
        list.select_from_user(marked.empty() ? -1 : marked.back(), marked);
    }
    void select_keyword(int index) {
        select(form().List1, {index});
        click("List1");
    }
    void select_subkeyword(int index) {
        select(form().List2, {index});
        click("List2");
    }
    /// Types a keyword, or a subkeyword, and presses Enter.
    void type_keyword(const Text& text) {
        form().Text1.text = text;
        screens().fire<Form3>("Text1", "Enter");
    }
    void type_subkeyword(const Text& text) {
        form().Text2.text = text;
        screens().fire<Form3>("Text2", "Enter");
    }
    static Text words(int count) {
        Text all;
        for (int i = 0; i < count; ++i) all += u"abc ";
        return all;
    }

    TempApp app;
};

} // namespace twk::test
