#include "support/sample_project.h"

#include "inputs/form3.h"
#include "inputs/form7.h"
#include "platform/numbers.h"
#include "shell/form2.h"
#include "shell/module1.h"

#include <gtest/gtest.h>

namespace twk::test {

namespace {

/// The strategy of the tests: the delivered one may change without changing the golden pages.
constexpr std::string_view strategy = R"dat(1.a = 60
1.b = 600
1.c = 15
1.d = 1
1.e = 3
1.f = 1
1.g = 3
2.a = * 10 ; 20
2.b = 0 ; * 20
2.c = 60 ; * 80
2.d = * 60 ; 80
2.e = 0
2.f = 0
2.g = 1
2.h = 0
3.a = * 2 ; 3
3.b = 1
3.c = 1
3.d = 8
3.e = 2
3.f = 1
3.g = 0
3.h = 1
3.i = 0
4.a = "Arial" ; * "Verdana"
4.b = "http://www.oakshed.example/back.gif"
5.a = "Arts" ; * "Business"
5.b = * "en-us" ; "de"
5.c = 0
5.d = 0
5.e = 0
5.g = * "_" ; "-"
5.h = 0
5.i = 1
5.j = 30
5.k = "index, follow"
5.l = "content"
5.m = 0
5.n = .htm
6.b = "and" ; "with" ; "for"
6.c = "(see *LINK* for *KEYWORD* today)";
"(more on *KEYWORD* under *LINK* here)"; "(start at *LINK* if *KEYWORD* is new)"
6.d = "<b>"
6.e = "</b>"
6.f = "this topic"
6.g = "Related topics"
6.h = "Subject"
6.i = "Category"
6.j = "Description"
6.k = "Webmaster:"
7.a = "This page is about "
7.b = "Other pages "
7.c = "Click above to read about "
7.d = "Up one level: "
7.e = "Content index "
7.f = "The top link is about "
7.g = "Topic list "
7.h = "Search this topic. "
7.i = "Search this company."
7.j = "If you still need info about "
8.a = 1
8.b = 0
8.c = 1
8.d = 1
8.e = 1
8.f = 1
8.g = 1
8.h = 1
8.i = 1
8.j = 1
8.k = 1
9.a = Verdana
9.b = #000000
9.c = 0
9.d = 1
9.e = 0
9.f = #ffffff
9.g = http://www.oakshed.example/back.gif
)dat";

Text repeated(TextView text, int times) {
    Text all;
    for (int i = 0; i < times; ++i) all.append(text);
    return all;
}

void fill(ListBox& list, const std::vector<Text>& entries) {
    list.clear();
    for (const Text& entry : entries) list.add_item(entry);
}

/// Inserts the rows; returns the project's key.
int store(const SampleContent& content) {
    Database hive = OpenDatabase(app_path() + u"/hive.mdb", false, false, u";pwd=lantern4821");
    const auto key = [&hive](const Text& statement, TextView column) {
        return CInt(hive.OpenRecordset(statement).Fields(column).number());
    };
    hive.Execute(u"insert into Projects ( name , site_name , site_url , title , category , description , "
                 u"designer_name , designer_url )  values ( '" +
                 content.name + u"' , '" + content.site_name +
                 u"' , 'http://www.oakshed.example' , 'Building sheds' , 'Home and Garden' , "
                 u"'Plain advice on sheds.' , '" +
                 content.designer_name + u"' , '" + content.designer_url + u"' ) ");
    const int pid_number = key(u"select * from projects where name = '" + content.name + u"'", u"pid");
    const Text pid = to_text(pid_number);
    for (const SampleKeyword& each : content.keywords) {
        hive.Execute(u"insert into keywords ( pid , keyword ) values ( " + pid + u" , '" + each.keyword +
                     u"' ) ");
        const Text keyid = to_text(
            key(u"select keyid from keywords where pid = " + pid + u" and keyword = '" + each.keyword + u"'",
                u"keyid"));
        for (const Text& sub : each.subkeywords)
            hive.Execute(u"insert into elements ( catid , element ) values ( " + keyid + u" , '" + sub +
                         u"' ) ");
    }
    for (const SampleBox& box : content.boxes) {
        hive.Execute(u"insert into content ( pid , content ) values ( " + pid + u" , '" + box.text + u"' ) ");
        Text cid;
        for (Recordset row = hive.OpenRecordset(u"select * from content where pid = " + pid); !row.eof();
             row.MoveNext())
            cid = row.Fields(u"cid").text();
        for (const Text& tied : box.tied)
            hive.Execute(u"insert into ties ( pid , keyid , cid  ) values ( " + pid + u" , " +
                         to_text(key(u"select keyid from keywords where pid = " + pid + u" and keyword = '" +
                                         tied + u"'",
                                     u"keyid")) +
                         u" , " + cid + u"  ) ");
    }
    return pid_number;
}

void load_screens(const SampleContent& content, int pid) {
    module1().pid_actual = static_cast<std::int16_t>(pid);
    module1().proyecto_actual = content.name;
    Form2& step1 = screen<Form2>();
    step1.txt_name[0].text = content.name;
    step1.Text2[0].text = content.site_name;
    fill(step1.List1, content.targets);
    Form3& step2 = screen<Form3>();
    step2.List1.clear();
    for (const SampleKeyword& each : content.keywords) step2.List1.add_item(each.keyword);
    Form7& step4 = screen<Form7>();
    step4.Text2.text = content.main_host;
    fill(step4.List1, content.hosts);
}

} // namespace

SampleContent::SampleContent()
    : keywords{{u"Garden Shed", {u"cedar roof", u"Small Garden Shed"}},
               {u"Tool Rack", {}},
               {u"workbench", {u"folding workbench"}}},
      boxes{
          {u"A garden shed keeps tools dry and the lawn tidy. Choose a place with firm ground and a little "
           u"shade. <br> Lay slabs (or gravel) first. The walls of a good garden shed are primed on both sides "
           u"before they are nailed, and the roof gets felt with copper nails. Leave a gap for air below the "
           u"eaves. A workbench fits under the window. Paint the door last, when the hinges have settled."},
          {u"Hang every tool where a hand finds it. Rakes go up high, trowels low.", {}},
          {u"A tool rack is made in an evening. Saw a batten for each row. Drill holes with a small slope "
           u"so that nothing slides out. Screw the Tool Rack to the studs and not to the boards.",
           {u"Tool Rack"}},
          {u"Im Café sprach man über die workbench. It must be heavy, and it must not wobble. " +
           repeated(u"Beech is good for the top, pine will do for the legs. ", 4) +
           u"A folding workbench saves room for the mower and hangs on the wall with two hooks."}} {}

SampleProject::SampleProject(TempApp& app, const SampleContent& content)
    : form([&]() -> Form6& {
          app.write(content.name + u".dat", strategy);
          load_screens(content, store(content));
          return screen<Form6>();
      }()),
      app_(app), name_(content.name),
      main_segment_(Replace(Replace(content.main_host, u"http://", u""), u"/", u"-")) {}

Text SampleProject::folder(TextView below) const {
    const Text path = u"Projects/" + name_;
    return below.empty() ? path : path + u"/" + Text(below);
}

Text SampleProject::main_folder(TextView below) const {
    const Text path = folder(main_segment_);
    return below.empty() ? path : path + u"/" + Text(below);
}

bool SampleProject::generate() {
    app_.desktop.expect(u"Are you sure you want to proceed?", Answer::yes);
    return screens().dispatch([this] { form.Command1_Click(); });
}

} // namespace twk::test
