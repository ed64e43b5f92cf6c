// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"
#include "platform/module1.h"
#include "platform/undo_stack.h"

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <typeindex>
#include <utility>
#include <variant>
#include <vector>

namespace twk {

using ControlRef =
    std::variant<Label*, Frame*, CommandButton*, TextBox*, RichTextBox*, CheckBox*, OptionButton*, ListBox*,
                 ComboBox*, Slider*, ProgressBar*, Grid*, PictureBox*, FileListBox*, DirListBox*,
                 DriveListBox*, WebBrowser*, Inet*, CommonDialog*, Timer*>;

/// "Command1_Click" for &Form5::Command1_Click. The language has no word for it, but the compilers write it
/// into the name of a function that is made for the method: "... Method = &twk::Form5::Command1_Click; ...".
template <auto Method> constexpr std::string_view method_name() {
    std::string_view text = __PRETTY_FUNCTION__;
    text.remove_prefix(text.find("Method = "));
    text = text.substr(0, text.find_first_of(";]"));
    return text.substr(text.rfind("::") + 2);
}
namespace method_name_check {
struct Form {
    void op_imp_Click(int);
};
static_assert(method_name<&Form::op_imp_Click>() == "op_imp_Click");
} // namespace method_name_check

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

    /// `index` -1 for one outside an array. The control must stay where it is.
    void control(std::string name, int index, ControlRef control) {
        controls_.push_back({std::move(name), index, control});
    }

    /// The methods named Control_Event, as the events that their names tell: Command1_Click is Click of
    /// Command1. One that takes an index is the event of every element of its array.
    template <auto... Methods, class Form> void events(Form& form) {
        (named_event(method_name<Methods>(), form, Methods), ...);
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
    template <class Form> void named_event(std::string_view name, Form& form, void (Form::*run)()) {
        const auto [control, what] = parts_of(name);
        event(control, what, [&form, run] { (form.*run)(); });
    }
    template <class Form> void named_event(std::string_view name, Form& form, void (Form::*run)(int)) {
        const auto [control, what] = parts_of(name);
        for (const Control& each : controls_)
            if (each.name == control)
                event(control, each.index, what, [&form, run, index = each.index] { (form.*run)(index); });
    }
    /// "op_imp_Click" is Click of op_imp.
    static std::pair<std::string, std::string> parts_of(std::string_view method);

    std::vector<Control> controls_;
    std::vector<Event> events_;
};

/// A control that enters itself into the map of its screen.
template <class C> struct Named : C {
    template <class... Initial>
    Named(ScreenMap& map, const char* name, int index, Initial&&... initial)
        : C(std::forward<Initial>(initial)...) {
        map.control(name, index, static_cast<C*>(this));
    }
    Named(const Named&) = delete;
    Named& operator=(const Named&) = delete;
};

/// Controls of one name, told apart by their index from 0; made from nothing or from one value each.
template <class C, std::size_t Count> struct NamedArray : std::array<C, Count> {
    NamedArray(ScreenMap& map, const char* name) { enter(map, name); }
    template <class... Initial>
    requires(sizeof...(Initial) == Count) NamedArray(ScreenMap& map, const char* name, Initial&&... initial)
        : std::array<C, Count>{{C(std::forward<Initial>(initial))...}} {
        enter(map, name);
    }
    NamedArray(const NamedArray&) = delete;
    NamedArray& operator=(const NamedArray&) = delete;

  private:
    void enter(ScreenMap& map, const char* name) {
        int index = 0;
        for (C& each : *this) map.control(name, index++, &each);
    }
};

/// The members that are a screen's controls, declared below its `ScreenMap map`:
///   TWK_CONTROL(CommandButton, Command1, u"Next");             Command1
///   TWK_CONTROLS(TextBox, 3, txt_url, u"a", u"b", u"c");       txt_url[0] to txt_url[2]
///   TWK_ELEMENT(CommandButton, Command2, 110, u"Background");  Command2_110, where the indices have holes
/// What follows the name is handed to the control. Macros, as nothing else makes one word the name of a
/// member and a text.
// clang-format off
#define TWK_CONTROL(Kind, name, ...) Named<Kind> name{map, #name, -1, __VA_ARGS__}
#define TWK_CONTROLS(Kind, count, name, ...) NamedArray<Kind, count> name{map, #name, __VA_ARGS__}
#define TWK_ELEMENT(Kind, name, index, ...) Named<Kind> name##_##index{map, #name, index, __VA_ARGS__}
// clang-format on

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
    std::function<void()> unload_event;         ///< Form_Unload, and what follows it
    std::function<void()> activate_event;       ///< Form_Activate, empty when the screen has none
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
///   ScreenMap map;   in front of its controls, which enter themselves; the record takes it over at load
/// and, where it needs them,
///   void enumerate(ScreenMap& map);   tells its events, once
/// Form_Load(), Form_Unload() and Form_Activate(); a screen whose deletions can be taken back has them in
/// `UndoStack deletions` and takes the newest back in undo_delete(). One that files may be dropped on says
///   static constexpr TextView taken_files = u".exp .txt";
/// and has take_file(path). One that says
///   static constexpr bool marked = true;
/// is marked in `formas_abiertas`, by the number in its name, from before its Form_Load to behind its
/// Form_Unload. A loaded screen is visible: loading shows it, unless the class says
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

/// The number in the name of a screen that is marked while it is loaded, 0 for another one.
template <class S> constexpr int number_of() {
    int number = 0;
    if constexpr (requires { S::marked; })
        for (const char each : std::string_view(S::name))
            if (each >= '0' && each <= '9') number = number * 10 + (each - '0');
    return number;
}
template <class S> ScreenMap controls_of(S& form) {
    if constexpr (requires { form.map; }) return std::move(form.map);
    return {};
}
template <class S> void enumerate(S& form, ScreenMap& map) {
    if constexpr (requires { form.enumerate(map); }) form.enumerate(map);
}
template <class S> void load(S& form) {
    if constexpr (number_of<S>() != 0) marcar_forma(number_of<S>(), true);
    if constexpr (requires { form.Form_Load(); }) form.Form_Load();
}
template <class S> void unload(S& form) {
    if constexpr (requires { form.Form_Unload(); }) form.Form_Unload();
    if constexpr (number_of<S>() != 0) marcar_forma(number_of<S>(), false);
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
    made->map = screen_events::controls_of(form);
    screen_events::enumerate(form, made->map);
    made->unload_event = [&form] { screen_events::unload(form); };
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
