// SPDX-License-Identifier: MIT
#include "inputs/step_two.h"
#include "tools/form19.h"

namespace twk {
namespace {

class Wizard : public test::StepTwo {
  protected:
    Form19& wizard() { return screen<Form19>(); }
    std::string caption() { return to_utf8(screens().record<Form19>().caption()); }
    static Text address(const Text& term) {
        return u"http://suggest.tarnwick.example/d/searchinventory/suggestion/?term=" + term;
    }
    void suggest(const Text& term, const std::vector<Text>& queries) {
        Text page = u"<body><a href=\"http://x.example/\">other</a>";
        for (const Text& query : queries) page += u"<a href=\"/s?term=" + query + u"\">x</a>";
        app.desktop.pages[address(term)] = page;
    }
};

TEST_F(Wizard, suggests_terms_for_every_keyword) {
    store_keyword(u"red roses");
    store_keyword(u" ");
    store_keyword(u"tulips");
    suggest(u"red%20roses", {u"Climbing%20%20Roses&mkt=us", u"TULIPS&mkt=us", u"a%2Eb%2Fc&mkt=us"});
    suggest(u"tulips", {u"climbing%20roses&mkt=us", u"late%20tulips&mkt=us"});
    click("cmd_wizard");
    EXPECT_EQ(joined(wizard().List1.entries()), "Climbing Roses|a b c|late tulips");
    EXPECT_EQ(wizard().List1.sel_count(), 3);
    EXPECT_EQ(joined(app.desktop.navigated),
              "about:blank|" + to_utf8(address(u"red%20roses") + u"|" + address(u"tulips")));
    EXPECT_EQ(app.clock->slept, std::chrono::seconds(20));
    EXPECT_EQ(caption(), "Keyword Wizard");
    screens().fire<Form19>("Command1", "Click");
    EXPECT_TRUE(wizard().Frame2.visible());
    screens().fire<Form19>("Command11", "Click");
    EXPECT_FALSE(wizard().Frame2.visible());
}

TEST_F(Wizard, looks_up_the_subkeywords_of_the_selected_keyword) {
    store_keyword(u"roses");
    store_subkeyword(1, u"red");
    store_subkeyword(1, u"white");
    suggest(u"red", {u"dark%20red&mkt=us"});
    suggest(u"white", {u"off%20white&mkt=us"});
    select_keyword(0);
    click("cmd_wizard_sub");
    EXPECT_EQ(joined(wizard().List1.entries()), "-SK-red|dark red|-SK-white|off white");
    EXPECT_EQ(wizard().List1.sel_count(), 0);
    EXPECT_EQ(joined(wizard().tabla_asistente[1]), "white|off white");
}

TEST_F(Wizard, asks_after_ten_minutes_whether_to_go_on) {
    store_keyword(u"roses");
    suggest(u"roses", {u"late&mkt=us"});
    app.desktop.busy_rounds = 1000;
    app.desktop.expect(u"This procedure is taking more time than expected.\rDo you want to continue?.");
    app.desktop.expect(u"This procedure", Answer::cancel);
    click("cmd_wizard");
    EXPECT_EQ(app.clock->slept, std::chrono::seconds(10 + 2 * 600));
    EXPECT_EQ(to_utf8(app.desktop.messages[0].title), "Time Out");
    EXPECT_EQ(wizard().List1.list_count(), 0);
}

TEST_F(Wizard, ends_with_its_screen) {
    store_keyword(u"roses");
    store_keyword(u"tulips");
    suggest(u"roses", {u"climbing%20roses&mkt=us"});
    int waits = 0;
    app.desktop.on_wait = [&] {
        if (++waits > 1) return;
        screens().unload<Form19>();
        screen<Form19>(); // somebody has opened it again
    };
    click("cmd_wizard");
    EXPECT_EQ(waits, 1);
    EXPECT_EQ(wizard().List1.list_count(), 0);
    waits = 0;
    app.desktop.on_wait = [&] {
        if (++waits == 1) screens().unload<Form3>();
    };
    click("cmd_wizard");
    EXPECT_FALSE(screens().is_loaded<Form3>()) << "Step 2 does not come back";
}

TEST_F(Wizard, fails_at_a_suggestion_without_its_end) {
    store_keyword(u"roses");
    suggest(u"roses", {u"good&mkt=us", u"bad"});
    app.desktop.expect(u"Run-time error '5'");
    click("cmd_wizard");
    EXPECT_EQ(joined(wizard().List1.entries()), "good");
}

TEST_F(Wizard, adds_what_is_ticked) {
    store_keyword(u"roses");
    form();
    ListBox& list = wizard().List1;
    for (const Text& word :
         {Text(u"abc"), Text(u" abcd "), words(20), words(19), Text(u"index"), Text(u"unticked")})
        list.add_item(word);
    select(list, {0, 1, 2, 3, 4});
    screens().fire<Form19>("Command5", "Click");
    EXPECT_EQ(stored_keywords(), "roses|abcd|" + to_utf8(Trim(words(19))) + "|index");
    EXPECT_EQ(keywords(), stored_keywords());
    EXPECT_EQ(to_utf8(form().keyw.caption()), "4");
    screens().fire<Form19>("Command4", "Click");
    EXPECT_FALSE(screens().is_loaded<Form19>());
}

TEST_F(Wizard, walks_the_words_it_was_started_with) {
    store_keyword(u"roses");
    store_keyword(u"tulips");
    suggest(u"roses", {u"red%20roses&mkt=us"});
    suggest(u"tulips", {u"late%20tulips&mkt=us"});
    app.desktop.on_events = [this] {
        app.desktop.on_events = nullptr;
        click("cmd_wizard_sub"); // has no words
        form().List1.clear();
    };
    click("cmd_wizard");
    EXPECT_EQ(joined(wizard().List1.entries()),
              "late tulips"); // the page of "roses" was left for a blank one
    EXPECT_EQ(wizard().List1.sel_count(), 1);
}

TEST_F(Wizard, ends_its_lookups_when_it_is_closed) {
    store_keyword(u"roses");
    store_keyword(u"tulips");
    app.desktop.on_events = [] { screens().unload<Form19>(); };
    click("cmd_wizard");
    EXPECT_FALSE(screens().is_loaded<Form19>());
    EXPECT_EQ(app.desktop.navigated.size(), 2U);
}

} // namespace
} // namespace twk
