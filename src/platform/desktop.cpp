// SPDX-License-Identifier: MIT
#include "platform/desktop.h"

#include "platform/clock.h"

#include <stdexcept>
#include <utility>

namespace twk {

namespace {

Desktop* current = nullptr;

Text& application_folder() {
    static Text folder = u".";
    return folder;
}

} // namespace

void Desktop::wait(std::chrono::milliseconds time, const std::function<bool()>&) {
    clock().sleep(time);
}

Desktop& desktop() {
    if (current == nullptr) throw std::logic_error("no desktop in place");
    return *current;
}

Desktop* set_desktop(Desktop* desktop) {
    return std::exchange(current, desktop);
}

Answer MsgBox(const Text& text) {
    return desktop().MsgBox({.text = text});
}

Answer MsgBox(const Text& text, Buttons buttons, const Text& title) {
    return desktop().MsgBox({.text = text, .buttons = buttons, .title = title});
}

Answer ask_before_loss(const Text& text, Buttons buttons, const Text& title, const Text& about) {
    return desktop().MsgBox(
        {.text = text, .buttons = buttons, .title = title, .about = about, .destructive = true});
}

Text with_ending(Text name, TextView ending) {
    if (!contains(name, ending)) name += ending;
    return name;
}

void DoEvents() {
    desktop().DoEvents();
}

void say(const Text& what) {
    desktop().say(what);
}

const Text& app_path() {
    return application_folder();
}

void set_app_path(Text path) {
    while (path.size() > 1 && path.ends_with(path_separator)) path.pop_back();
    application_folder() = std::move(path);
}

Text beside_program(TextView file) {
    return app_path() + Text(path_separator) + Text(file);
}

} // namespace twk
