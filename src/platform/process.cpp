// SPDX-License-Identifier: MIT
#include "platform/process.h"

#include "platform/desktop.h"

#include <stdexcept>
#include <utility>

namespace twk {

namespace {

Process*& current() {
    static Process first;
    static Process* one = &first;
    return one;
}

} // namespace

Process& process() {
    return *current();
}

ProcessGuard::ProcessGuard(Desktop& desktop, TextView app_path, std::shared_ptr<Clock> clock,
                           std::optional<std::uint64_t> seed)
    : before_(std::exchange(current(), &own_)) {
    own_.desktop = &desktop;
    set_app_path(Text(app_path));
    set_clock(std::move(clock));
    if (seed) own_.chance.fix_seed(*seed);
}

ProcessGuard::~ProcessGuard() {
    own_.screens.dispatch([this] { own_.screens.unload_all(); });
    current() = before_;
}

Desktop& desktop() {
    if (process().desktop == nullptr) throw std::logic_error("no desktop in place");
    return *process().desktop;
}

Desktop* set_desktop(Desktop* desktop) {
    return std::exchange(process().desktop, desktop);
}

const Text& app_path() {
    return process().app_path;
}

void set_app_path(Text path) {
    while (path.size() > 1 && path.ends_with(path_separator)) path.pop_back();
    process().app_path = std::move(path);
}

Clock& clock() {
    return *process().clock;
}

void set_clock(std::shared_ptr<Clock> clock) {
    process().clock = clock ? std::move(clock) : std::make_shared<SystemClock>();
}

Chance& chance() {
    return process().chance;
}

Module1& module1() {
    return process().module1;
}

Screens& screens() {
    return process().screens;
}

} // namespace twk
