// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"
#include "platform/faults.h"
#include "platform/paths.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace twk {

struct Screen;

enum class Buttons { ok, ok_cancel, yes_no };
enum class Answer { ok, cancel, yes, no };

struct Message {
    Text text;
    Buttons buttons = Buttons::ok;
    Text title = u"Tarnwick"; ///< the application's default title
    bool critical = false;
    /// What stands below the text: what an answer would destroy, by name. Empty for most.
    Text about = {};
    /// Whether OK or Yes would destroy something: Cancel or No is then the answer of the Enter key.
    bool destructive = false;
};

struct FileQuestion {
    Text title;
    Text start_folder;
    Text filter;    ///< "Text (*.dat)|*.dat" or a bare pattern
    Text file_name; ///< suggested
    Text ending;    ///< ".dat": what a name to save under must hold; empty for none
};

/// The name with the ending behind it, unless it holds that ending anywhere.
Text with_ending(Text name, TextView ending);

struct FontChoice {
    Text name;
    double size = 8; ///< points
    bool bold = false, italic = false, strikethrough = false, underline = false;
};

/// What a browser shows, as the screens read it.
struct Link {
    Text address; ///< resolved against the page's own
};

/// The one seam to the world outside: windows, dialogs, browser, network, settings of the user. Implemented
/// by the Qt front end, by the console, and by the tests.
class Desktop {
  public:
    virtual ~Desktop() = default;

    virtual Answer MsgBox(const Message& message) = 0;
    virtual std::optional<Text> ask_open_file(const FileQuestion& question) = 0;
    /// A file that is there under the name that will be written, the ending included, is given only once the
    /// user has agreed to replace it.
    virtual std::optional<Text> ask_save_file(const FileQuestion& question) = 0;
    /// Blue, green, red from the high byte down.
    virtual std::optional<std::uint32_t> ask_color(std::uint32_t start) = 0;
    virtual std::optional<FontChoice> ask_font(const FontChoice& start) = 0;

    /// Lets waiting events run: other events of the screens may run within. A front end with windows passes
    /// over a call that comes too soon behind the one before, so that a loop may call this as often as it
    /// likes.
    virtual void DoEvents() = 0;
    /// The same at the end of a stretch of work: no call is passed over.
    virtual void run_all_events() { DoEvents(); }
    /// Waits. With windows other events run meanwhile, any event of any screen among them, and the wait ends
    /// early as soon as `enough` says so; an empty one never does. Without windows the clock sleeps the time.
    virtual void wait(std::chrono::milliseconds time, const std::function<bool()>& enough);
    /// Opens a file or an address in the system's own program for it. Fault 53 when that cannot be.
    virtual void start(const Text& file_or_address) = 0;
    virtual Text get_setting(TextView section, TextView key, const Text& fallback) = 0;
    /// Tells what has just been done, where a screen itself says nothing: a line at the window's foot that
    /// asks for no answer.
    virtual void say(const Text&) {}
    /// Ends the program at once.
    virtual void quit() = 0;

    // Windows of the screens. The registry calls these; screens use `screens()`.
    virtual void screen_loaded(Screen& screen) = 0;
    virtual void screen_unloaded(Screen& screen) = 0;
    virtual void screen_shown(Screen& screen) = 0;
    virtual void screen_hidden(Screen& screen) = 0;
    virtual void screen_forward(Screen& screen) = 0;
    /// Waits until the screen is no longer visible.
    virtual void wait_modal(Screen& screen) = 0;

    // The browser control.
    virtual void navigate(WebBrowser& browser, const Text& address) = 0;
    virtual void show_html(WebBrowser& browser, const Text& html) = 0;
    virtual void go_back(WebBrowser& browser) = 0;
    virtual void go_forward(WebBrowser& browser) = 0;
    virtual void go_home(WebBrowser& browser) = 0;
    virtual bool busy(WebBrowser& browser) = 0;
    /// Visible text of the page's body.
    virtual Text inner_text(WebBrowser& browser) = 0;
    /// The page's links in document order.
    virtual std::vector<Link> links(WebBrowser& browser) = 0;

    /// Fetches a page, waiting up to the control's time-out while other events run. Fault 35761 on a
    /// time-out, another fault when it cannot be had.
    virtual Text fetch(Inet& inet, const Text& address) = 0;
    /// Breaks off what the control is fetching: each `fetch` under way ends at once, in a fault that is no
    /// time-out. Nothing happens when there is none.
    virtual void cancel(Inet&) {}
};

Desktop& desktop();
/// Puts a desktop in place for the process; it must outlive its use. Returns the one before, null at first.
Desktop* set_desktop(Desktop* desktop);

Answer MsgBox(const Text& text);
Answer MsgBox(const Text& text, Buttons buttons, const Text& title = u"Tarnwick");
/// A question whose OK or Yes destroys what `about` names.
Answer ask_before_loss(const Text& text, Buttons buttons, const Text& title, const Text& about);
void DoEvents();
/// Tells what has just been done, in the status bar of the window.
void say(const Text& what);

/// Keeps messages that ask nothing from the user as long as it lives, for one summary in their place.
/// Questions are asked. Of several the newest hears them.
class HeldMessages {
  public:
    HeldMessages();
    ~HeldMessages();
    HeldMessages(const HeldMessages&) = delete;
    HeldMessages& operator=(const HeldMessages&) = delete;
    /// Those since the last call.
    std::vector<Text> take() { return std::exchange(held_, {}); }

  private:
    friend Answer MsgBox(const Text& text);
    std::vector<Text> held_;
    HeldMessages* before_;
};

/// The folder of the running program, without a separator at its end.
const Text& app_path();
void set_app_path(Text path);

/// Path of a file, or of what lies below it, in the application folder.
Text beside_program(TextView file);

} // namespace twk
