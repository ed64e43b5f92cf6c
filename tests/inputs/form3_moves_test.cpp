// SPDX-License-Identifier: MIT
#include "inputs/step_two.h"

namespace twk {
namespace {

class Moves : public test::StepTwo {
  protected:
    Moves() {
        for (const TextView keyword : {u"roses", u"tulips", u"lilies"}) store_keyword(Text(keyword));
    }
};

TEST_F(Moves, make_a_subkeyword_a_keyword_or_lose_it) {
    store_subkeyword(1, u"red");
    store_subkeyword(1, u"Tulips");
    store_subkeyword(1, u"ab");
    click("Command11"); // nothing is selected
    EXPECT_FALSE(form().Frame1.visible());
    select_keyword(0);
    select_subkeyword(0);
    click("Command11");
    EXPECT_EQ(joined(form().List3.entries()), "tulips|lilies");
    EXPECT_FALSE(form().List3.enabled());
    click("Command15");
    EXPECT_EQ(keywords(), "roses|tulips|lilies|red");
    EXPECT_EQ(stored_subkeywords(1), "Tulips|ab");
    EXPECT_FALSE(form().Frame1.visible());
    select_subkeyword(0);
    click("Command11");
    app.desktop.expect(u"You can't define 2 equal keywords");
    click("Command15");
    EXPECT_EQ(stored_keywords(), "roses|tulips|lilies|red");
    EXPECT_EQ(stored_subkeywords(1), "ab"); // gone, after the message
    select_subkeyword(0);
    app.desktop.expect(u"Keywords must be longer than 3 characters!");
    click("Command15");
    EXPECT_EQ(subkeywords(), "ab");
}

TEST_F(Moves, take_a_subkeyword_to_another_keyword) {
    for (const TextView element : {u"red", u"lilies", u"sitemap"}) store_subkeyword(1, Text(element));
    store_subkeyword(2, u" red");
    select_keyword(0);
    select_subkeyword(0);
    click("Command11");
    click("Option1", 1);
    EXPECT_TRUE(form().List3.enabled());
    app.desktop.expect(u"You must select a destination keyword from this frame");
    click("Command15");
    EXPECT_TRUE(form().Frame1.visible());
    form().List3.list_index = 0;
    app.desktop.expect(u"You can't define 2 equal SubKeyword");
    click("Command15");
    EXPECT_FALSE(form().Frame1.visible());
    EXPECT_EQ(stored_subkeywords(1), "red|lilies|sitemap");
    form().List3.list_index = 1;
    click("Command15");
    EXPECT_EQ(stored_subkeywords(3), "red");
    select_subkeyword(0);
    app.desktop.expect(u"You can't define 2 equal keywords"); // told, and moved all the same
    click("Command15");
    EXPECT_EQ(subkeywords(), "sitemap");
    EXPECT_EQ(stored_subkeywords(3), "red|lilies");
    select_subkeyword(0);
    app.desktop.expect(u"'Sitemap' and 'Index' are reserved words.");
    click("Command15");
    EXPECT_EQ(stored_subkeywords(1), "sitemap");
}

TEST_F(Moves, make_a_keyword_a_subkeyword_with_all_it_has) {
    store_subkeyword(1, u"red");
    app.run(u"insert into ties ( pid , keyid , cid ) values ( 1 , 1 , 7 ) ");
    app.run(u"insert into ties ( pid , keyid , cid ) values ( 1 , 2 , 7 ) ");
    click("Command12"); // nothing is selected
    EXPECT_FALSE(form().Frame2.visible());
    select_keyword(0);
    click("Command12");
    app.desktop.expect(u"To move this Keyword as another's keyword Subkeyword \nyou Must select a keyword");
    click("Command16");
    form().List4.list_index = 1;
    app.desktop.expect(
        u"The subkeywords for this keyword will be moved as subkeyword for the destination keyword");
    click("Command16");
    EXPECT_EQ(keywords(), "tulips|lilies");
    EXPECT_EQ(stored_keywords(), "tulips|lilies");
    EXPECT_EQ(stored_subkeywords(3), "red|roses");
    EXPECT_EQ(stored(u"select * from ties", u"keyid"), "2");
    EXPECT_EQ(subkeywords(), "");
    EXPECT_FALSE(form().Frame2.visible());
}

TEST_F(Moves, stop_half_way_at_a_repeated_subkeyword) {
    for (const TextView element : {u"red", u"white", u"pink"}) store_subkeyword(1, Text(element));
    store_subkeyword(2, u"white");
    select_keyword(0);
    click("Command12");
    form().List4.list_index = 0;
    app.desktop.expect(u"will be moved");
    app.desktop.expect(u"SubKeyword 'white' is repeated in the destination keyword");
    click("Command16");
    EXPECT_EQ(stored_subkeywords(1), "white|pink");
    EXPECT_EQ(stored_subkeywords(2), "white|red");
    EXPECT_EQ(stored_keywords(), "roses|tulips|lilies");
    EXPECT_FALSE(form().Frame2.visible());
    // When it is the keyword itself that is there, the frame stays open.
    store_subkeyword(3, u"roses");
    click("Command12");
    form().List4.list_index = 1;
    app.desktop.expect(u"will be moved");
    app.desktop.expect(u"You can't define 2 equal SubKeyword");
    click("Command16");
    EXPECT_TRUE(form().Frame2.visible());
    EXPECT_EQ(stored_keywords(), "roses|tulips|lilies");
}

TEST_F(Moves, act_on_what_their_frame_was_opened_for_or_not_at_all) {
    store_subkeyword(1, u"red");
    app.run(u"insert into ties ( pid , keyid , cid ) values ( 1 , 2 , 7 ) ");
    select_keyword(1);
    click("Command12");
    form().List4.list_index = 1; // lilies
    screens().fire<Form3>("Text1", "Click");
    const std::string before = app.all_rows();
    app.desktop.expect(u"you Must select a keyword from this frame"); // the selection has gone
    click("Command16");
    EXPECT_EQ(app.all_rows(), before);
    select_keyword(2);
    form().List4.list_index = 0; // roses
    click("Command16");
    EXPECT_EQ(keywords(), "roses|lilies");
    EXPECT_EQ(stored_subkeywords(1), "red|tulips");
    EXPECT_EQ(app.count(u"select * from ties"), 0);

    select_keyword(0);
    select_subkeyword(1);
    click("Command11");
    click("Option1", 1);
    form().List3.list_index = 0;
    app.run(u"delete from keywords where keyid = 3");
    const Text no_destination = u"You must select a destination keyword from this frame";
    app.desktop.expect(no_destination); // it has been deleted meanwhile
    click("Command15");
    EXPECT_EQ(stored_subkeywords(1), "red|tulips");
    click("Option1", 0);
    select(form().List2, {});
    app.desktop.expect(no_destination);
    click("Command15");
    EXPECT_EQ(stored_keywords(), "roses");
    EXPECT_EQ(stored_subkeywords(1), "red|tulips");
}

TEST_F(Moves, copy_the_keywords_of_another_project_once) {
    store_keyword(u"ferns", 2);
    store_keyword(u"tulips", 2);
    store_keyword(u"Roses", 2); // compared exactly: copied
    store_subkeyword(4, u"tall");
    form().Combo1.select(0);
    app.desktop.expect(u"Are you sure you want to copy other's keywords into this project?", Answer::no);
    click("Combo1");
    EXPECT_EQ(keywords(), "roses|tulips|lilies");
    app.desktop.expect(u"Are you sure", Answer::yes);
    app.desktop.expect(
        u"Some keywords from other project couldn't be copied \nbecause they already exist on the current project");
    click("Combo1");
    EXPECT_EQ(keywords(), "roses|tulips|lilies|ferns|Roses");
    EXPECT_EQ(stored_keywords(), keywords());
    EXPECT_EQ(to_utf8(form().keyw.caption()), "5");
    EXPECT_EQ(app.count(u"select * from elements"), 1);
    app.desktop.expect(u"Are you sure", Answer::yes);
    app.desktop.expect(u"Some keywords from other");
    click("Combo1");
    EXPECT_EQ(form().List1.list_count(), 5);
}

} // namespace
} // namespace twk
