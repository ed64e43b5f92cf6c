// SPDX-License-Identifier: MIT
#include "shell/form2.h"

#include "assist/help.h"
#include "engine/text_toolkit.h"
#include "inputs/form3.h"
#include "platform/desktop.h"
#include "platform/fence.h"
#include "platform/numbers.h"
#include "shell/form1.h"
#include "shell/module1.h"
#include "store/statements.h"
#include "store/stores.h"

#include <algorithm>
#include <utility>

namespace twk {

namespace {

constexpr TextView should_begin = u"It should begin with ´http://´";

Text projects_folder() {
    return beside_program(u"Projects");
}

bool word_unit(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'-' ||
           c == u'_';
}

bool has_scheme(TextView url) {
    return contains(url, u"ttp://");
}
/// One letter is all that is looked at.
bool begins_with_h(TextView url) {
    return trim_view(url).starts_with(u'h');
}
bool ends_in_slash(TextView url) {
    const TextView trimmed = trim_view(url);
    return trimmed.ends_with(u'/') || trimmed.ends_with(u'\\');
}

/// Shows what stands against going on.
bool refused(const Text& message) {
    if (!message.empty()) MsgBox(message);
    return !message.empty();
}

/// Text of a box as it goes into a statement.
Text clean(const TextBox& box) {
    return preparar_texto(Text(box.text()));
}

} // namespace

void Form2::enumerate(ScreenMap& map) {
    map.events<&Form2::Command1_Click, &Form2::Command2_Click, &Form2::Command3_Click, &Form2::Command7_Click,
               &Form2::Command8_Click, &Form2::txt_url_LostFocus, &Form2::Text2_LostFocus>(*this);
}

void Form2::Form_Load() {
    // What the last project left shows here in a new one, too.
    if (!module1().url_sitio.empty()) txt_url[0].text = module1().url_sitio;
    if (!module1().url_webmaster.empty()) txt_url[2].text = module1().url_webmaster;
    if (module1().pid_actual != 0) Command2.caption = u"Modify/Next";
    if (!dir_exists(projects_folder())) MkDir(projects_folder());
}

Text Form2::site_name_refusal() const {
    const Text word = Text2[0].text();
    if (Len(word) < 3) return u"The word must have more than 3 characters"; // three pass
    const Text trimmed = Trim(word);
    if (is_reserved(trimmed)) return u"'Sitemap' and 'Index' are reserved words.";
    if (!std::all_of(trimmed.begin(), trimmed.end(), word_unit))
        return u"The word can only contain letters, numbers and dashes";
    return {};
}

int Form2::Revisar_Target(TextView) {
    const Text refusal = site_name_refusal();
    if (refusal.empty()) return 0;
    MsgBox(refusal);
    Text2[0].text = u"";
    Text2[0].set_focus();
    return 1;
}

void Form2::Text2_LostFocus(int index) {
    if (index == 0) Revisar_Target(Text2[0].text());
}

void Form2::txt_url_LostFocus(int index) {
    TextBox& box = txt_url.at(static_cast<std::size_t>(index));
    box.text = Trim(box.text());
}

void Form2::Command1_Click() {
    screens().unload<Form2>();
    screens().show<Form1>();
}

void Form2::Command3_Click() {
    mostrar_ayuda(u"form2");
}

void Form2::Command7_Click() {
    module1().url_sitio = txt_url[1].text(); // a scratch variable until the next Next
    List1.add_item(module1().url_sitio);
}

void Form2::Command8_Click() {
    if (List1.list_index() >= 0) List1.remove_item(List1.list_index());
}

void Form2::Command2_Click() {
    screens().unload<Form3>(); // even when refused below
    if (Revisar_Target(Text2[0].text()) == 1) return;
    module1().url_sitio = txt_url[0].text();
    module1().url_webmaster = txt_url[2].text();
    if (const Refusal field = field_refusal(); !field.message.empty()) {
        MsgBox(field.message);
        field.box->set_focus();
        return;
    }
    if (refused(address_refusal())) return;
    const Text project = Trim(txt_name[0].text());
    if (module1().pid_actual != 0 && project != module1().proyecto_actual)
        MsgBox(u"The project " + module1().proyecto_actual + u" has been renamed to " + project);
    base_datos_ = open_hive();
    bool name_taken = false;
    if (module1().pid_actual == 0)
        name_taken = !store_new_project();
    else
        update_project();
    store_targets(); // under key 0 after a Cancel, where nobody reads them
    // Only now, with everything saved.
    if (refused(slash_refusal()) || name_taken) return;
    make_folder();
    screens().bring_forward<Form3>();
    say(u"Project saved");
}

Form2::Refusal Form2::first_refusal() {
    if (Text project = site_name_refusal(); !project.empty()) return {std::move(project), &Text2[0]};
    if (Refusal field = field_refusal(); !field.message.empty()) return field;
    if (Text address = address_refusal(); !address.empty()) return {std::move(address), &txt_url[0]};
    return {slash_refusal(), &txt_url[0]};
}

int Form2::filled_fields() const {
    int filled = 0;
    for (const TextBox* box : {&txt_name[0], &Text2[0], &txt_url[0], &txt_dat[0], &txt_dat[1], &txt_dat[2]})
        if (!box->text().empty()) ++filled;
    return filled;
}

Form2::Refusal Form2::field_refusal() {
    if (txt_name[0].text().empty()) return {u"The Project must have a Name", &txt_name[0]};
    if (contains(txt_name[0].text(), u" "))
        return {u"The name of the project can`t contain spaces", &txt_name[0]};
    if (Text2[0].text().empty()) return {u"The Project must have a Target Site Name", &Text2[0]};
    if (txt_url[0].text().empty()) return {u"The Project must have a Target URL", &txt_url[0]};
    for (TextBox& box : txt_dat)
        if (box.text().empty()) return {u"Subject, Category and Description can´t be empty", &box};
    return {};
}

Text Form2::address_refusal() const {
    const Text& url = txt_url[0].text();
    if (!has_scheme(url))
        return u"The Target Site URL is invalid (" + Trim(url) + u")\n" + Text(should_begin);
    if (!begins_with_h(url)) return u"The Target Site URL is invalid: " + url + u"\n" + Text(should_begin);
    for (const Text& other : List1.entries())
        if (!has_scheme(other) || !begins_with_h(other))
            return u"This Other Target URL is invalid: " + other + u"\n" + Text(should_begin);
    return {};
}

Text Form2::slash_refusal() const {
    if (ends_in_slash(txt_url[0].text()))
        return u"You can't put a backward or fordward slash at the end of the Target Site URL";
    for (const Text& other : List1.entries())
        if (ends_in_slash(other))
            return u"You can't put a backward or fordward slash at the end of the an (Other) Target Site URL";
    return {};
}

/// Inserts the project, in the place of one of the same name when the user agrees. False when he does not.
bool Form2::store_new_project() {
    const Text project = txt_name[0].text();
    const Recordset same_name =
        base_datos_.OpenRecordset({u"SELECT * From Projects where name = '{}' ", project});
    std::int16_t pid = 0; // none to be replaced
    if (!same_name.eof()) {
        take_last_key(same_name, u"pid", pid);
        if (ask_before_loss(
                u"There's another project named " + project +
                    u"! \nDo you want to replace it?\nAll data related to the old project (keywords, "
                    u"contents, settings) will be lost.",
                Buttons::ok_cancel, u"Replace project?",
                u"Lost: the properties, keywords, content boxes and secondary hosts of " + project +
                    u"\nKept: the files in its folder") != Answer::ok)
            return false;
    }
    WriteTogether replaced(base_datos_); // never neither of the two
    if (pid != 0) replace_project(pid);
    insert_project();
    replaced.finish();
    take_last_key(base_datos_.OpenRecordset(statements::inserted_project(clean(txt_name[0]))), u"pid",
                  module1().pid_actual);
    store_targets();
    return true;
}

/// Ties, main gateway directory, other targets and keywords without a subkeyword stay behind, and so does
/// everything on disk.
void Form2::replace_project(std::int16_t pid) {
    base_datos_.Execute(statements::delete_project(pid));
    base_datos_.Execute({u"delete keywords.* , elements.* from keywords , elements where pid = {} and "
                         u"elements.catid = keywords.keyid",
                         pid});
    base_datos_.Execute(statements::delete_rows_of_project(u"content", pid));
    base_datos_.Execute(statements::delete_rows_of_project(u"host", pid));
}

void Form2::insert_project() {
    base_datos_.Execute(
        {u"insert into Projects ( name , site_name , site_url , title , category , description , "
         u"designer_name , designer_url )  values ( '{}' , '{}' , '{}'  , '{}' , '{}' ,  '{}' , "
         u"'{}' , '{}' ) ",
         clean(txt_name[0]), clean(Text2[0]), preparar_texto(module1().url_sitio), clean(txt_dat[0]),
         clean(txt_dat[1]), clean(txt_dat[2]), clean(Text7), preparar_texto(module1().url_webmaster)});
}

/// Writes the whole row. A rename onto the name of another project is not looked for.
void Form2::update_project() {
    base_datos_.Execute(
        {u"update Projects set name = '{}' ,  site_name = '{}' ,  site_url = '{}' ,  title = '{}' "
         u",  category = '{}' ,  description = '{}' ,  designer_name = '{}' ,  designer_url = "
         u"'{}'  where pid = {}",
         clean(txt_name[0]), clean(Text2[0]), preparar_texto(module1().url_sitio), clean(txt_dat[0]),
         clean(txt_dat[1]), clean(txt_dat[2]), clean(Text7), preparar_texto(module1().url_webmaster),
         module1().pid_actual});
}

void Form2::store_targets() {
    WriteTogether replaced(base_datos_); // never half a list
    const std::int16_t pid = module1().pid_actual;
    base_datos_.Execute(statements::delete_rows_of_project(u"target", pid));
    for (const Text& other : List1.entries())
        base_datos_.Execute({u"insert into target ( pid , target ) values ( {} , '{}' )", pid, other});
    replaced.finish();
}

/// A folder that is there is kept with all its content; a renamed project's old one stays where it is.
void Form2::make_folder() const {
    const Fence fence(projects_folder(), txt_name[0].text());
    if (!dir_exists(fence.folder())) MkDir(fence.itself());
}

} // namespace twk
