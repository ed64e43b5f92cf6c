// SPDX-License-Identifier: MIT
#include "tools/form21.h"

#include "inputs/form5.h"
#include "platform/desktop.h"
#include "platform/file_system.h"

namespace twk {

Text preview_file() {
    return beside_program(u"delete.htm");
}

void Form21::cmdrefresh_Click() {
    const Text path = preview_file();
    FileSystemObject fso;
    const TextStreamPtr made = fso.OpenTextFile(path, OpenMode::writing, true, TextKind::page);
    const TextStreamPtr out = fso.OpenTextFile(path + u"aux", OpenMode::writing, true, TextKind::page);
    out->writeline(Text1.text());
    out->Close();
    made->Close();
    fso.ReplaceFile(path + u"aux", path);
    desktop().navigate(WebBrowser1, path);
}

void Form21::cmdgoback_Click() {
    Form5& step3 = screen<Form5>();
    step3.rt1.text = Text1.text();
    step3.show_unsaved();
    screens().unload<Form21>();
    say(u"Text put back into the content box of Step 3");
}

void Form21::enumerate(ScreenMap& map) {
    map.events<&Form21::cmdrefresh_Click, &Form21::cmdgoback_Click>(*this);
}

} // namespace twk
