// SPDX-License-Identifier: MIT
// Whatever a long operation is at, a click or a closed window may come while it lets events run. The
// operations below are started again and again until every event of every screen has run inside one of their
// waits; with the sanitizers on, a look at what is no longer there ends the test.

#include "inputs/form3.h"
#include "inputs/form5.h"
#include "inputs/form7.h"
#include "platform/file_system.h"
#include "reports/form12.h"
#include "settings/form6.h"
#include "shell/form2.h"
#include "support/sample_project.h"
#include "tools/form19.h"
#include "tools/form20.h"
#include "tools/form23.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

namespace twk::test {

namespace {

constexpr int deepest = 2; ///< an event within an event, but no further one within that

/// A user who never waits: each time that events may run, the next of a list does.
class Impatient : public TestDesktop {
  public:
    std::vector<std::function<void()>> events;
    std::size_t next = 0;
    std::size_t step = 1;
    bool on = false;

    void fire() {
        if (!on || depth_ == deepest || next >= events.size()) return;
        ++depth_;
        screens().dispatch(events[std::exchange(next, next + step)]);
        --depth_;
    }

    void DoEvents() override { fire(); }
    Text fetch(Inet& inet, const Text& address) override {
        fire();
        return TestDesktop::fetch(inet, address);
    }
    std::vector<Link> links(WebBrowser& browser) override {
        fire();
        return TestDesktop::links(browser);
    }
    Answer MsgBox(const Message& message) override {
        EXPECT_FALSE(contains(message.text, u"Internal error")) << to_utf8(message.text);
        ++asked_;
        if (message.buttons == Buttons::yes_no) return asked_ % 3 != 0 ? Answer::yes : Answer::no;
        return message.buttons == Buttons::ok_cancel && asked_ % 4 == 0 ? Answer::cancel : Answer::ok;
    }
    std::optional<Text> ask_open_file(const FileQuestion&) override { return std::nullopt; }
    std::optional<Text> ask_save_file(const FileQuestion&) override { return std::nullopt; }
    std::optional<std::uint32_t> ask_color(std::uint32_t) override { return std::nullopt; }
    std::optional<FontChoice> ask_font(const FontChoice&) override { return std::nullopt; }
    void wait_modal(Screen& screen) override { screens().unload(screen); }

  private:
    int depth_ = 0;
    unsigned asked_ = 0;
};

/// A clock in whose waits events run, as those of the windows do.
class BusyClock : public FixedClock {
  public:
    explicit BusyClock(Impatient& user) : FixedClock({2026, 11, 24, 10, 18, 5, 0}), user_(user) {}
    void sleep(std::chrono::milliseconds time) override {
        FixedClock::sleep(time);
        user_.fire();
    }

  private:
    Impatient& user_;
};

struct Operation {
    const char* name;
    const char* screen;
    const char* control;
    std::size_t step = 1; ///< one event in so many: an operation with a single wait would take long otherwise
};

constexpr Operation operations[] = {
    {"FindAndReplace", "Form23", "cmdFindAll"},
    {"Spider", "Form20", "Command7"},
    {"Wizard", "Form3", "cmd_wizard"},
    {"SubkeywordWizard", "Form3", "cmd_wizard_sub", 2},
    {"Import", "Form3", "Command20", 2},
    {"DeleteKeywords", "Form3", "Command7", 5},
    {"DeleteSubkeywords", "Form3", "Command10", 5},
    {"AddBox", "Form5", "Command2", 5},
    {"UpdateBox", "Form5", "Command5", 5},
    {"ShowHtml", "Form5", "cmdshow", 5},
    {"Run", "Form6", "Command1"},
};

/// What a hand can do to the controls of a screen without an event: everything ticked anew, typed over and no
/// longer chosen.
void disturb(Screen& screen) {
    for (const ScreenMap::Control& each : screen.map.all_controls())
        std::visit(
            []<class C>(C* control) {
                if constexpr (std::is_same_v<C, CheckBox>) control->value.from_user(!control->value());
                if constexpr (std::is_same_v<C, TextBox>) control->text.from_user(u"zz*");
                if constexpr (std::is_same_v<C, ListBox>) control->select_from_user(-1, {});
                if constexpr (std::is_same_v<C, FileListBox>) control->list_index.from_user(-1);
            },
            each.ref);
}

template <class... S> void open_anew(const std::string& name) {
    ((name == S::name ? (screens().unload<S>(), screens().show<S>()) : void()), ...);
}

template <class... S> bool is_one_of(const std::string& name) {
    return ((name == S::name) || ...);
}

/// Every event of every loaded screen, and the closing and the opening anew of each.
std::vector<std::function<void()>> all_events() {
    std::vector<std::function<void()>> all;
    const auto add = [&all](const std::string& name, auto act) {
        all.push_back([name, act] {
            if (Screen* screen = screens().find(name)) act(*screen);
        });
    };
    for (const Screen* each : screens().open()) {
        for (const ScreenMap::Event& event : each->map.all_events()) {
            if (event.control == "Drive2") continue; // leads out of the test's folder
            const auto fire = [event](Screen& screen) {
                screens().fire(screen, event.control, event.name, event.index);
            };
            add(each->name, fire);
            // Elsewhere stand the project's name and its hosts, without which little would go on.
            if (is_one_of<Form3, Form5, Form19, Form20, Form23>(each->name))
                add(each->name, [fire](Screen& screen) {
                    disturb(screen);
                    fire(screen);
                });
        }
        add(each->name, [](Screen& screen) { screens().unload(screen); });
        add(each->name, [](Screen& screen) {
            open_anew<Form2, Form3, Form5, Form6, Form7, Form12, Form19, Form20, Form23>(screen.name);
        });
    }
    return all;
}

/// A small project with all screens loaded.
struct World {
    World() {
        set_clock(std::make_shared<BusyClock>(user));
        MkDir(app.path(u"site"));
        app.write(u"words.txt", "early fern\nlate fern\nivy vine\n");
        user.pages[u"results"] = u"<a href=\"http://a.example/\">a</a>"
                                 u"<a href=\"http://b.example/?term=late%20fern&mkt=\">b</a>";
        for (const TextView page : {u"http://a.example/", u"http://b.example/?term=late%20fern&mkt="})
            user.pages[Text(page)] = u"<head><meta name=keywords content=\"moss, fern\"></head>";
    }

