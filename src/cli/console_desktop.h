// SPDX-License-Identifier: MIT
#pragma once

#include "cli/commands.h"
#include "platform/silent_desktop.h"

#include <chrono>

namespace twk::cli {

/// The desktop without a display: questions are answered Yes (whether to save the names of Step 6: No),
/// messages go to the console, modal screens are left by their first button, nothing is opened.
class ConsoleDesktop : public SilentDesktop {
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
    void start(const Text& file_or_address) override { opened_ = file_or_address; }
    void screen_loaded(Screen& screen) override;
    void wait_modal(Screen& screen) override;
    /// A local page is read when its text is asked for; an address of the web stays empty.
    Text inner_text(WebBrowser& browser) override;

  private:
    void tell(const Text& status);

    const Console console_;
    std::vector<Text> messages_;
    Text opened_;
    bool telling_ = false;
    bool line_open_ = false;
    std::chrono::steady_clock::time_point told_{};
};

} // namespace twk::cli
