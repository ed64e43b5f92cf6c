// SPDX-License-Identifier: MIT
#pragma once

#include "platform/silent_desktop.h"

#include <deque>
#include <functional>
#include <map>
#include <vector>

namespace twk::test {

/// A desktop that answers by a script and keeps all that it was asked. A message that no script expects fails
/// the test and is answered as if the user wanted none of it.
class TestDesktop : public SilentDesktop {
  public:
    TestDesktop();
    ~TestDesktop() override; ///< fails the test when a scripted message never came

    /// The next message must contain `part`; it gets `answer`.
    void expect(Text part, Answer answer = Answer::ok);
    /// The next message must be this text to the letter.
    void expect_exactly(Text text, Answer answer);
    /// Whether every expected message has come.
    bool all_said() const { return expected_.empty(); }
    /// From now on every message that contains `part` gets `answer`, however often; expected ones go first.
    void always(Text part, Answer answer);

    std::vector<Message> messages;
    const Text& last_message() const;
    /// Whether the last question had its refusal as default and named `lost` below its text.
    bool warned_of(TextView lost) const;
    std::vector<Text> started;   ///< files and addresses opened in the system
    std::vector<Text> said;      ///< what the status bar told
    std::vector<Text> navigated; ///< addresses the browsers were sent to
    bool has_quit = false;
    std::string focused; ///< the control that asked for the focus last

    std::deque<std::optional<Text>> open_files, save_files;
    std::deque<std::optional<std::uint32_t>> colors;
    std::deque<std::optional<FontChoice>> fonts;
    std::vector<FileQuestion> file_questions;
    std::map<Text, Text> settings; ///< "section/key" to value

    std::map<Text, Text> pages;                ///< address to page, for browsers and fetches
    std::map<Text, int> faults;                ///< address to the fault that its fetch ends in
    std::function<void()> on_events;           ///< runs within DoEvents
    std::function<void()> on_wait;             ///< runs within a wait, behind its time
    std::function<void(Screen&)> on_modal;     ///< stands for the user of a modal screen
    std::function<void(const Text&)> on_fetch; ///< runs before a fetch answers
    int busy_rounds = 0;                       ///< so many times a browser says that it is busy

    Answer MsgBox(const Message& message) override;
    std::optional<Text> ask_open_file(const FileQuestion& question) override;
    std::optional<Text> ask_save_file(const FileQuestion& question) override;
    std::optional<std::uint32_t> ask_color(std::uint32_t start) override;
    std::optional<FontChoice> ask_font(const FontChoice& start) override;
    void DoEvents() override;
    void wait(std::chrono::milliseconds time, const std::function<bool()>& enough) override;
    void start(const Text& file_or_address) override { started.push_back(file_or_address); }
    Text get_setting(TextView section, TextView key, const Text& fallback) override;
    void say(const Text& what) override { said.push_back(what); }
    void quit() override { has_quit = true; }
    void screen_loaded(Screen& screen) override;
    void wait_modal(Screen& screen) override;
    void navigate(WebBrowser& browser, const Text& address) override;
    void go_back(WebBrowser&) override { navigated.push_back(u"back"); }
    void go_forward(WebBrowser&) override { navigated.push_back(u"forward"); }
    void go_home(WebBrowser&) override { navigated.push_back(u"home"); }
    bool busy(WebBrowser&) override { return busy_rounds > 0 && busy_rounds-- > 0; }
    Text fetch(Inet& inet, const Text& address) override;

  private:
    struct Script {
        Text part;
        Answer answer;
        bool whole = false;
        bool fits(const Text& text) const { return whole ? text == part : contains(text, part); }
    };
    std::deque<Script> expected_;
    std::vector<Script> always_;
    Desktop* before_;
};

} // namespace twk::test
