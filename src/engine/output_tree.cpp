// SPDX-License-Identifier: MIT
#include "engine/output_tree.h"

#include "engine/fragments.h"
#include "engine/page_file.h"
#include "engine/run.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "shell/form2.h"

namespace twk {

void rebuild_output_tree(Run& run) {
    const Text& name = screen<Form2>().txt_name[0].text();
    run.mensaje_error =
        u"There was an error trying to create or delete the directory for this project:  " + name +
        u"\nThis is set in the Project Properties (step 1).\nCheck the directory name, if it was not created. Also, "
        u"check if it's empty.";
    run.fence = std::make_shared<Fence>(beside_program(u"Projects"), name);
    run.project_folder = run.fence->folder();
    run.main_folder = destination_folder(run, main_host(run));
    run.fence->check(run.main_folder);
    if (dir_exists(run.project_folder)) run.fso.DeleteFolder(run.project_folder);
    MkDir(run.project_folder);
    MkDir(run.main_folder);
    run.mensaje_error.clear();
}

} // namespace twk
