// SPDX-License-Identifier: MIT
#include "platform/screens.h"

#include "platform/desktop.h"
#include "platform/faults.h"

#include <algorithm>
#include <new>
#include <utility>

namespace twk {

namespace {

template <class List, class Match> auto* found(List& list, Match match) {
    const auto at = std::find_if(list.begin(), list.end(), match);
    return at == list.end() ? nullptr : &*at;
}

} // namespace

std::string ScreenMap::Control::object_name() const {
    return index < 0 ? name : name + "_" + std::to_string(index);
}

std::pair<std::string, std::string> ScreenMap::parts_of(std::string_view method) {
    const std::size_t at = method.rfind('_');
    return {std::string(method.substr(0, at)), std::string(method.substr(at + 1))};
}

const ScreenMap::Control* ScreenMap::find_control(const std::string& name, int index) const {
    return found(controls_, [&](const Control& c) { return c.name == name && c.index == index; });
}

const ScreenMap::Event* ScreenMap::find_event(const std::string& control, const std::string& name,
                                              int index) const {
    return found(events_,
                 [&](const Event& e) { return e.control == control && e.name == name && e.index == index; });
}

Screen* Screens::find(std::type_index type) const {
    // A type has one name in a program: no need to compare its letters.
    const auto* at = found(loaded_, [&](const auto& each) { return each->type.name() == type.name(); });
    return at != nullptr ? at->get() : nullptr;
}

Screen* Screens::find(const std::string& name) const {
    const auto* at = found(loaded_, [&](const auto& each) { return each->name == name; });
    return at != nullptr ? at->get() : nullptr;
}

std::vector<Screen*> Screens::open() const {
    std::vector<Screen*> all;
    for (const auto& each : loaded_) all.push_back(each.get());
    return all;
}

Screen& Screens::enter(std::unique_ptr<Screen> screen) {
    loaded_.push_back(std::move(screen));
    Screen& entered = *loaded_.back();
    desktop().screen_loaded(entered);
    return entered;
}

bool Screens::holds(const Screen& screen) const {
    return std::any_of(loaded_.begin(), loaded_.end(),
                       [&](const auto& each) { return each.get() == &screen; });
}

Screen& Screens::lasting(Screen& screen) const {
    if (depth_ == 1 && !holds(screen))
        throw RuntimeFault(fault_internal, from_utf8(screen.name) + u" has unloaded itself while it loaded.");
    return screen;
}

void Screens::show(Screen& screen) {
    if (!holds(screen)) return; // it has unloaded itself while it loaded
    screen.visible = true;
    desktop().screen_shown(screen);
    if (screen.activate_event) screen.activate_event();
}

void Screens::show_modal(Screen& screen) {
    const Running running(*this); // the screen may be unloaded while it is waited for
    if (!holds(screen)) return;
    show(screen);
    desktop().wait_modal(screen);
}

void Screens::hide(Screen& screen) {
    screen.visible = false;
    desktop().screen_hidden(screen);
}

void Screens::bring_forward(Screen& screen) {
    const auto at =
        std::find_if(loaded_.begin(), loaded_.end(), [&](const auto& each) { return each.get() == &screen; });
    if (at == loaded_.end()) return; // it has unloaded itself while it loaded
    if (!screen.visible) show(screen);
    std::rotate(at, at + 1, loaded_.end());
    desktop().screen_forward(screen);
}

void Screens::unload(Screen& screen) {
    const Running running(*this);
    const std::function<void()> last = std::exchange(screen.unload_event, nullptr); // runs once
    if (last) last();
    const auto at =
        std::find_if(loaded_.begin(), loaded_.end(), [&](const auto& each) { return each.get() == &screen; });
    if (at == loaded_.end()) return;
    screen.visible = false;
    graveyard_.push_back(std::move(*at));
    loaded_.erase(at);
    desktop().screen_unloaded(*graveyard_.back());
}

void Screens::close(Screen& screen) {
    Running running(*this);
    if (!fire(screen, "Form", "QueryUnload") && screen.holders == 0) unload(screen);
}

void Screens::Hold::add(Screen& screen) {
    ++screen.holders;
    held_.push_back(screen.instance);
}

Screens::Hold::~Hold() {
    for (const auto& instance : held_)
        for (const auto& each : screens_.loaded_)
            if (each->instance == instance) --each->holders;
}

void Screens::unload_all() {
    while (!loaded_.empty()) unload(*loaded_.back());
}

void Screens::bury() {
    std::vector<std::unique_ptr<Screen>> dead;
    dead.swap(graveyard_);
}

bool Screens::dispatch(const std::function<void()>& event) {
    const Running running(*this);
    try {
        try {
            event();
            return true;
        } catch (const RuntimeFault&) {
            throw;
        } catch (const std::bad_alloc&) {
            throw RuntimeFault(fault_memory);
        } catch (const std::exception& error) {
            throw RuntimeFault(fault_internal, u"Internal error: " + from_utf8(error.what()));
        }
    } catch (const RuntimeFault& fault) {
        Message message{fault_message(fault)};
        message.critical = true;
        desktop().MsgBox(message);
    }
    return false;
}

bool Screens::fire(Screen& screen, const std::string& control, const std::string& name, int index) {
    const ScreenMap::Event* const event = screen.map.find_event(control, name, index);
    if (event == nullptr) return false;
    return dispatch(event->run);
}

} // namespace twk
