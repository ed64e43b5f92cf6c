// SPDX-License-Identifier: MIT
// Any bytes as a list of page names: never more names than there were, and all of them back after a fault.

#include "engine/form17.h"
#include "fuzz_app.h"

using namespace twk;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    test::TempApp& app = fuzz::app();
    app.write(u"any.fnm", fuzz::bytes(data + 1, size - 1));
    Form17& step = screen<Form17>();
    const int count = data[0] % 16;
    for (int i = 0; i < count; ++i) {
        step.List1.add_item(Text(1, static_cast<char16_t>(u'a' + i)) + u".htm");
        step.List2.add_item(u"http://host.com");
    }
    app.desktop.open_files.push_back(app.path(u"any.fnm"));
    screens().fire<Form17>("Command3", "Click");
    fuzz::require(step.List1.list_count() <= count && step.List1.list_count() >= count - 1);
    fuzz::require(step.List2.list_count() == count);
    screens().unload_all();
    return 0;
}
