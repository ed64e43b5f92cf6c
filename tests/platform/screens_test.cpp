// SPDX-License-Identifier: MIT
#include "platform/controls.h"
#include "platform/faults.h"
#include "platform/screens.h"
#include "support/faults.h"
#include "support/test_desktop.h"

#include <gtest/gtest.h>

namespace twk::test {

namespace {

int alive = 0;
int unloads = 0;

struct Counted {
    Counted() { ++alive; }
    ~Counted() { --alive; }
};

struct Sample {
    static constexpr const char* name = "Sample";
    static constexpr TextView title = u"A sample";
    ScreenMap map;
    TWK_CONTROL(TextBox, Text1);
    TWK_CONTROLS(CommandButton, 2, Command);
    Counted counted;
    int loads = 0;

    void enumerate(ScreenMap& map) {
        map.event("Command", 0, "Click", [this] { unload_itself(); });
        map.event("Command", 1, "Click", [] { throw RuntimeFault(fault_overflow); });
        map.event("Text1", "Change", [] { throw std::runtime_error("surprise"); });
    }
    void Form_Load() { ++loads; }
    void Form_Unload() { ++unloads; }
    void unload_itself() {
        screens().unload<Sample>();
        EXPECT_FALSE(screens().is_loaded<Sample>());
        EXPECT_NE(&screen<Sample>(), this) << "the next reference makes a fresh one";
        Text1.text = u"still alive";
        EXPECT_EQ(alive, 2);
    }
};

struct Faulty {
    static constexpr const char* name = "Faulty20";
    static constexpr TextView title = u"Faulty";
    static constexpr bool marked = true;
    void Form_Unload() { EXPECT_NE(module1().formas_abiertas[20], 0); }
    void Form_Load() { throw RuntimeFault(fault_store_missing, u"no store"); }
};

struct Other {
    static constexpr const char* name = "Other";
    static constexpr TextView title = u"Other";
};

struct Hasty {
    static constexpr const char* name = "Hasty";
    static constexpr TextView title = u"Hasty";
    void Form_Load() { screens().unload<Hasty>(); }
};

struct ScreensTest : testing::Test {
    ScreensTest() { unloads = 0; }
    ~ScreensTest() override {
        screens().unload_all();
        EXPECT_EQ(alive, 0);
    }
    TestDesktop desktop;
};

} // namespace

TEST_F(ScreensTest, AreMadeByTheFirstReferenceAndAfreshAfterUnload) {
    EXPECT_FALSE(screens().is_loaded<Sample>());
    screen<Sample>().Text1.text = u"typed";
    EXPECT_EQ(screen<Sample>().loads, 1);
    EXPECT_EQ(screens().record<Sample>().caption(), u"A sample");
    EXPECT_TRUE(screens().record<Sample>().visible);
    screens().unload<Sample>();
    screens().unload<Sample>();
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(alive, 0);
    EXPECT_EQ(screen<Sample>().Text1.text(), u"");
}

TEST_F(ScreensTest, MayUnloadThemselvesDuringTheirOwnEvent) {
    screen<Sample>();
    EXPECT_TRUE(screens().fire<Sample>("Command", "Click", 0));
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(unloads, 1);
    screens().dispatch([] { screen<Hasty>(); });
    EXPECT_FALSE(screens().is_loaded<Hasty>());
    desktop.on_modal = [](const Screen&) { FAIL() << "there is nothing to wait for"; };
    screens().show<Hasty>(); // outside an event, too
    screens().show_modal<Hasty>();
    screens().bring_forward<Hasty>();
    EXPECT_FALSE(screens().fire<Hasty>("Command", "Click"));
    EXPECT_EQ(fault_of([] { screen<Hasty>(); }), fault_internal);
    EXPECT_FALSE(screens().is_loaded<Hasty>());
}

TEST_F(ScreensTest, AreNotClosedByTheUserWhileTheyAreHeld) {
    const Sample& first = screen<Sample>();
    {
        Screens::Hold hold(screens());
        hold.add<Sample>();
        hold.add<Other>();
        EXPECT_FALSE(screens().is_loaded<Other>());
        screens().close(screens().record<Sample>());
        EXPECT_TRUE(screens().is_loaded(first));
        screens().dispatch([&first] {
            screens().unload<Sample>(); // the screens themselves may
            screen<Sample>();
            EXPECT_FALSE(screens().is_loaded(first)) << "another one stands in its place";
        });
    }
    screens().close(screens().record<Sample>());
    EXPECT_FALSE(screens().is_loaded<Sample>());
}

TEST_F(ScreensTest, ShowAFaultAndStayOpen) {
    desktop.expect(u"Run-time error '6':\n\nOverflow");
    EXPECT_FALSE(screens().fire<Sample>("Command", "Click", 1));
    desktop.expect(u"surprise");
    EXPECT_FALSE(screens().fire<Sample>("Text1", "Change"));
    EXPECT_TRUE(desktop.messages[0].critical);
    EXPECT_TRUE(screens().is_loaded<Sample>());
    EXPECT_FALSE(screens().event_running());
    EXPECT_FALSE(screens().fire<Sample>("Command", "DblClick", 0)) << "no such event";

    desktop.expect(u"Run-time error '3024':\n\nno store");
    EXPECT_FALSE(screens().dispatch([] { screen<Faulty>(); }));
    EXPECT_FALSE(screens().is_loaded<Faulty>());
    EXPECT_EQ(module1().formas_abiertas[20], 0) << "it was marked until it had gone";

    RuntimeFault in_a_run(fault_disk_full);
    in_a_run.stage = u"Writing first-level pages";
    in_a_run.page = u"roses.htm";
    EXPECT_EQ(fault_message(in_a_run),
              u"Run-time error '61':\n\nDisk full\n\nWriting first-level pages\n\nPage: roses.htm");
}

TEST_F(ScreensTest, TellTheirControlsAndTheOrderTheyStandIn) {
    const Screen& record = screens().record<Sample>();
    const ScreenMap::Control* const second = record.map.find_control("Command", 1);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->object_name(), "Command_1");
    EXPECT_EQ(record.map.find_control("Command"), nullptr);
    screens().show<Other>();
    EXPECT_EQ(screens().open().back()->name, "Other");
    screens().bring_forward<Sample>();
    EXPECT_EQ(screens().open().back()->name, "Sample");
    desktop.on_modal = [](Screen& shown) { screens().unload(shown); };
    screens().show_modal<Other>();
    EXPECT_FALSE(screens().is_loaded<Other>());
}

