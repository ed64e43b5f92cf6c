// SPDX-License-Identifier: MIT
#include "platform/silent_desktop.h"

#include "platform/html.h"
#include "platform/screens.h"

namespace twk {

Answer SilentDesktop::MsgBox(const Message& message) {
    switch (message.buttons) {
    case Buttons::ok_cancel: return Answer::cancel;
    case Buttons::yes_no: return Answer::no;
    default: return Answer::ok;
    }
}

void SilentDesktop::wait_modal(Screen& screen) {
    if (screen.visible) screens().hide(screen);
}

Text SilentDesktop::inner_text(WebBrowser& browser) {
    return visible_text(shown_[&browser].html);
}

std::vector<Link> SilentDesktop::links(WebBrowser& browser) {
    const Shown& page = shown_[&browser];
    std::vector<Link> all;
    for (Text& address : page_links(page.html, page.address)) all.push_back({std::move(address)});
    return all;
}

Text SilentDesktop::fetch(Inet&, const Text& address) {
    throw RuntimeFault(fault_device_io, u"There is no network here to fetch " + address);
}

} // namespace twk
