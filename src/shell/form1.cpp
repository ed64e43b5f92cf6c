#include "shell/form1.h"

#include "assist/disclaimer.h"
#include "assist/form4.h"
#include "assist/form9.h"
#include "assist/help.h"
#include "engine/form17.h"
#include "engine/text_toolkit.h"
#include "inputs/form10.h"
#include "inputs/form3.h"
#include "inputs/form5.h"
#include "inputs/form7.h"
#include "inputs/form8.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "reports/form12.h"
#include "settings/form6.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "tools/form11.h"
#include "tools/form21.h"

namespace twk {

namespace {

Text store_path() {
    return app_path() + Text(path_separator) + u"hive.mdb";
}
Database open_hive() {
    return OpenDatabase(store_path(), false, false, u";pwd=lantern4821");
}

template <class S> void unload_numbered(int number) {
    if (module1().formas_abiertas.at(static_cast<std::size_t>(number)) != 0) screens().unload<S>();
}

} // namespace

void Form1::enumerate(ScreenMap& map) {
    map.control("combo1", combo1);
    map.control("Text1", Text1);
    map.control("Command1", Command1);
    map.control("Command3", Command3);
    map.control("Command4", Command4);
    map.control("Command6", Command6);
    map.control("Command5", Command5);
    map.control("Command7", Command7);
    map.control("Command2", Command2);
    map.control("Label2", Label2);
    map.control("Label4", Label4);
    map.control("Label5", Label5);
    map.control("Dir1", Dir1);
    map.control("File1", File1);
    map.event("combo1", "Click", [this] { combo1_Click(); });
    map.event("Command1", "Click", [this] { Command1_Click(); });
    map.event("Command2", "Click", [this] { Command2_Click(); });
    map.event("Command3", "Click", [this] { Command3_Click(); });
    map.event("Command4", "Click", [this] { Command4_Click(); });
    map.event("Command5", "Click", [this] { Command5_Click(); });
    map.event("Command6", "Click", [this] { Command6_Click(); });
    map.event("Command7", "Click", [this] { Command7_Click(); });
    map.event("Label2", "Click", [this] { Label2_Click(); });
}

void Form1::Form_Load() {
    marcar_forma(1, true);
    Dir1.visible = false;
    File1.visible = false;
    module1().proyecto_actual.clear();
    module1().pid_actual = 0;
    llenar_proyectos();
}

void Form1::Form_Unload() {
    marcar_forma(1, false);
}

void Form1::llenar_proyectos() {
    base_datos_ = open_hive();
    sql_ = u"select * from Projects";
    for (Recordset row = base_datos_.OpenRecordset(sql_); !row.eof(); row.MoveNext())
        combo1.add_item(row.Fields(u"Name").text());
}

void Form1::combo1_Click() {
    Text1.text = combo1.text() + u"_Copy";
}

/// Numbers 2 to 18 in ascending order; numbers without a screen are passed over.
void Form1::close_project_screens() {
    unload_numbered<Form2>(2);
    unload_numbered<Form3>(3);
    unload_numbered<Form4>(4);
    unload_numbered<Form5>(5);
    unload_numbered<Form6>(6);
    unload_numbered<Form7>(7);
    unload_numbered<Form8>(8);
    unload_numbered<Form9>(9);
    unload_numbered<Form10>(10);
    unload_numbered<Form11>(11);
    unload_numbered<Form12>(12);
    unload_numbered<Form17>(17);
}

void Form1::Command1_Click() {
    close_project_screens();
    screens().unload<Form21>();
    module1().proyecto_actual.clear();
    module1().pid_actual = 0;
    screens().unload<Form2>();
    screens().show<Form2>();
    screens().unload<Form1>();
}

void Form1::Command2_Click() {
    module1().proyecto_actual.clear();
    screens().unload<Form1>();
}

void Form1::Command3_Click() {
    try {
        open_selected();
    } catch (const RuntimeFault&) { // ends without a word, with the screens as far as they got
    }
}

void Form1::open_selected() {
    close_project_screens(); // comes first, also when nothing is selected
    if (combo1.list_index() < 0) {
        MsgBox(u"Must select a Project from the dropdown list");
        return;
    }
    screens().unload<Form2>();
    sql_ = u"select * from Projects where name = '" + combo1.text() + u"'";
    for (Recordset row = base_datos_.OpenRecordset(sql_); !row.eof(); row.MoveNext()) {
        module1().pid_actual = CInt(row.Fields(u"pid").number());
        module1().proyecto_actual = row.Fields(u"Name").text();
        Form2& step1 = screen<Form2>();
        step1.txt_name[0].text = row.Fields(u"Name").text();
        step1.Text2[0].text = row.Fields(u"site_name").text();
        step1.txt_dat[0].text = row.Fields(u"Title").text();
        step1.txt_dat[1].text = row.Fields(u"category").text();
        step1.txt_dat[2].text = row.Fields(u"Description").text();
        step1.Text7.text = row.Fields(u"designer_name").text();
        step1.txt_url[0].text = row.Fields(u"site_url").text();
        step1.txt_url[2].text = row.Fields(u"designer_url").text();
    }
    sql_ = u"select * from target where pid = " + to_text(module1().pid_actual);
    for (Recordset row = base_datos_.OpenRecordset(sql_); !row.eof(); row.MoveNext())
        screen<Form2>().List1.add_item(row.Fields(u"target").text());
}

void Form1::Command4_Click() {
    module1().proyecto_actual.clear();
    screens().unload<Form2>();
    if (combo1.list_index() < 0) return;
    base_datos_ = open_hive();
    // The title is that of Step 1's question about replacing.
    if (MsgBox(u"Are you sure you want to delete this project?\rAll data will be Lost.", Buttons::ok_cancel,
               u"Replace project?") != Answer::ok)
        return;
    sql_ = u"select * from Projects where name = '" + combo1.text() + u"' ";
    for (Recordset row = base_datos_.OpenRecordset(sql_); !row.eof(); row.MoveNext()) {
        nombre_hallado_ = row.Fields(u"Name").text();
        pid_hallado_ = CInt(row.Fields(u"pid").number());
    }
    if (pid_hallado_ != 0) erase_folder(nombre_hallado_);
    delete_rows();
    combo1.clear();
    sql_ = u"select * from Projects";
    for (Recordset row = base_datos_.OpenRecordset(sql_); !row.eof(); row.MoveNext())
        combo1.add_item(row.Fields(u"Name").text());
    combo1.text = u"Select an existing project";
}

void Form1::erase_folder(const Text& project) {
    const Text sep(path_separator);
    const Fence fence(app_path() + sep + u"Projects", project);
    const Text& folder = fence.folder();
    if (!dir_exists(folder)) {
        MsgBox(u"The folder corresponding to this project no longer exist or it has been renamed.");
        return;
    }
    FileSystemObject fso;
    const auto erase_files = [&](const Text& place) {
        fence.check(place + sep + u"x"); // a folder that is a link leads out: nothing in it is touched
        File1.set_path(place);
        for (const Text& file : File1.entries()) fso.DeleteFile(place + sep + file);
    };
    Dir1.set_path(folder);
    for (const Text& sub : Dir1.entries()) {
        erase_files(sub);
        RmDir(sub); // a folder nested deeper stops here
    }
    erase_files(folder);
    RmDir(folder);
}

void Form1::delete_rows() {
    const Text pid = to_text(pid_hallado_);
    base_datos_.Execute(u"delete from Projects where pid = " + pid);
    for (Recordset row = base_datos_.OpenRecordset(u"select * from keywords where pid = " + pid); !row.eof();
         row.MoveNext())
        base_datos_.Execute(u"delete from elements where catid = " +
                            to_text(CInt(row.Fields(u"keyid").number())));
    for (const char16_t* table : {u"keywords", u"host", u"host1", u"ties", u"content", u"target"})
        base_datos_.Execute(u"delete from " + Text(table) + u" where pid = " + pid);
}

void Form1::Command5_Click() {
    module1().proyecto_actual.clear();
    screens().show<Form10>();
}

void Form1::Command6_Click() {
    const Text nombre = Trim(Text1.text());
    if (nombre.empty()) return;
    if (contains(nombre, u" ")) {
        MsgBox(u"Project Name can't have spaces");
        return;
    }
    for (const Text& each : combo1.entries()) {
        if (each != nombre) continue; // exactly: another case passes
        MsgBox(u"2 Projects can't have the same name!\nYou should delete one first.");
        return;
    }
    if (MsgBox(u"This might take a while depending on your PC's speed. \nAre you sure you want to proceed?",
               Buttons::yes_no) == Answer::no)
        return;
    copy_rows(nombre);
    combo1.text = u"Select an existing Project";
    combo1.clear();
    combo1.text = u"Select an existing Project";
    llenar_proyectos();
}

/// Ties, main directory, folder and settings of the source stay behind.
void Form1::copy_rows(const Text& nombre) {
    const Text limpio = preparar_texto(Text(nombre));
    Recordset source =
        base_datos_.OpenRecordset(u"select * from Projects where name = '" + combo1.text() + u"' ");
    if (!source.eof()) {
        pid_hallado_ = CInt(source.Fields(u"pid").number());
        const auto column = [&source](TextView name) { return source.Fields(name).text(); };
        base_datos_.Execute(
            u"insert into Projects ( name , site_name , site_url , title , category , description , "
            u"designer_name , designer_url )  values ( '" +
            limpio + u"' , '" + column(u"site_name") + u"' , '" + column(u"site_url") + u"'  , '" +
            column(u"title") + u"' , '" + column(u"category") + u"' ,  '" + column(u"description") +
            u"' , '" + column(u"designer_name") + u"' , '" + column(u"designer_url") + u"')");
        for (Recordset row =
                 base_datos_.OpenRecordset(u"select * from projects where name = '" + limpio + u"'");
             !row.eof(); row.MoveNext())
            pid_copia_ = CInt(row.Fields(u"pid").number());
    }
    // Without a source the rest runs on the keys that the last copy left.
    const Text from = to_text(pid_hallado_);
    const Text to = to_text(pid_copia_);
    copy_keywords();
    for (Recordset row = base_datos_.OpenRecordset(u"select * from content where pid = " + from); !row.eof();
         row.MoveNext()) {
        Recordset box = base_datos_.OpenRecordset(u"select * from content");
        box.AddNew();
        box.set(u"pid", pid_copia_);
        box.set(u"content", row.Fields(u"content").text());
        box.Update();
    }
    for (Recordset row = base_datos_.OpenRecordset(u"select * from host where pid = " + from); !row.eof();
         row.MoveNext())
        base_datos_.Execute(u"insert into host (pid, host) values ( " + to + u" , '" +
                            row.Fields(u"host").text() + u"')");
    for (Recordset row = base_datos_.OpenRecordset(u"select * from target where pid = " + from); !row.eof();
         row.MoveNext())
        base_datos_.Execute(u"insert into target (pid, target) values ( " + to + u" , '" +
                            row.Fields(u"target").text() + u"')");
}

void Form1::copy_keywords() {
    const Text to = to_text(pid_copia_);
    for (Recordset row =
             base_datos_.OpenRecordset(u"select * from keywords where pid = " + to_text(pid_hallado_));
         !row.eof(); row.MoveNext()) {
        const Text keyword = row.Fields(u"keyword").text();
        base_datos_.Execute(u"insert into keywords (pid, keyword) values ( " + to + u" , '" + keyword +
                            u"')");
        std::int16_t keyid = 0;
        for (Recordset made = base_datos_.OpenRecordset(u"select keyid from keywords where pid = " + to +
                                                        u" and keyword = '" + keyword + u"'");
             !made.eof(); made.MoveNext())
            keyid = CInt(made.Fields(u"keyid").number());
        const Text old = to_text(CInt(row.Fields(u"keyid").number()));
        for (Recordset sub = base_datos_.OpenRecordset(u"select * from elements where catid = " + old);
             !sub.eof(); sub.MoveNext())
            base_datos_.Execute(u"insert into elements (catid , element) values ( " + to_text(keyid) +
                                u" , '" + sub.Fields(u"element").text() + u"' )");
    }
}

void Form1::Command7_Click() {
    mostrar_ayuda(u"form1");
}

void Form1::Label2_Click() {
    module1().proyecto_actual.clear();
    open_maker_site();
}

} // namespace twk