    /// Chosen and typed is what any of the operations needs.
    void make_ready() {
        screens().unload<Form3>();
        screens().unload<Form5>();
        screens().unload<Form20>();
        screens().unload<Form23>();
        for (const char16_t* page : {u"site/a.htm", u"site/b.htm", u"site/c.htm"})
            app.write(page, "cat\nx\n");
        Form23& replace = screen<Form23>();
        replace.Dir2.set_path(app.path(u"site"));
        replace.Text1.text = app.path(u"site");
        replace.Text3.text = u"cat";
        user.navigate(screen<Form20>().wb1, u"results");
        Form3& step2 = screen<Form3>();
        step2.List1.select_from_user(0, {0});
        step2.List1_Click();
        step2.List1.select_from_user(0, {0, 1, 2});
        step2.List2.select_from_user(0, {0, 1});
        step2.op_imp_Click(1);
        step2.File2.refresh();
        const auto& files = step2.File2.entries();
        const auto words = std::find(files.begin(), files.end(), u"words.txt");
        step2.File2.list_index = static_cast<int>(words - files.begin());
        Form5& step3 = screen<Form5>();
        step3.List1.list_index = 1;
        step3.List1_Click();
        screen<Form6>(); // may have been closed in the start before
        screen<Form7>();
        screen<Form12>();
        screen<Form19>();
    }

    TempApp app;
    Impatient user;
    SampleProject project{app};
};

class SecondEvent : public testing::TestWithParam<Operation> {};

TEST_P(SecondEvent, may_come_whenever_events_run) {
    const Operation& operation = GetParam();
    std::vector<std::function<void()>> events;
    std::size_t next = 0;
    do {
        World world;
        // A world lasts for some starts, as making one takes longer than most operations.
        for (int start = 0; start < 8; ++start) {
            world.make_ready();
            if (events.empty()) events = all_events();
            world.user.events = events;
            world.user.next = next;
            world.user.step = operation.step;
            world.user.on = true;
            screens().fire(*screens().find(operation.screen), operation.control, "Click");
            world.user.on = false;
            ASSERT_TRUE(world.user.next > next || start > 0) << "no events ran";
            next = world.user.next;
            EXPECT_EQ(to_utf8(screen<Form20>().Command7.caption()), "Spider");
            EXPECT_EQ(screen<Form3>().silent, 0);
            EXPECT_FALSE(screen<Form3>().Frame4.visible());
            for (const Text& file : list_files(world.app.path(u"site"), u"*"))
                EXPECT_TRUE(file == u"a.htm" || file == u"b.htm" || file == u"c.htm") << to_utf8(file);
        }
    } while (next < events.size());
    EXPECT_GT(events.size(), 100U);
}

INSTANTIATE_TEST_SUITE_P(While, SecondEvent, testing::ValuesIn(operations),
                         [](const auto& operation) { return std::string(operation.param.name); });

} // namespace

} // namespace twk::test
