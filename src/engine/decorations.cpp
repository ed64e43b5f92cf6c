// SPDX-License-Identifier: MIT
#include "engine/decorations.h"

#include "engine/density.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "platform/addresses.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/module1.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

namespace twk {

void flash(OpenPage& page, Text& t) {
    t = cortar_palabras(t, 10);
    write_flash_object(page, t);
}

void write_flash_object(OpenPage& page, const Text& t) {
    page.made.movie = true;
    page.writeline(uR"(<OBJECT classid="clsid:D27CDB6E-AE6D-11cf-96B8-444553540000" )"
                   uR"(codebase = "{1}/pub/shockwave/cabs/flash/swflash.cab#version=5,0,0,0" )"
                   uR"(WIDTH=450 HEIGHT=75>)",
                   addresses::flash_download);
    page.writeline(uR"(<PARAM NAME=movie VALUE="twk.swf?texxxto={1}"><PARAM NAME=quality VALUE=high>)"
                   uR"(<PARAM NAME=bgcolor VALUE=#FFFFFF><PARAM NAME=menu VALUE=false>)",
                   t);
    // The quote of TYPE is closed by nothing on its line.
    page.writeline(uR"(<EMBED src="twk.swf?texxxto={1}" quality=high bgcolor=#FFFFFF  WIDTH=450 HEIGHT=75 )"
                   uR"(TYPE="application/x-shockwave-flash )",
                   t);
    page.writeline(uR"( PLUGINSPAGE="{1}/shockwave/download/index.cgi?P1_Prod_Version=ShockwaveFlash" )"
                   uR"(menu="false"></EMBED></OBJECT>)",
                   addresses::flash_plugin);
}

void perhaps_flash(OpenPage& page, const PageChoices& choices, const Text& folder, TextView words) {
    if (!choices.animations() || percent_draw() >= 30) return;
    copy_flash_movie(page, folder);
    Text t = Trim(Replace(words, u",", u""));
    flash(page, t);
    page.writeline(u"");
}

void copy_flash_movie(OpenPage& page, const Text& folder) {
    page.copy_into_project(beside_program(u"swf/twk.swf"), joined_path(folder, u"twk.swf"));
}

Text imagen(Run& run, int kind, TextView alt, const Text& folder, const Text& stem) {
    const std::vector<Text>& fotos = run.choices.pictures();
    const int count = size_of(fotos);
    if (count == 0)
        throw RuntimeFault(fault_project_lacks, u"There is no picture to choose from in the folder Images.");
    chance().Randomize();
    Text f;
    while (f.empty()) f = Trim(at(fotos, xrnum(count - 1))); // never the last one
    const Text ext = Right(f, 4);
    run.mensaje_error = u"Copying image + Creating Tag " + f;
    if (kind == 2) return {};
    run.page.made.picture = true;
    const Text name = rspaces(run.choices, LCase(stem)) + ext;
    // The test is for the name as it came, the copy goes to the cleaned one.
    if (!run.page.fso.FileExists(joined_path(folder, stem + ext))) {
        chance().Randomize();
        // The picture is drawn anew, while the extension stays that of the first draw.
        run.page.copy_into_project(at(fotos, CLng(chance().Rnd() * (count - 1))), joined_path(folder, name));
    }
    return fill(uR"(<br><center><a href="{1}"><img src="{2}" alt="{3}" ></a><br>)", module1().url_principal,
                name, alt);
}

Text tiene_java(int value) {
    return value == 1 ? u"_js" : u"";
}

} // namespace twk
