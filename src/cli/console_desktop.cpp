// SPDX-License-Identifier: MIT
#include "cli/console_desktop.h"

#include "platform/files.h"
#include "platform/html.h"
#include "platform/screens.h"

#include <ostream>

namespace twk::cli {

namespace {

constexpr TextView question_save_names = u"Do you want to save this filename set?";
constexpr auto line_interval = std::chrono::milliseconds(50);

/// Name of the file: the path before it may have been cut in its middle.
TextView file_name(TextView path) {
    return path.substr(path.rfind(path_separator) + 1); // the whole text when there is no separator
}

} // namespace

Answer ConsoleDesktop::MsgBox(const Message& message) {
    switch (message.buttons) {
    case Buttons::yes_no: return message.text == question_save_names ? Answer::no : Answer::yes;
    case Buttons::ok_cancel: return Answer::ok;
    case Buttons::ok: break;
    }
    end_progress();
    messages_.push_back(message.text);
    console_.err << to_utf8(message.text) << std::endl;
    return Answer::ok;
}

void ConsoleDesktop::screen_loaded(Screen& screen) {
    if (screen.name != "Form12") return;
    const ScreenMap::Control* const found = screen.map.find_control("Label2");
    if (found == nullptr) return;
    auto* const* const status = std::get_if<Label*>(&found->ref);
    if (status == nullptr) return;
    Label& label = **status;
    label.observer.watch([this, &label](Prop which) {
        if (which == Prop::caption) tell(label.caption());
    });
}

void ConsoleDesktop::tell(const Text& status) {
    if (!telling_) return;
    const bool page = TextView(status).starts_with(u"Creating + Analizing ");
    if (!console_.terminal) {
        // A file or a pipe gets a line for every page, none for the steps between.
        if (page) console_.out << to_utf8(file_name(status)) << '\n';
        return;
    }
    const auto now = std::chrono::steady_clock::now();
    if (now - told_ < line_interval) return;
    told_ = now;
    line_open_ = true;
    console_.out << "\r\x1b[K" << to_utf8(status) << std::flush;
}

void ConsoleDesktop::end_progress() {
    if (line_open_) console_.out << "\r\x1b[K" << std::flush;
    line_open_ = false;
}

void ConsoleDesktop::wait_modal(Screen& screen) {
    screens().fire(screen, "Command1", "Click");
    if (screen.visible) screens().hide(screen); // its button did not leave it
}

void ConsoleDesktop::navigate(WebBrowser& browser, const Text& address) {
    // A local page is read when its text is asked for; an address of the web stays empty.
    shown_[&browser] = {address, {}};
}

void ConsoleDesktop::show_html(WebBrowser& browser, const Text& html) {
    shown_[&browser] = {{}, html};
}

Text ConsoleDesktop::inner_text(WebBrowser& browser) {
    Shown& shown = shown_[&browser];
    if (shown.html.empty() && file_exists(shown.address)) shown.html = read_text_file(shown.address);
    return visible_text(shown.html);
}

std::vector<Link> ConsoleDesktop::links(WebBrowser& browser) {
    const Shown& shown = shown_[&browser];
    std::vector<Link> all;
    for (Text& address : page_links(shown.html, shown.address)) all.push_back({std::move(address)});
    return all;
}

Text ConsoleDesktop::fetch(Inet&, const Text& address) {
    throw RuntimeFault(fault_device_io, u"There is no network here to fetch " + address);
}

} // namespace twk::cli
