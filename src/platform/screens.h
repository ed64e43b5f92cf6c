// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"
#include "platform/undo_stack.h"

#include <functional>
#include <memory>
#include <string>
#include <typeindex>
#include <variant>
#include <vector>

namespace twk {

using ControlRef =
    std::variant<Label*, Frame*, CommandButton*, TextBox*, RichTextBox*, CheckBox*, OptionButton*, ListBox*,
                 ComboBox*, Slider*, ProgressBar*, Grid*, PictureBox*, FileListBox*, DirListBox*,
                 DriveListBox*, WebBrowser*, Inet*, CommonDialog*, Timer*>;

/// What a screen is made of, told once by the screen itself: its controls and its events, for the front ends
/// and for tests.
class ScreenMap {
  public:
    struct Control {
        std::string name; ///< "txt_url"
        int index = -1;   ///< place in its array, -1 outside one
        ControlRef ref;
        /// Name of its widget: "txt_url_0" for an element of an array.
        std::string object_name() const;
    };
    struct Event {
        std::string control; ///< "txt_url"; "Form" for the screen itself
        int index = -1;
        std::string name; ///< "Click", "LostFocus", "Change", ...
        std::function<void()> run;
    };

    template <class C> void control(std::string name, C& control) {
        controls_.push_back({std::move(name), -1, &control});
    }
    /// An array of controls, indexed from 0.
    template <class Array> void controls(const std::string& name, Array& array) {
        int index = 0;
        for (auto& each : array) controls_.push_back({name, index++, &each});
    }
    /// One element of an array whose indices have holes.
    template <class C> void element(std::string name, int index, C& control) {
        controls_.push_back({std::move(name), index, &control});
    }

    void event(std::string control, std::string name, std::function<void()> run) {
        events_.push_back({std::move(control), -1, std::move(name), std::move(run)});
    }
    void event(std::string control, int index, std::string name, std::function<void()> run) {
        events_.push_back({std::move(control), index, std::move(name), std::move(run)});
    }

    const std::vector<Control>& all_controls() const { return controls_; }
    const std::vector<Event>& all_events() const { return events_; }
    /// Null when there is none of that name.
    const Control* find_control(const std::string& name, int index = -1) const;
    const Event* find_event(const std::string& control, const std::string& name, int index = -1) const;

  private:
    std::vector<Control> controls_;
    std::vector<Event> events_;
};

/// A loaded screen as the registry and the front ends see it, whatever its class.
struct Screen {
    explicit Screen(std::type_index kind) : type(kind) {}
    std::type_index type;
    std::string name;  ///< "Form6"
    Observer observer; ///< told of `caption`
    Property<Text> caption{observer, Prop::caption, {}};
    bool visible = false;
    ScreenMap map;
    std::shared_ptr<void> instance;
    std::function<void()> unload_event;         ///< Form_Unload, empty when the screen has none
    std::function<void()> activate_event;       ///< Form_Activate, likewise
    const UndoStack* deletions = nullptr;       ///< what the screen has deleted; null for most
    std::function<void()> undo_event;           ///< takes the newest of them back
    TextView taken_files;                       ///< endings of files that can be dropped on it: ".exp .txt"
    std::function<void(const Text&)> take_file; ///< takes such a file by its path
    void* front_end = nullptr;                  ///< the window that shows it, owned by the front end
    int holders = 0;                            ///< those that need it open, see `Screens::Hold`
};

/// The screens: one default instance of each class, made and loaded by the first reference.
///
/// A screen class is default-constructible and has
///   static constexpr const char* name = "Form6";
///   static constexpr TextView title = u"Step 5 of 6 - Gateway Generation";   the caption at load
///   void enumerate(ScreenMap& map);   tells its controls and events, once
/// and, where it needs them, Form_Load(), Form_Unload() and Form_Activate(); a screen whose deletions can be
/// taken back has them in `UndoStack deletions` and takes the newest back in undo_delete(). One that files
/// may be dropped on says
///   static constexpr TextView taken_files = u".exp .txt";
/// and has take_file(path).
/// A loaded screen is visible: loading shows it, unless the class says
///   static constexpr bool shown_when_loaded = false;
/// A screen unloaded while an event runs leaves the registry at once and is destroyed when the outermost
/// event has returned. A screen may unload itself while it loads: it is not shown then.
class Screens {
  public:
    /// The instance, loaded if need be. Fault 51 when, outside an event, it unloads itself while it loads.
    template <class S> S& get() { return *static_cast<S*>(record<S>().instance.get()); }
    template <class S> bool is_loaded() const { return find(typeid(S)) != nullptr; }
    /// Whether this very instance is loaded: a screen that was closed while its own event waited, and perhaps
    /// opened anew, is not.
    template <class S> bool is_loaded(const S& form) const {
        const Screen* const loaded = find(typeid(S));
        return loaded != nullptr && loaded->instance.get() == static_cast<const void*>(&form);
    }
    /// The registry's record of a screen, likewise.
    template <class S> Screen& record() {
        const Running running(*this);
        return lasting(record<S>(running));
    }

