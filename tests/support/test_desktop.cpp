// SPDX-License-Identifier: MIT
#include "support/test_desktop.h"

#include "platform/screens.h"

#include <gtest/gtest.h>

namespace twk::test {

TestDesktop::TestDesktop() : before_(set_desktop(this)) {}

TestDesktop::~TestDesktop() {
    for (const Script& script : expected_) ADD_FAILURE() << "message never shown: " << to_utf8(script.part);
    set_desktop(before_);
}

void TestDesktop::expect(Text part, Answer answer) {
    expected_.push_back({std::move(part), answer});
}
void TestDesktop::expect_exactly(Text text, Answer answer) {
    expected_.push_back({std::move(text), answer, true});
}
void TestDesktop::always(Text part, Answer answer) {
    always_.push_back({std::move(part), answer});
}

const Text& TestDesktop::last_message() const {
    static const Text none;
    return messages.empty() ? none : messages.back().text;
}

bool TestDesktop::warned_of(TextView lost) const {
    return !messages.empty() && messages.back().destructive && contains(messages.back().about, lost);
}

Answer TestDesktop::MsgBox(const Message& message) {
    messages.push_back(message);
    if (!expected_.empty() && expected_.front().fits(message.text)) {
        const Answer answer = expected_.front().answer;
        expected_.pop_front();
        return answer;
    }
    for (const Script& script : always_)
        if (script.fits(message.text)) return script.answer;
    ADD_FAILURE() << "unexpected message: " << to_utf8(message.text)
                  << (expected_.empty() ? "" : "\n  expected: " + to_utf8(expected_.front().part));
    return SilentDesktop::MsgBox(message);
}

namespace {

template <class T> std::optional<T> next(std::deque<std::optional<T>>& answers, const char* what) {
    if (answers.empty()) {
        ADD_FAILURE() << "unexpected dialog: " << what;
        return std::nullopt;
    }
    std::optional<T> answer = std::move(answers.front());
    answers.pop_front();
    return answer;
}

} // namespace

std::optional<Text> TestDesktop::ask_open_file(const FileQuestion& question) {
    file_questions.push_back(question);
    return next(open_files, "open a file");
}

std::optional<Text> TestDesktop::ask_save_file(const FileQuestion& question) {
    file_questions.push_back(question);
    return next(save_files, "save a file");
}

std::optional<std::uint32_t> TestDesktop::ask_color(std::uint32_t) {
    return next(colors, "choose a colour");
}
std::optional<FontChoice> TestDesktop::ask_font(const FontChoice&) {
    return next(fonts, "choose a font");
}

void TestDesktop::DoEvents() {
    if (on_events) on_events();
}

void TestDesktop::wait(std::chrono::milliseconds time, const std::function<bool()>& enough) {
    Desktop::wait(time, enough);
    if (on_wait) on_wait();
}

Text TestDesktop::get_setting(TextView section, TextView key, const Text& fallback) {
    const auto found = settings.find(Text(section) + u"/" + Text(key));
    return found == settings.end() ? fallback : found->second;
}

void TestDesktop::wait_modal(Screen& screen) {
    if (!on_modal) {
        ADD_FAILURE() << "nobody answers the modal screen " << screen.name;
        return;
    }
    on_modal(screen);
}

void TestDesktop::screen_loaded(Screen& screen) {
    for (const ScreenMap::Control& each : screen.map.all_controls())
        std::visit(
            [&](auto* control) {
                control->observer.watch([this, name = each.name](Prop which) {
                    if (which == Prop::focus) focused = name;
                });
            },
            each.ref);
}

void TestDesktop::navigate(WebBrowser& browser, const Text& address) {
    navigated.push_back(address);
    const auto page = pages.find(address);
    shown(browser) = {address, page == pages.end() ? Text() : page->second};
    browser.location_url = address;
}

Text TestDesktop::fetch(Inet&, const Text& address) {
    if (on_fetch) on_fetch(address);
    if (const auto fault = faults.find(address); fault != faults.end()) throw RuntimeFault(fault->second);
    const auto page = pages.find(address);
    if (page == pages.end()) throw RuntimeFault(fault_file_not_found);
    return page->second;
}

} // namespace twk::test
