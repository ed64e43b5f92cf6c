// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main_window.h"
#include "desktop/transfer.h"
#include "platform/desktop.h"

#include <QElapsedTimer>
#include <vector>

namespace twk {

class BrowserView;

/// The desktop of the window program: Qt windows, the system's own dialogs, Qt WebEngine, Qt Network.
class QtDesktop : public Desktop {
  public:
    QtDesktop();
    ~QtDesktop() override;

    MainWindow& window() { return window_; }

    Answer MsgBox(const Message& message) override;
    std::optional<Text> ask_open_file(const FileQuestion& question) override;
    std::optional<Text> ask_save_file(const FileQuestion& question) override;
    std::optional<std::uint32_t> ask_color(std::uint32_t start) override;
    std::optional<FontChoice> ask_font(const FontChoice& start) override;

    /// A call that comes within some 35 ms behind the end of the one before does nothing.
    void DoEvents() override;
    void run_all_events() override;
    void wait(std::chrono::milliseconds time, const std::function<bool()>& enough) override;
    void start(const Text& file_or_address) override;
    Text get_setting(TextView section, TextView key, const Text& fallback) override;
    void say(const Text& what) override;
    /// With an event under way the process ends then and there: the store is durable after each statement,
    /// and a page that is not finished is rewritten by the next run.
    void quit() override;

    void screen_loaded(Screen& screen) override;
    void screen_unloaded(Screen& screen) override;
    void screen_shown(Screen& screen) override;
    void screen_hidden(Screen& screen) override;
    void screen_forward(Screen& screen) override;
    void wait_modal(Screen& screen) override;

    void navigate(WebBrowser& browser, const Text& address) override;
    void show_html(WebBrowser& browser, const Text& html) override;
    void go_back(WebBrowser& browser) override;
    void go_forward(WebBrowser& browser) override;
    void go_home(WebBrowser& browser) override;
    bool busy(WebBrowser& browser) override;
    Text inner_text(WebBrowser& browser) override;
    std::vector<Link> links(WebBrowser& browser) override;

    Text fetch(Inet& inet, const Text& address) override;
    void cancel(Inet& inet) override;

  private:
    std::optional<Text> ask_file(const FileQuestion& question, bool save);
    bool may_write(const Text& path, const Text& title);
    BrowserView* view(const WebBrowser& browser) const;

    using Pause = std::chrono::nanoseconds;

    MainWindow window_;
    Transfer transfer_;
    QElapsedTimer pumped_; ///< since events were let run
    Pause pause_{};        ///< until they are let run again
};

} // namespace twk
