// SPDX-License-Identifier: MIT
#include "support/sample_project.h"

#include "inputs/form3.h"
#include "inputs/form7.h"
#include "shell/form2.h"
#include "shell/module1.h"

namespace twk::test {

namespace {

const std::string rows = R"sql(
insert into Projects ( name , site_name , site_url , title , category , description , designer_name , designer_url )
  values ( 'shed' , 'OakShed' , 'http://www.oakshed.example' , 'Building sheds' , 'Home and Garden' ,
           'Plain advice on sheds.' , 'Ida Brook' , 'http://www.oakshed.example/ida' );
insert into keywords ( pid , keyword ) values ( 1 , 'Garden Shed' ) , ( 1 , 'Tool Rack' ) , ( 1 , 'workbench' );
insert into elements ( catid , element )
  values ( 1 , 'cedar roof' ) , ( 1 , 'Small Garden Shed' ) , ( 3 , 'folding workbench' );
insert into ties ( pid , keyid , cid ) values ( 1 , 2 , 3 );
insert into content ( pid , content ) values ( 1 ,
  'A garden shed keeps tools dry and the lawn tidy. Choose a place with firm ground and a little ' ||
  'shade. <br> Lay slabs (or gravel) first. The walls of a good garden shed are primed on both sides ' ||
  'before they are nailed, and the roof gets felt with copper nails. Leave a gap for air below the ' ||
  'eaves. A workbench fits under the window. Paint the door last, when the hinges have settled.' ) , ( 1 ,
  'Hang every tool where a hand finds it. Rakes go up high, trowels low.' ) , ( 1 ,
  'A tool rack is made in an evening. Saw a batten for each row. Drill holes with a small slope ' ||
  'so that nothing slides out. Screw the Tool Rack to the studs and not to the boards.' ) , ( 1 ,
  'Im Café sprach man über die workbench. It must be heavy, and it must not wobble. BEECH' ||
  'A folding workbench saves room for the mower and hangs on the wall with two hooks.' );
)sql";

Form6& load_screens(TempApp& app) {
    // The delivered strategy may change without changing the golden pages.
    app.write(u"shed.dat", bytes_of(golden("strategy.dat")));
    const Text beech = repeated(u"Beech is good for the top, pine will do for the legs. ", 4);
    app.run(to_utf8(Replace(from_utf8(rows), u"BEECH", beech)));
    module1().pid_actual = 1;
    module1().proyecto_actual = u"shed";
    screen<Form2>().txt_name[0].text = u"shed";
    screen<Form2>().Text2[0].text = u"OakShed";
    screen<Form3>();
    screen<Form7>().Text2.text = u"http://pages.oakshed.example/sheds";
    return screen<Form6>();
}

} // namespace

Text repeated(TextView text, int times) {
    Text all;
    for (int i = 0; i < times; ++i) all.append(text);
    return all;
}

SampleProject::SampleProject(TempApp& app) : form(load_screens(app)), app_(app) {}

bool SampleProject::generate() {
    app_.desktop.expect(u"Are you sure you want to proceed?", Answer::yes);
    return screens().dispatch([this] { form.Command1_Click(); });
}

} // namespace twk::test