    template <class S> void show() {
        const Running running(*this);
        show(record<S>(running));
    }
    /// Shows the screen and waits until it has been hidden or unloaded.
    template <class S> void show_modal() {
        const Running running(*this);
        show_modal(record<S>(running));
    }
    template <class S> void hide() {
        if (Screen* loaded = find(typeid(S))) hide(*loaded);
    }
    template <class S> void bring_forward() {
        const Running running(*this);
        bring_forward(record<S>(running));
    }
    /// Runs Form_Unload and destroys the instance; nothing happens when it is not loaded.
    template <class S> void unload() {
        if (Screen* loaded = find(typeid(S))) unload(*loaded);
    }

    void show(Screen& screen);
    void show_modal(Screen& screen);
    void hide(Screen& screen);
    void bring_forward(Screen& screen);
    void unload(Screen& screen);
    /// What the close box of its window does: a screen that answers by an event of its own, Form_QueryUnload,
    /// has it raised and stays; a held one stays as well; any other is unloaded.
    void close(Screen& screen);
    /// Unloads all that is loaded, the newest first.
    void unload_all();

    Screen* find(std::type_index type) const;
    Screen* find(const std::string& name) const;
    /// The loaded screens, the one brought forward last at the end.
    std::vector<Screen*> open() const;

    /// Runs an event (or anything that may unload screens): a fault ends it and is shown through the desktop.
    /// Returns whether it ended without a fault.
    bool dispatch(const std::function<void()>& event);
    /// The same for an event of a screen by name; false when the screen has no such event.
    bool fire(Screen& screen, const std::string& control, const std::string& name, int index = -1);
    template <class S> bool fire(const std::string& control, const std::string& name, int index = -1) {
        const Running running(*this);
        return fire(record<S>(running), control, name, index);
    }
    bool event_running() const { return depth_ > 0; }

    /// Keeps the user from closing a screen that a long operation works on, as long as this lives. The
    /// screens themselves may unload it all the same.
    class Hold {
      public:
        explicit Hold(Screens& screens) : screens_(screens) {}
        ~Hold();
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;
        /// Adds a screen, if it is loaded.
        template <class S> void add() {
            if (Screen* const loaded = screens_.find(typeid(S))) add(*loaded);
        }

      private:
        void add(Screen& screen);
        Screens& screens_;
        std::vector<std::shared_ptr<void>> held_; ///< their instances
    };

  private:
    /// Keeps what is unloaded alive while it may still run. Whoever is handed one may rely on that.
    class Running {
      public:
        explicit Running(Screens& screens) : screens_(screens) { ++screens_.depth_; }
        ~Running() {
            if (--screens_.depth_ == 0) screens_.bury();
        }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;

      private:
        Screens& screens_;
    };

    /// The record, loaded or not any more: it lasts as long as `running`.
    template <class S> Screen& load(const Running& running);
    template <class S> Screen& record(const Running& running) {
        // cppcheck-suppress constVariable ; it is returned as one that can be changed
        if (Screen* const loaded = find(typeid(S))) return *loaded;
        return load<S>(running);
    }
    /// The same record, if it outlives the call that loaded it; otherwise fault 51.
    Screen& lasting(Screen& screen) const;
    bool holds(const Screen& screen) const;
    Screen& enter(std::unique_ptr<Screen> screen);
    void bury();

    std::vector<std::unique_ptr<Screen>> loaded_;
    std::vector<std::unique_ptr<Screen>> graveyard_;
    int depth_ = 0;
};

Screens& screens();

/// The default instance of a screen: `screen<Form2>().txt_name[0].text()`.
template <class S> S& screen() {
    return screens().get<S>();
}

namespace screen_events {

template <class S> void load(S& form) {
    if constexpr (requires { form.Form_Load(); }) form.Form_Load();
}
template <class S> std::function<void()> unload_of(S& form) {
    if constexpr (requires { form.Form_Unload(); }) return [&form] { form.Form_Unload(); };
    return {};
}
template <class S> std::function<void()> activate_of(S& form) {
    if constexpr (requires { form.Form_Activate(); }) return [&form] { form.Form_Activate(); };
    return {};
}
template <class S> constexpr bool shown_when_loaded() {
    if constexpr (requires { S::shown_when_loaded; }) return S::shown_when_loaded;
    return true;
}

} // namespace screen_events

template <class S> Screen& Screens::load(const Running&) {
    auto made = std::make_unique<Screen>(typeid(S));
    const auto instance = std::make_shared<S>();
    S& form = *instance;
    made->name = S::name;
    made->caption = Text(S::title);
    made->instance = instance;
    form.enumerate(made->map);
    made->unload_event = screen_events::unload_of(form);
    made->activate_event = screen_events::activate_of(form);
    if constexpr (requires { form.undo_delete(); }) {
        made->deletions = &form.deletions;
        made->undo_event = [&form] { form.undo_delete(); };
    }
    if constexpr (requires { S::taken_files; }) { // cppcheck-suppress duplicateCondition ; no such thing
        made->taken_files = S::taken_files;
        made->take_file = [&form](const Text& path) { form.take_file(path); };
    }
    Screen& entered = enter(std::move(made));
    try {
        screen_events::load(form);
    } catch (...) {
        unload(entered);
        throw;
    }
    if (screen_events::shown_when_loaded<S>() && !entered.visible) show(entered);
    return entered;
}

} // namespace twk
