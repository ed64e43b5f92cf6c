// SPDX-License-Identifier: MIT
#include "support/sample_project.h"

#include "inputs/form3.h"
#include "inputs/form7.h"
#include "platform/numbers.h"
#include "shell/form2.h"
#include "shell/module1.h"

#include <gtest/gtest.h>

namespace twk::test {

namespace {

void fill(ListBox& list, const std::vector<Text>& entries) {
    list.clear();
    for (const Text& entry : entries) list.add_item(entry);
}

/// Inserts the rows; returns the project's key.
Text store(TempApp& app, const SampleContent& content) {
    const Database open = app.hive(); // spares every statement the opening
    app.run(u"insert into Projects ( name , site_name , site_url , title , category , description , "
            u"designer_name , designer_url )  values ( '" +
            content.name + u"' , '" + content.site_name +
            u"' , 'http://www.oakshed.example' , 'Building sheds' , 'Home and Garden' , "
            u"'Plain advice on sheds.' , '" +
            content.designer_name + u"' , '" + content.designer_url + u"' ) ");
    const Text pid = app.value(u"select * from projects where name = '" + content.name + u"'", u"pid");
    const auto key_of = [&](const Text& keyword) {
        return app.value(u"select keyid from keywords where pid = " + pid + u" and keyword = '" + keyword +
                             u"'",
                         u"keyid");
    };
    for (const SampleKeyword& each : content.keywords) {
        app.run(u"insert into keywords ( pid , keyword ) values ( " + pid + u" , '" + each.keyword + u"' ) ");
        for (const Text& sub : each.subkeywords)
            app.run(u"insert into elements ( catid , element ) values ( " + key_of(each.keyword) + u" , '" +
                    sub + u"' ) ");
    }
    int boxes = app.count(u"select * from content");
    for (const SampleBox& box : content.boxes) {
        app.run(u"insert into content ( pid , content ) values ( " + pid + u" , '" + box.text + u"' ) ");
        ++boxes; // the key of a box, as none has ever been deleted
        for (const Text& tied : box.tied)
            app.run(u"insert into ties ( pid , keyid , cid  ) values ( " + pid + u" , " + key_of(tied) +
                    u" , " + to_text(boxes) + u"  ) ");
    }
    return pid;
}

void load_screens(const SampleContent& content, const Text& pid) {
    module1().pid_actual = CInt(pid);
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

Text repeated(TextView text, int times) {
    Text all;
    for (int i = 0; i < times; ++i) all.append(text);
    return all;
}

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
          // The delivered strategy may change without changing the golden pages.
          app.write(content.name + u".dat",
                    bytes_of(std::filesystem::path(TEST_GOLDEN_DIR) / "strategy.dat"));
          load_screens(content, store(app, content));
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
