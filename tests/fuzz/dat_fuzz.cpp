// SPDX-License-Identifier: MIT
// Any bytes as a settings file: loaded, saved, and loaded again.

#include "fuzz_app.h"
#include "platform/faults.h"
#include "settings/form6.h"
#include "settings/settings_file.h"

using namespace twk;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::TempApp& app = fuzz::app();
    app.write(u"any.dat", fuzz::bytes(data, size));
    Form6 form;
    if (size % 2 == 0) tomar_de_dat(form, app.path(u"twk.dat")); // on top of the delivered strategy
    try {
        tomar_de_dat(form, app.path(u"any.dat"));
    } catch (const RuntimeFault&) { // a number that is none ends the load
    }
    // A list that stayed empty cannot be saved. That is told, and a file that was there before stays.
    std::filesystem::remove(app.folder() / "saved.dataux");
    app.write(u"saved.dat", "before");
    app.desktop.messages.clear();
    guardar_dat(form, app.path(u"saved.dat"));
    const bool told = app.desktop.last_message() == u"File wasn't saved.";
    fuzz::require(told == (app.read(u"saved.dat") == "before"));
    Form6 again;
    try {
        tomar_de_dat(again, app.path(u"saved.dat"));
    } catch (const RuntimeFault&) {
    }
    screens().unload_all();
    return 0;
}
