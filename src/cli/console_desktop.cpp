// SPDX-License-Identifier: MIT
#include "cli/console_desktop.h"

#include "platform/file_system.h"
#include "platform/screens.h"

#include <ostream>

namespace twk::cli {

namespace {

constexpr TextView question_save_names = u"Do you want to save this filename set?";
constexpr auto line_interval = std::chrono::milliseconds(50);

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
        // A file or a pipe gets a line for every page, none for the steps between. The path before the name
        // may have been cut in its middle.
        if (page) console_.out << to_utf8(last_name(TextView(status))) << '\n';
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
    SilentDesktop::wait_modal(screen); // if its button did not leave it
}

Text ConsoleDesktop::inner_text(WebBrowser& browser) {
    Shown& page = shown(browser);
    if (page.html.empty() && file_exists(page.address)) page.html = read_text_file(page.address);
    return SilentDesktop::inner_text(browser);
}

} // namespace twk::cli
