// SPDX-License-Identifier: MIT
#include "inputs/form7.h"

#include "assist/help.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "settings/form6.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "store/statements.h"
#include "store/stores.h"

#include <algorithm>

namespace twk {

namespace {

constexpr TextView scheme = u"http://";

/// What stands in the box until a main directory has been chosen.
Text placeholder() {
    return module1().url_sitio + u"/HOST";
}

bool ends_in_slash(TextView url) {
    return url.ends_with(u'/') || url.ends_with(u'\\');
}

} // namespace

void Form7::enumerate(ScreenMap& map) {
    map.events<&Form7::Command1_Click, &Form7::Command2_Click, &Form7::Command3_Click,
               &Form7::Command7_Click>(*this);
}

void Form7::Form_Load() {
    base_datos = open_hive();
    take_last_key(base_datos.OpenRecordset({u"select Projects.pid as X1 from Projects where name = '{}' ",
                                            screen<Form2>().txt_name[0].text()}),
                  u"x1", pid_form);
    Text2.text = placeholder();
    for (const auto row : base_datos.OpenRecordset(statements::rows_of_project(u"host1", pid_form)))
        Text2.text = Trim(row.Fields(u"host").text());
    for (const auto row : base_datos.OpenRecordset(statements::rows_of_project(u"host", pid_form)))
        List1.add_item(row.Fields(u"host").text());
}

Text Form7::directory_refusal(const Text& main, const std::vector<Text>& others) {
    if (!contains(main, scheme)) return u"URL must have 'http://'";
    const Text trimmed = Trim(main);
    if (trimmed == placeholder()) return u"You must enter an URL to host the gateway pages";
    const Text main_host = LCase(trimmed);
    const auto same = [&](const Text& other) { return LCase(Trim(other)) == main_host; };
    if (std::any_of(others.begin(), others.end(), same)) return u"Main host can't be the same as Other Host!";
    if (ends_in_slash(trimmed)) return u"Main Gateway Domain can't end in / or \\";
    return {};
}

bool Form7::main_directory_valid() {
    const Text refusal = directory_refusal(Text2.text(), List1.entries());
    if (contains(Text2.text(), scheme)) Text2.text = Trim(Text2.text());
    if (!refusal.empty()) MsgBox(refusal);
    return refusal.empty();
}

void Form7::Command1_Click() {
    if (!main_directory_valid()) return;
    base_datos = open_hive();
    if (trim_view(Text2.text()).empty()) { // a safety only
        MsgBox(u"Main Gateway Domain to Host is not valid!");
        return;
    }
    WriteTogether replaced(base_datos); // never without a main directory
    base_datos.Execute(statements::delete_rows_of_project(u"host1", pid_form));
    base_datos.Execute({u"insert into host1 ( pid , host ) values ( {} , '{}' ) ", pid_form, Text2.text()});
    replaced.finish();
    screens().bring_forward<Form6>(); // as it is, when it is loaded
}

bool Form7::entry_valid() {
    const auto refuse = [this](const Text& message) {
        MsgBox(message);
        Text1.set_focus();
        return false;
    };
    if (!contains(Text1.text(), scheme)) return refuse(u"URL must have 'http://'");
    if (Left(LCase(Trim(Text1.text())), Len(scheme)) != scheme)
        return refuse(u"URL must start with 'http://'");
    if (Len(Text1.text()) == Len(scheme)) return refuse(u"URL must contain a site");
    return !trim_view(Text1.text()).empty();
}

void Form7::Command2_Click() {
    if (!entry_valid()) return;
    if (ends_in_slash(Text1.text())) Text1.text = Left(Text1.text(), Len(Text1.text()) - 1); // one, silently
    // Exactly 19: the main directory is the twentieth, and a longer list from the store takes more.
    if (List1.list_count() == 19) {
        MsgBox(u"You can define just 20 domain names");
        return;
    }
    base_datos = open_hive();
    const Statement equal_ones{u"select * from host where host = '{}' and pid = {}", Text1.text(), pid_form};
    if (!base_datos.OpenRecordset(equal_ones).eof()) {
        MsgBox(u"You can't define 2 equal host");
        return;
    }
    status = 1;
    if (trim_view(Text1.text()) == trim_view(Text2.text())) {
        status = 2;
        MsgBox(u"You can't define the same URL in Main Host and other Domain/Directory");
    }
    if (status != 1) return;
    base_datos.Execute({u"insert into host ( pid , host ) values ( {} , '{}' ) ", pid_form, Text1.text()});
    List1.add_item(Text1.text());
    Text1.set_focus(); // keeps its text, ready for a variation
}

void Form7::Command3_Click() {
    base_datos.Execute({u"delete from host where pid = {} and host= '{}' ", pid_form, List1.text()});
    if (List1.list_index() >= 0) List1.remove_item(List1.list_index());
}

void Form7::Command7_Click() {
    mostrar_ayuda(u"form7");
}

} // namespace twk
