// SPDX-License-Identifier: MIT
#include "engine/decorations.h"

#include "engine/density.h"
#include "engine/page_file.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "platform/addresses.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/numbers.h"
#include "shell/module1.h"

namespace twk {

void flash(Run& run, Text& t) {
    t = cortar_palabras(t, 10);
    write_flash_object(run, t);
}

void write_flash_object(Run& run, const Text& t) {
    run.writeline(u"<OBJECT classid=\"clsid:D27CDB6E-AE6D-11cf-96B8-444553540000\" codebase = \"" +
                  Text(addresses::flash_download) +
                  u"/pub/shockwave/cabs/flash/swflash.cab#version=5,0,0,0\" WIDTH=450 HEIGHT=75>");
    run.writeline(u"<PARAM NAME=movie VALUE=\"twk.swf?texxxto=" + t +
                  u"\"><PARAM NAME=quality VALUE=high><PARAM NAME=bgcolor VALUE=#FFFFFF><PARAM NAME=menu "
                  u"VALUE=false>");
    // The quote of TYPE is closed by nothing on its line.
    run.writeline(
        u"<EMBED src=\"twk.swf?texxxto=" + t +
        u"\" quality=high bgcolor=#FFFFFF  WIDTH=450 HEIGHT=75 TYPE=\"application/x-shockwave-flash ");
    run.writeline(
        u" PLUGINSPAGE=\"" + Text(addresses::flash_plugin) +
        u"/shockwave/download/index.cgi?P1_Prod_Version=ShockwaveFlash\" menu=\"false\"></EMBED></OBJECT>");
}

void perhaps_flash(Run& run, const Text& folder, TextView words) {
    if (!run.form.Check4.value() || percent_draw() >= 30) return;
    copy_flash_movie(run, folder);
    Text t = Trim(Replace(words, u",", u""));
    flash(run, t);
    run.writeline(u"");
}

void copy_flash_movie(Run& run, const Text& folder) {
    const Text sep(path_separator);
    copy_into_project(run, app_path() + sep + u"swf" + sep + u"twk.swf", folder + sep + u"twk.swf");
}

Text imagen(Run& run, int kind, TextView alt, const Text& folder, const Text& stem) {
    const ListBox& fotos = run.form.List1;
    const int count = fotos.list_count();
    if (count == 0)
        throw RuntimeFault(fault_project_lacks, u"There is no picture to choose from in the folder Images.");
    chance().Randomize();
    Text f;
    while (f.empty()) f = Trim(fotos.list(xrnum(count - 1))); // never the last one
    const Text ext = Right(f, 4);
    run.mensaje_error = u"Copying image + Creating Tag " + f;
    if (kind == 2) return {};
    const Text name = rspaces(run.form, LCase(stem)) + ext;
    const Text place = folder + Text(path_separator);
    // The test is for the name as it came, the copy goes to the cleaned one.
    if (!run.fso.FileExists(place + stem + ext)) {
        chance().Randomize();
        // The picture is drawn anew, while the extension stays that of the first draw.
        const Text g = fotos.list(static_cast<int>(Round(chance().Rnd() * (count - 1))));
        copy_into_project(run, g, place + name);
    }
    return u"<br><center><a href=\"" + module1().url_principal + u"\"><img src=\"" + name + u"\" alt=\"" +
           Text(alt) + u"\" ></a><br>";
}

Text tiene_java(int value) {
    return value == 1 ? u"_js" : u"";
}

} // namespace twk
