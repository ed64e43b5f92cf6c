// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop.h"

#include <map>

namespace twk {

/// A desktop without anything to see and with nobody at it: questions get their refusal, dialogs are
/// cancelled, nothing is opened, there is no network. Its browsers know the address that they were last sent
/// to. What answers more derives from it.
class SilentDesktop : public Desktop {
  public:
    Answer MsgBox(const Message& message) override;
    std::optional<Text> ask_open_file(const FileQuestion&) override { return {}; }
    std::optional<Text> ask_save_file(const FileQuestion&) override { return {}; }
    std::optional<std::uint32_t> ask_color(std::uint32_t) override { return {}; }
    std::optional<FontChoice> ask_font(const FontChoice&) override { return {}; }

    void DoEvents() override {}
    void start(const Text&) override {}
    Text get_setting(TextView, TextView, const Text& fallback) override { return fallback; }
    void quit() override {}

    void screen_loaded(Screen&) override {}
    void screen_unloaded(Screen&) override {}
    void screen_shown(Screen&) override {}
    void screen_hidden(Screen&) override {}
    void screen_forward(Screen&) override {}
    /// The screen is left at once.
    void wait_modal(Screen& screen) override;

    /// Shows nothing of the address.
    void navigate(WebBrowser& browser, const Text& address) override { shown_[&browser] = {address, {}}; }
    /// Keeps nothing: whoever shows HTML has it.
    void show_html(WebBrowser& browser, const Text&) override { shown_.erase(&browser); }
    void go_back(WebBrowser&) override {}
    void go_forward(WebBrowser&) override {}
    void go_home(WebBrowser&) override {}
    bool busy(WebBrowser&) override { return false; }
    Text inner_text(WebBrowser& browser) override;
    std::vector<Link> links(WebBrowser& browser) override;

    /// Fault 57.
    Text fetch(Inet& inet, const Text& address) override;

  protected:
    struct Shown {
        Text address;
        Text html;
    };
    Shown& shown(const WebBrowser& browser) { return shown_[&browser]; }

  private:
    std::map<const WebBrowser*, Shown> shown_;
};

} // namespace twk
