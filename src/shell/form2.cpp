#include "shell/form2.h"

#include "assist/help.h"
#include "engine/text_toolkit.h"
#include "inputs/form3.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "shell/form1.h"
#include "shell/module1.h"

#include <algorithm>

namespace twk {

namespace {

Text projects_folder() {
    return app_path() + Text(path_separator) + u"Projects";
}
Database open_hive() {
    return OpenDatabase(app_path() + Text(path_separator) + u"hive.mdb", false, false, u";pwd=lantern4821");
}

bool looks_like_url(const Text& url) {
    return contains(url, u"ttp://") && Left(Trim(url), 1) == u"h";
}

bool ends_in_slash(const Text& url) {
    const Text last = Right(Trim(url), 1);
    return last == u"\\" || last == u"/";
}

} // namespace

void Form2::enumerate(ScreenMap& map) {
    map.controls("txt_name", txt_name);
    map.controls("Text2", Text2);
    map.controls("txt_url", txt_url);
    map.controls("txt_dat", txt_dat);
    map.control("Text7", Text7);
    map.control("List1", List1);
    map.control("Command7", Command7);
    map.control("Command8", Command8);
    map.control("Command2", Command2);
    map.control("Command1", Command1);
    map.control("Command3", Command3);
    map.controls("Label1", Label1);
    map.event("Text2", 0, "LostFocus", [this] { Text2_LostFocus(0); });
    for (int i = 0; i < 3; ++i) map.event("txt_url", i, "LostFocus", [this, i] { txt_url_LostFocus(i); });
    map.event("Command1", "Click", [this] { Command1_Click(); });
    map.event("Command2", "Click", [this] { Command2_Click(); });
    map.event("Command3", "Click", [this] { Command3_Click(); });
    map.event("Command7", "Click", [this] { Command7_Click(); });
    map.event("Command8", "Click", [this] { Command8_Click(); });
}

void Form2::Form_Load() {
    const Module1& shared = module1();
    if (!shared.url_sitio.empty()) txt_url[0].text = shared.url_sitio;
    if (!shared.url_webmaster.empty()) txt_url[2].text = shared.url_webmaster;
    marcar_forma(2, true);
    if (shared.pid_actual != 0) Command2.caption = u"Modify/Next";
    if (!dir_exists(projects_folder())) MkDir(projects_folder());
}

void Form2::Form_Unload() {
    marcar_forma(2, false);
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
    // The other URL stays in the shared variable until the next Next.
    module1().url_sitio = txt_url[1].text();
    List1.add_item(module1().url_sitio);
}

void Form2::Command8_Click() {
    if (List1.list_index() >= 0) List1.remove_item(List1.list_index());
}

int Form2::Revisar_Target(TextView) {
    const auto refuse = [this](const Text& why) {
        MsgBox(why);
        Text2[0].text = Text();
        Text2[0].set_focus();
        return 1;
    };
    const Text& text = Text2[0].text();
    if (Len(text) < 3) return refuse(u"The word must have more than 3 characters"); // 3 pass
    const Text plain = LCase(Trim(text));
    if (plain == u"index" || plain == u"sitemap") return refuse(u"'Sitemap' and 'Index' are reserved words.");
    const TextView word = trim_view(text);
    const bool allowed = std::all_of(word.begin(), word.end(), [](char16_t c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
               c == u'-' || c == u'_';
    });
    if (!allowed) return refuse(u"The word can only contain letters, numbers and dashes");
    return 0;
}

bool Form2::properties_complete() {
    const auto refuse = [](TextBox& box, const Text& why) {
        MsgBox(why);
        box.set_focus();
        return false;
    };
    if (txt_name[0].text().empty()) return refuse(txt_name[0], u"The Project must have a Name");
    if (contains(txt_name[0].text(), u" "))
        return refuse(txt_name[0], u"The name of the project can`t contain spaces");
    if (Text2[0].text().empty()) return refuse(Text2[0], u"The Project must have a Target Site Name");
    if (txt_url[0].text().empty()) return refuse(txt_url[0], u"The Project must have a Target URL");
    for (TextBox& box : txt_dat)
        if (box.text().empty()) return refuse(box, u"Subject, Category and Description can´t be empty");
    return true;
}

bool Form2::urls_valid() {
    const Text& url = txt_url[0].text();
    if (!contains(url, u"ttp://")) {
        MsgBox(u"The Target Site URL is invalid (" + Trim(url) + u")\nIt should begin with ´http://´");
        return false;
    }
    if (Left(Trim(url), 1) != u"h") { // that one letter only
        MsgBox(u"The Target Site URL is invalid: " + url + u"\nIt should begin with ´http://´");
        return false;
    }
    for (const Text& other : List1.entries()) {
        if (looks_like_url(other)) continue;
        MsgBox(u"This Other Target URL is invalid: " + other + u"\nIt should begin with ´http://´");
        return false;
    }
    return true;
}

void Form2::Command2_Click() {
    screens().unload<Form3>();
    if (Revisar_Target(Text2[0].text()) == 1) return;
    Module1& shared = module1();
    shared.url_sitio = txt_url[0].text();
    shared.url_webmaster = txt_url[2].text();
    if (!properties_complete() || !urls_valid()) return;
    const Text name = txt_name[0].text();
    if (shared.pid_actual != 0 && Trim(name) != shared.proyecto_actual)
        MsgBox(u"The project " + shared.proyecto_actual + u" has been renamed to " + name);
    base_datos_ = open_hive();
    existe_ = false;
    if (shared.pid_actual == 0)
        save_new_project();
    else
        update_project();
    save_targets();
    // From here on the project is saved, and may be refused all the same.
    if (!slashes_absent()) return;
    if (existe_) return;
    make_project_folder(name);
    screens().bring_forward<Form3>();
}

void Form2::save_new_project() {
    const Text& name = txt_name[0].text();
    for (Recordset row = base_datos_.OpenRecordset(u"SELECT * From Projects where name = '" + name + u"' ");
         !row.eof(); row.MoveNext()) {
        existe_ = true;
        pid_hallado_ = CInt(row.Fields(u"pid").number());
    }
    if (existe_ && MsgBox(u"There's another project named " + name +
                              u"! \nDo you want to replace it?\nAll data related "
                              u"to the old project (keywords, contents, settings) will be lost.",
                          Buttons::ok_cancel, u"Replace project?") == Answer::ok) {
        existe_ = false;
        replace_old_project();
    }
    if (existe_) return;
    base_datos_.Execute(
        u"insert into Projects ( name , site_name , site_url , title , category , description , "
        u"designer_name , designer_url )  values ( '" +
        clean(name) + u"' , '" + clean(Text2[0].text()) + u"' , '" + clean(module1().url_sitio) + u"'  , '" +
        clean(txt_dat[0].text()) + u"' , '" + clean(txt_dat[1].text()) + u"' ,  '" +
        clean(txt_dat[2].text()) + u"' , '" + clean(Text7.text()) + u"' , '" +
        clean(module1().url_webmaster) + u"' ) ");
    for (Recordset row =
             base_datos_.OpenRecordset(u"select * from projects where name = '" + clean(name) + u"'");
         !row.eof(); row.MoveNext())
        module1().pid_actual = CInt(row.Fields(u"pid").number());
    save_targets();
}

/// Ties, main directory and other targets of the old project stay behind, and keywords without subkeywords.
void Form2::replace_old_project() {
    const Text old = to_text(pid_hallado_);
    base_datos_.Execute(u"delete from Projects where pid = " + old);
    base_datos_.Execute(u"delete keywords.* , elements.* from keywords , elements where pid = " + old +
                        u" and elements.catid = keywords.keyid");
    base_datos_.Execute(u"delete from content where pid = " + old);
    base_datos_.Execute(u"delete from host where pid = " + old);
}

/// A name that another project has is not refused here.
void Form2::update_project() {
    base_datos_ = open_hive();
    base_datos_.Execute(u"update Projects set name = '" + clean(txt_name[0].text()) + u"' ,  site_name = '" +
                        clean(Text2[0].text()) + u"' ,  site_url = '" + clean(module1().url_sitio) +
                        u"' ,  title = '" + clean(txt_dat[0].text()) + u"' ,  category = '" +
                        clean(txt_dat[1].text()) + u"' ,  description = '" + clean(txt_dat[2].text()) +
                        u"' ,  designer_name = '" + clean(Text7.text()) + u"' ,  designer_url = '" +
                        clean(module1().url_webmaster) + u"'  where pid = " + to_text(module1().pid_actual));
}

void Form2::save_targets() {
    const Text pid = to_text(module1().pid_actual);
    base_datos_.Execute(u"delete from target where pid = " + pid);
    for (const Text& url : List1.entries())
        base_datos_.Execute(u"insert into target ( pid , target ) values ( " + pid + u" , '" + url + u"' )");
}

bool Form2::slashes_absent() {
    if (ends_in_slash(txt_url[0].text())) {
        MsgBox(u"You can't put a backward or fordward slash at the end of the Target Site URL");
        return false;
    }
    for (const Text& url : List1.entries()) {
        if (!ends_in_slash(url)) continue;
        MsgBox(u"You can't put a backward or fordward slash at the end of the an (Other) Target Site URL");
        return false;
    }
    return true;
}

void Form2::make_project_folder(const Text& name) {
    const Fence fence(projects_folder(), name);
    if (!dir_exists(fence.folder())) MkDir(fence.folder());
}

Text Form2::clean(const Text& text) {
    return preparar_texto(Text(text));
}

} // namespace twk
