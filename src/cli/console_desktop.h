// SPDX-License-Identifier: MIT
#pragma once

#include "cli/commands.h"
#include "platform/desktop.h"

#include <chrono>
#include <map>

namespace twk::cli {

/// The desktop without a display: questions are answered Yes (whether to save the names of Step 6: No),
/// messages go to the console, modal screens are left by their first button, nothing is opened.
class ConsoleDesktop : public Desktop {
  public:
    explicit ConsoleDesktop(const Console& console) : console_(console) {}

    /// Texts of the boxes with OK alone, faults among them, since the last `forget_messages`.
    const std::vector<Text>& messages() const { return messages_; }
    void forget_messages() { messages_.clear(); }
    /// What the run opened at its end: the local site map. Empty when it opened nothing.
    const Text& opened() const { return opened_; }
    /// Whether pages are told as they are written.
    void tell_progress(bool on) { telling_ = on; }
    /// Wipes the progress line of a terminal.
    void end_progress();

    Answer MsgBox(const Message& message) override;
    std::optional<Text> ask_open_file(const FileQuestion&) override { return {}; }
    std::optional<Text> ask_save_file(const FileQuestion&) override { return {}; }
    std::optional<std::uint32_t> ask_color(std::uint32_t) override { return {}; }
    std::optional<FontChoice> ask_font(const FontChoice&) override { return {}; }
    void DoEvents() override {}
    void start(const Text& file_or_address) override { opened_ = file_or_address; }
    Text get_setting(TextView, TextView, const Text& fallback) override { return fallback; }
    /// No command presses Quit.
    void quit() override {}

    void screen_loaded(Screen& screen) override;
    void screen_unloaded(Screen&) override {}
    void screen_shown(Screen&) override {}
    void screen_hidden(Screen&) override {}
    void screen_forward(Screen&) override {}
    void wait_modal(Screen& screen) override;

    void navigate(WebBrowser& browser, const Text& address) override;
    void show_html(WebBrowser& browser, const Text& html) override;
    void go_back(WebBrowser&) override {}
    void go_forward(WebBrowser&) override {}
    void go_home(WebBrowser&) override {}
    bool busy(WebBrowser&) override { return false; }
    Text inner_text(WebBrowser& browser) override;
    std::vector<Link> links(WebBrowser& browser) override;
    /// There is no network: fault 57.
    Text fetch(Inet& inet, const Text& address) override;

  private:
    struct Shown {
        Text address;
        Text html;
    };

    void tell(const Text& status);

    const Console console_;
    std::vector<Text> messages_;
    Text opened_;
    std::map<const WebBrowser*, Shown> shown_;
    bool telling_ = false;
    bool line_open_ = false;
    std::chrono::steady_clock::time_point told_{};
};

} // namespace twk::cli
