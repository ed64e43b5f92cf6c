// SPDX-License-Identifier: MIT
#include "inputs/step_two.h"

namespace twk {
namespace {

using Keywords = test::StepTwo;

TEST_F(Keywords, loads_the_project_from_the_store) {
    store_keyword(u"roses");
    store_keyword(u"Tulips");
    store_keyword(u"alien", 2);
    EXPECT_EQ(keywords(), "roses|Tulips");
    EXPECT_EQ(to_utf8(form().keyw.caption()), "2");
    EXPECT_EQ(joined(form().Combo1.entries()), "other");
    for (const Frame* frame : {&form().Frame1, &form().Frame2, &form().Frame3, &form().Frame4})
        EXPECT_FALSE(frame->visible());
    EXPECT_EQ(module1().formas_abiertas[3], -1);
    screens().unload<Form3>();
    module1().pid_actual = 0; // a new project: nothing is listed yet
    EXPECT_EQ(keywords(), "");
}

TEST_F(Keywords, adds_a_keyword_and_tells_why_it_does_not) {
    store_keyword(u"roses");
    store_subkeyword(1, u"Red Roses");
    app.desktop.expect(u"Keyword too short");
    type_keyword(u"ab");
    type_keyword(u"abc");
    EXPECT_EQ(keywords(), "roses|abc");
    EXPECT_EQ(to_utf8(form().Text1.text()), "");
    EXPECT_EQ(to_utf8(form().keyw.caption()), "2");

    app.desktop.expect(u"You can't define 2 equal keywords");
    type_keyword(u"ROSES");
    EXPECT_EQ(to_utf8(form().Text1.text()), "ROSES"); // kept for the user to change
    app.desktop.expect(u"You can't define a keyword name as a subkeyword");
    type_keyword(u"red roses");
    app.desktop.expect(u"'Sitemap' and 'Index' are reserved words.");
    type_keyword(u"Index");
    app.desktop.expect(u"The word can only contain letters, numbers and dashes");
    type_keyword(u"gardener's");
    app.desktop.expect(u"Can't edit a +20 words Keyword Phrase");
    type_keyword(words(21));
    EXPECT_EQ(stored_keywords(), "roses|abc");
    type_keyword(words(20));
    EXPECT_EQ(form().List1.list_count(), 3);
    EXPECT_EQ(app.count(u"select * from keywords where pid = 1"), 3);
}

TEST_F(Keywords, edits_one_keyword_and_keeps_its_key) {
    store_keyword(u"roses");
    store_keyword(u"tulips");
    store_subkeyword(1, u"red");
    select_keyword(0);
    EXPECT_EQ(to_utf8(form().Text1.text()), "roses");
    app.desktop.expect(u"You can't define 2 equal keywords");
    form().Text1.text = u"Roses"; // a change of case alone meets itself
    click("Command21");
    EXPECT_EQ(keywords(), "roses|tulips");
    form().Text1.text = u"lilies";
    click("Command21");
    EXPECT_EQ(keywords(), "lilies|tulips");
    EXPECT_EQ(stored_keywords(), "lilies|tulips");
    EXPECT_EQ(stored_subkeywords(1), "red");
    // No look at the subkeywords here.
    select_keyword(0);
    form().Text1.text = u"red";
    click("Command21");
    EXPECT_EQ(stored_keywords(), "red|tulips");
    select(form().List1, {0, 1});
    app.desktop.expect(u"You have to select 1 keyword");
    form().Text1.text = u"weeds";
    click("Command21");
    EXPECT_EQ(to_utf8(form().Text1.text()), "");
    EXPECT_EQ(stored_keywords(), "red|tulips");
}

TEST_F(Keywords, deletes_what_is_selected_until_the_user_cancels) {
    for (const TextView keyword : {u"roses", u"tulips", u"lilies", u"ferns"}) store_keyword(Text(keyword));
    for (int keyid = 1; keyid <= 3; ++keyid) store_subkeyword(keyid, u"red");
    app.run(u"insert into ties ( pid , keyid , cid ) values ( 1 , 1 , 7 ) ");
    app.run(u"insert into ties ( pid , keyid , cid ) values ( 1 , 2 , 7 ) ");
    app.run(u"insert into content ( cid , pid , content ) values ( 7 , 1 , 'box' ) ");
    click("Command7"); // nothing selected, nothing said
    select(form().List1, {0, 1, 2});
    app.desktop.expect(u"Are you sure you want to delete this keyword?\rAll its subKeywords will be lost.");
    app.desktop.expect(u"Are you sure", Answer::cancel);
    const std::string before = app.all_rows();
    click("Command7");
    EXPECT_TRUE(app.desktop.warned_of(u"'tulips' with its subkeywords 'red'"));
    EXPECT_EQ(to_utf8(app.desktop.messages.front().title), "Delete Keyword?");
    EXPECT_EQ(keywords(), "tulips|lilies|ferns");
    EXPECT_EQ(stored_keywords(), "tulips|lilies|ferns");
    EXPECT_EQ(stored_subkeywords(1) + stored_subkeywords(2), "red");
    EXPECT_EQ(stored(u"select * from ties", u"keyid"), "2");
    select(form().List1, {1, 2});
    app.desktop.expect(u"Are you sure"); // the last one has no subkeywords: no question
    click("Command7");
    EXPECT_EQ(stored_keywords(), "tulips");
    EXPECT_EQ(to_utf8(form().keyw.caption()), "1");
    // Each Delete comes back whole, but for what has been typed anew meanwhile.
    EXPECT_EQ(to_utf8(form().deletions.description()), "2 keywords");
    type_keyword(u"LILIES");
    app.desktop.expect(u"You can't define 2 equal keywords");
    form().undo_delete();
    EXPECT_EQ(keywords(), "tulips|ferns|LILIES");
    EXPECT_EQ(to_utf8(form().deletions.description()), "keyword 'lilies'");
    app.run(u"delete from keywords where keyid = 5");
    for (int i = 0; i < 2; ++i) form().undo_delete();
    EXPECT_EQ(keywords(), "roses|tulips|lilies|ferns");
    EXPECT_EQ(app.all_rows(), before);
    EXPECT_TRUE(form().deletions.empty());
}

TEST_F(Keywords, are_deleted_as_selected_when_the_deleting_began) {
    for (const TextView word : {u"roses", u"tulips", u"lilies"}) store_keyword(Text(word));
    for (const TextView sub : {u"red", u"tall"}) store_subkeyword(1, Text(sub));
    store_subkeyword(3, u"white");
    form();
    select_keyword(0);
    select(form().List2, {0, 1});
    app.desktop.on_events = [this] {
        select_keyword(2); // the list shows another keyword's, and one of them is selected
        select(form().List2, {0});
    };
    click("Command10");
    EXPECT_EQ(stored_subkeywords(1) + "/" + stored_subkeywords(3), "tall/white");
    app.desktop.expect(u"Are you sure");
    select(form().List1, {0, 1});
    click("Command7");
    EXPECT_EQ(stored_keywords(), "tulips|lilies");
}

TEST_F(Keywords, adds_up_to_ninety_nine_subkeywords_to_the_one_selected_keyword) {
    store_keyword(u"roses");
    store_keyword(u"tulips");
    store_subkeyword(2, u" red ");
    app.desktop.expect(u"You must select 1 Keyword (in the left panel)");
    form();
    type_subkeyword(u"red");
    select_keyword(1);
    EXPECT_EQ(subkeywords(), "red") << "trimmed";
    select_subkeyword(0);
    EXPECT_EQ(to_utf8(form().Text2.text()), "red");
    select_keyword(0);
    EXPECT_EQ(subkeywords() + to_utf8(form().Text2.text()), "");
    type_subkeyword(u"red");   // stands under another keyword, too
    type_subkeyword(u"ROSES"); // compared exactly with the keywords
    EXPECT_EQ(subkeywords(), "red|ROSES");
    EXPECT_EQ(stored_subkeywords(1), "red|ROSES");
    EXPECT_EQ(to_utf8(form().skeyw.caption()), "2");
    app.desktop.expect(u"You can't define 2 equals subkeywords");
    type_subkeyword(u"Red");
    EXPECT_EQ(to_utf8(form().Text2.text()), "");
    app.desktop.expect(u"You can't define a subkeyword named as a keyword");
    type_subkeyword(u"tulips");
    EXPECT_EQ(to_utf8(form().Text2.text()), "tulips");
    app.desktop.expect(u"Subkeyword to short");
    type_subkeyword(u"ab");
    type_subkeyword(u"    "); // without a word
    app.desktop.expect(u"reserved words");
    type_subkeyword(u"sitemap");
    EXPECT_EQ(stored_subkeywords(1), "red|ROSES");
    for (int i = 2; i < 99; ++i) type_subkeyword(u"sub" + to_text(i));
    app.desktop.expect(u"You can't add more than 99 subkeywords per each keyword");
    type_subkeyword(u"one more");
    EXPECT_EQ(app.count(u"select * from elements where catid = 1"), 99);
    // Clicking into the keyword box ends the selection.
    screens().fire<Form3>("Text1", "Click");
    app.desktop.expect(u"You must select 1 Keyword");
    type_subkeyword(u"climbing");
}

TEST_F(Keywords, edits_and_deletes_subkeywords) {
    store_keyword(u"roses");
    for (const TextView element : {u"red", u"white", u"pink"}) store_subkeyword(1, Text(element));
    select_keyword(0);
    app.desktop.expect(u"There is no subkeyword selected or there is no one ");
    form().Text2.text = u"blue";
    click("Command22");
    select(form().List2, {0, 1});
    app.desktop.expect(u"You have to select 1 subkeyword");
    form().Text2.text = u"blue";
    click("Command22");
    select_subkeyword(1);
    app.desktop.expect(u"You can't have 2 equal subKeywords"); // equal to itself
    click("Command22");
    form().Text2.text = u"Index"; // neither reserved nor checked here
    click("Command22");
    EXPECT_EQ(subkeywords(), "red|Index|pink");
    EXPECT_EQ(stored_subkeywords(1), "red|Index|pink");

    select(form().List2, {0, 1});
    click("Command10");
    EXPECT_EQ(subkeywords(), "pink");
    EXPECT_EQ(stored_subkeywords(1), "pink");
    EXPECT_EQ(to_utf8(form().skeyw.caption()), "1");
    form().undo_delete();
    EXPECT_EQ(subkeywords(), "red|Index|pink");
    select(form().List2, {0, 1});
    click("Command10");
    // The keyword's selection has gone, its subkeywords are still shown: they go from the store, too.
    screens().fire<Form3>("Text1", "Click");
    select(form().List2, {0});
    click("Command10");
    EXPECT_EQ(stored_subkeywords(1), "");
}

TEST_F(Keywords, are_selected_past_what_the_store_cannot_give) {
    store_keyword(u"roses");
    app.run(u"insert into elements ( catid ) values ( 1 ) ");
    store_subkeyword(1, u"red");
    app.run(u"insert into keywords ( keyid , pid , keyword ) values ( 40000 , 1 , 'huge' ) ");
    select_keyword(0);
    EXPECT_EQ(subkeywords(), "red") << "behind one that is null";
    form().Text2.text = u"typed";
    select_keyword(1);
    EXPECT_EQ(to_utf8(form().Text1.text()), "huge");
    EXPECT_EQ(subkeywords() + to_utf8(form().Text2.text()), "");
    app.desktop.expect(u"You must select a Keyword (in the left panel) to adjudicate a SubKeyword");
    type_subkeyword(u"blue");
    EXPECT_EQ(app.count(u"select * from elements"), 2) << "nothing went to the keyword before";
}

} // namespace
} // namespace twk
