// SPDX-License-Identifier: MIT
#include "platform/desktop.h"

#include "platform/clock.h"

namespace twk {

namespace {

/// The one that hears messages; null for none.
HeldMessages* holder = nullptr;

} // namespace

void Desktop::wait(std::chrono::milliseconds time, const std::function<bool()>&) {
    clock().sleep(time);
}

HeldMessages::HeldMessages() : before_(std::exchange(holder, this)) {}
HeldMessages::~HeldMessages() {
    holder = before_;
}

Answer MsgBox(const Text& text) {
    if (holder != nullptr) {
        holder->held_.push_back(text);
        return Answer::ok;
    }
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

Text beside_program(TextView file) {
    return joined_path(app_path(), file);
}

} // namespace twk