TEST(Controls, KeepSelectionAndBounds) {
    ListBox list;
    for (const char16_t* const entry : {u"a", u"b", u"c"}) list.add_item(entry);
    list.list_index = 1;
    list.remove_item(0);
    EXPECT_EQ(list.text(), u"b");
    list.remove_item(0);
    EXPECT_EQ(list.list_index(), -1);
    EXPECT_EQ(list.list(5), u"");
    EXPECT_EQ(fault_of([&] { list.remove_item(1); }), fault_argument);
    EXPECT_EQ(fault_of([&] { list.set_list(-1, u"x"); }), fault_argument);

    ListBox several;
    several.multi_select = true;
    for (const char16_t* const entry : {u"a", u"b", u"c"}) several.add_item(entry);
    several.select_from_user(2, {0, 2});
    several.remove_item(1);
    EXPECT_EQ(several.sel_count(), 2);
    EXPECT_TRUE(several.selected(1));

    ProgressBar bar;
    bar.set_value(140);
    EXPECT_EQ(bar.value(), 100);
    bar.set_value(-1);
    EXPECT_EQ(bar.value(), 0);

    Grid grid;
    grid.resize(2, {u"x", u"y"});
    grid.set_cell(2, 1, u"last");
    EXPECT_EQ(grid.rows[1][1], u"last");
    for (const auto& [row, column] : {std::pair(0, 0), std::pair(3, 0), std::pair(1, 2), std::pair(1, -1)})
        EXPECT_EQ(fault_of([&, at = row, in = column] { grid.set_cell(at, in, u""); }), fault_subscript);
}

TEST(Controls, TellTheirObserverOfWritesButNotOfTheUsersOwn) {
    TextBox box;
    std::vector<Prop> told;
    box.observer.watch([&](Prop which) { told.push_back(which); });
    box.text = u"by the program";
    box.text.from_user(u"by the user");
    box.enabled = false;
    EXPECT_EQ(told, (std::vector<Prop>{Prop::text, Prop::enabled}));
    ComboBox combo;
    combo.add_item(u"one");
    combo.select(0);
    EXPECT_EQ(combo.text(), u"one");
    combo.select(-1);
    EXPECT_EQ(combo.text(), u"");
}

TEST(Controls, BoxesGrowAtTheirFront) {
    TextBox box(u"c");
    std::vector<Text> told;
    box.observer.watch(
        [&](Prop which) { told.push_back(which == Prop::front ? box.text.newest() : u"all"); });
    box.text.put_in_front(u"b");
    box.text.put_in_front(u"a");
    EXPECT_EQ(box.text(), u"abc");
    EXPECT_EQ(box.text(), u"abc");
    box.text.put_in_front(u"x");
    box.text = u"y";
    EXPECT_EQ(box.text(), u"y");
    EXPECT_EQ(told, (std::vector<Text>{u"b", u"a", u"x", u"all"}));
}

} // namespace twk::test
