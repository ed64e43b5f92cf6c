// SPDX-License-Identifier: MIT
#include "inputs/form5.h"
#include "inputs/form7.h"
#include "inputs/step_two.h"
#include "support/faults.h"
#include "tools/form11.h"
#include "tools/form21.h"

namespace twk {
namespace {

class ContentBoxes : public test::StepTwo {
  protected:
    Form5& form() { return screen<Form5>(); }
    bool click(const std::string& control) { return screens().fire<Form5>(control, "Click"); }
    void store_box(const Text& content, int pid = 1) {
        app.run(u"insert into content ( pid , content ) values ( " + to_text(pid) + u" , '" + content +
                u"' ) ");
    }
    std::string boxes(int pid = 1) {
        return stored(u"select * from content where pid = " + to_text(pid), u"content");
    }
    void choose(int index) {
        form().List1.list_index = index;
        click("List1");
    }
};

TEST_F(ContentBoxes, load_with_keywords_and_projects) {
    store_keyword(u"well-known roses");
    store_subkeyword(1, u"red");
    store_keyword(u"alien", 2);
    store_box(u"a line\r\nand " + Text(80, u'x'));
    EXPECT_EQ(joined(form().List1.entries()), "1. a line\r\nand " + std::string(58, 'x') + " ... ");
    EXPECT_EQ(joined(form().lstkeyword.entries()), "1-well-known roses");
    EXPECT_EQ(joined(form().combo1.entries()), "other");
    EXPECT_EQ(to_utf8(form().tabla_kw.at(0, 1)), "red");
    form().Check1.value = false;
    choose(0);
    EXPECT_EQ(form().rt1.text(), u"a line and " + Text(80, u'x'));
    EXPECT_EQ(form().RTAux, form().rt1.text());
}

TEST_F(ContentBoxes, are_added_and_saved_as_page_text) {
    form().Check1.value = false;
    app.desktop.expect(u"You can`t save an empty box");
    click("Command2");
    app.desktop.expect(u"We recomend more than 100 words in the content box");
    form().rt1.text = u"Say \"yes\"\r\nto it's(all)";
    click("Command2");
    EXPECT_EQ(boxes(), "Say yes <p> to it's (all)");
    EXPECT_EQ(to_utf8(form().rt1.text() + form().RTAux), "");
    choose(0);
    form().rt1.text = words(100);
    click("Command5"); // enough words: no warning
    EXPECT_EQ(boxes(), to_utf8(Trim(words(100))));
    choose(0);
    app.desktop.expect(u"Can't Update with an empty box");
    form().rt1.text = u" ";
    click("Command5");
    // Nothing selected: it may be added, or the save fails and stores nothing.
    form().List1.list_index = -1;
    form().rt1.text = words(99);
    app.desktop.expect(u"Do you want to ADD this content ?", Answer::no);
    app.desktop.expect(u"We recomend more than 100 words");
    app.desktop.expect(u"Run-time error '9'");
    click("Command5");
    EXPECT_EQ(form().List1.list_count(), 1);
    app.desktop.expect(u"Do you want to ADD", Answer::yes);
    app.desktop.expect(u"We recomend more than 100 words");
    click("Command5");
    EXPECT_EQ(form().List1.list_count(), 2);
}

TEST_F(ContentBoxes, stop_at_ninety_nine_by_hand_alone) {
    form().Check1.value = false;
    for (int i = 0; i < 98; ++i) store_box(u"box");
    form().refrescar_cajas();
    form().rt1.text = words(100);
    click("Command2");
    EXPECT_EQ(form().List1.list_count(), 99);
    app.desktop.expect(u"You can only add 100 content boxes");
    form().rt1.text = words(100);
    click("Command2");
    store_box(u"imported"); // past the mark adding goes on
    form().refrescar_cajas();
    form().rt1.text = words(100);
    click("Command2");
    EXPECT_EQ(form().List1.list_count(), 101);
    store_box(u"one too many");
    EXPECT_EQ(test::fault_of([this] { form().refrescar_cajas(); }), fault_subscript);
}

TEST_F(ContentBoxes, go_with_their_ties) {
    store_box(u"first");
    store_box(u"second");
    app.run(u"insert into ties ( pid , keyid , cid ) values ( 1 , 5 , 1 ) ");
    app.run(u"insert into ties ( pid , keyid , cid ) values ( 1 , 6 , 1 ) ");
    app.run(u"insert into ties ( pid , keyid , cid ) values ( 1 , 7 , 2 ) ");
    const std::string before = app.all_rows();
    form().List1.list_index = 0;
    form().RTAux = u"first";
    click("Command3");
    EXPECT_EQ(boxes(), "second");
    EXPECT_EQ(stored(u"select * from ties", u"keyid"), "7");
    EXPECT_TRUE(form().RTAux.empty());
    EXPECT_EQ(to_utf8(form().deletions.description()), "box '1. first ... '");
    form().undo_delete();
    EXPECT_EQ(app.all_rows(), before);
    EXPECT_EQ(form().List1.list_count(), 2);
    // A keyword that has been tied anew keeps that tie alone.
    form().List1.list_index = 0;
    click("Command3");
    app.run(u"insert into ties ( pid , keyid , cid ) values ( 1 , 6 , 2 ) ");
    form().undo_delete();
    EXPECT_EQ(stored(u"select * from ties where cid = 1", u"keyid"), "5");
}

TEST_F(ContentBoxes, tell_what_is_not_saved_and_ask_for_nothing_else) {
    store_keyword(u"alien", 2);
    store_box(u"first");
    store_box(u"second");
    form().Check1.value = false;
    const auto type = [this](TextView text) {
        form().rt1.text = Text(text);
        screens().fire<Form5>("rt1", "Change");
    };
    choose(0);
    EXPECT_FALSE(form().lbl_unsaved.visible());
    type(u"first, and more");
    EXPECT_TRUE(form().lbl_unsaved.visible());
    form().List1.list_index = -1;
    click("Command3"); // nothing is deleted, the editor is emptied
    EXPECT_FALSE(form().lbl_unsaved.visible());
    click("Command1");
    choose(1);
    form().combo1.select(0);
    app.desktop.always(u"Are you sure you want to proceed?", Answer::yes);
    app.desktop.expect(u"Import Content Boxes from other to this project?");
    click("Command7");
    click("Command1"); // leads on without a question
    type(u"typed");
    app.desktop.fonts = {FontChoice{u"Arial", 10}};
    app.desktop.expect(u"Do you want to ADD this content ?", Answer::yes);
    app.desktop.expect(u"We recomend");
    click("Command11");
    EXPECT_EQ(boxes(), "first|second|<font face = Arial size = 10> typed </font>");
    EXPECT_FALSE(form().lbl_unsaved.visible());
}

TEST_F(ContentBoxes, are_tied_to_a_keyword_once) {
    store_keyword(u"well-known roses");
    store_box(u"first");
    store_box(u"second");
    app.desktop.expect(u"You have to select any content or keyword");
    click("cmdtie");
    form().lstkeyword.select(0);
    form().List1.list_index = 1;
    app.desktop.expect(u"Keyword and Content selected has been tied");
    click("cmdtie");
    form().List1.list_index = 0;
    app.desktop.expect(u"This keyword is already tied to another content box.");
    click("cmdtie");
    EXPECT_EQ(stored(u"select * from ties where pid = 1 and keyid = 1", u"cid"), "2");
}

TEST_F(ContentBoxes, come_from_another_project_but_for_apostrophes) {
    store_keyword(u"alien", 2);
    store_box(u"Say (yes)\r\nnow", 2);
    app.run_unfenced("insert into content ( pid , content ) values ( 2 , 'it''s lost' )");
    store_box(u"last", 2);
    app.desktop.expect(u"This action may take a while", Answer::no);
    click("Command7");
    app.desktop.always(u"Are you sure you want to proceed?", Answer::yes);
    click("Command7"); // no project chosen: stops without a word
    form().combo1.select(0);
    app.desktop.expect(u"Import Content Boxes from other to this project?", Answer::cancel);
    click("Command7");
    click("Command7"); // the chosen project has gone with the refusal
    form().combo1.select(0);
    app.desktop.expect(u"Import Content Boxes from other to this project?");
    click("Command7");
    EXPECT_EQ(boxes(), "Say (yes) <p> now|last");
    form().combo1.text = u"garden";
    app.desktop.expect(u"Can't import from the same Project");
    click("Command7");
}

TEST_F(ContentBoxes, are_wrapped_in_a_font_and_saved) {
    store_box(u"old");
    form().Check1.value = false;
    choose(0);
    form().rt1.text = u"edited and dropped";
    app.desktop.fonts = {FontChoice{u"Arial", 10.5, true, true, true, true}};
    app.desktop.expect(u"We recomend");
    click("Command11");
    EXPECT_EQ(boxes(), "<u> <s> <b> <i> <font face = Arial size = 10.5> old </font> </i> </b> </s> </u>");
    form().List1.list_index = 0;
    form().rt1.text = u"typed";
    app.desktop.fonts = {std::nullopt}; // cancelled, and wrapped with what the dialog began with
    app.desktop.expect(u"We recomend");
    click("Command11");
    EXPECT_EQ(boxes(),
              "<u> <s> <b> <i> <font face = MS Sans Serif size = 10.5> typed </font> </i> </b> </s> </u>");
}

TEST_F(ContentBoxes, are_previewed_from_a_file_that_goes_again) {
    form().rt1.text = u"<b>box</b>";
    std::string shown;
    app.desktop.on_events = [&] { shown = app.read(u"delete.htm"); };
    click("cmdshow");
    EXPECT_EQ(shown, "<b>box</b>\r\n");
    EXPECT_EQ(app.desktop.navigated.back(), app.path(u"delete.htm"));
    EXPECT_EQ(to_utf8(screen<Form21>().Text1.text()), "<b>box</b>");
    EXPECT_EQ(app.clock->slept, std::chrono::seconds(2));
    EXPECT_FALSE(app.exists(u"delete.htm") || app.exists(u"delete.htmaux"));
    app.desktop.busy_rounds = 2; // the file stays until it has been read
    bool there = true;
    app.desktop.on_wait = [&] { there = there && app.exists(u"delete.htm"); };
    click("cmdshow");
    EXPECT_TRUE(there);
    EXPECT_EQ(app.clock->slept, std::chrono::seconds(2 + 6));
    EXPECT_FALSE(app.exists(u"delete.htm") || app.exists(u"delete.htmaux"));
}

TEST_F(ContentBoxes, lead_on_when_there_are_two) {
    form().Check1.value = false;
    form().rt1.text = words(100);
    app.desktop.expect(u"You didn`t save the changes in the content box, do you want to do it?", Answer::yes);
    app.desktop.expect(u"Do you want to ADD", Answer::yes);
    app.desktop.expect(u"You Must enter at least 2 content boxes.");
    click("Command1");
    EXPECT_EQ(form().List1.list_count(), 1); // saved, then refused
    EXPECT_FALSE(screens().is_loaded<Form7>());
    store_box(u"a  <b>box</b>");
    form().refrescar_cajas();
    click("Command1");
    EXPECT_TRUE(screens().is_loaded<Form7>());
    // A box that the critic has rewritten counts as unsaved.
    form().Check1.value = true;
    choose(1);
    app.desktop.expect(u"You didn`t save the changes", Answer::no);
    click("Command1");
}

TEST_F(ContentBoxes, are_judged_by_the_critic) {
    store_keyword(u"Red Roses");
    store_keyword(u"tulips");
    store_keyword(u"ferns");
    form();
    click("Command6");
    EXPECT_EQ(form().Text3.text(), Form5::critic_at_rest);
    form().rt1.text = u"red roses and red  roses..\r\nwith tulips";
    click("Command6");
    EXPECT_EQ(to_utf8(form().rt1.text()), "red roses and red roses. <p> with tulips");
    EXPECT_EQ(to_utf8(form().Text3.text()),
              "CONTENT CRITIC: \r\n[Total word count]: 7\r\n(Caution: Low Value!)\r\n\r\n"
              "[KW: 'red roses' ]: 2\r\n     [KW Density]: 40%\r\n"
              "[KW: 'tulips' ]: 1\r\n     [KW Density]: 14%\r\n"
              "[KW: 'ferns' ]: 0\r\n");
    form().rt1.text = words(248) + u"tulips";
    click("Command6");
    EXPECT_EQ(to_utf8(form().Text3.text()),
              "CONTENT CRITIC: \r\n[Total word count]: 249\r\n[KW: 'red roses' ]: 0\r\n[KW: 'tulips' ]: 1\r\n"
              "     [KW Density]: 0%\r\n[KW: 'ferns' ]: 0\r\n"
              "\r\nCaution: In this content box no keyword reaches 1% density!");
    form().Check1.value = false;
    app.desktop.expect(u"unCheck the 'Activate Content Critic' to refresh the critic...");
    click("Command6");
    form().Check1.value = true;
    Text often;
    for (int i = 0; i < 328; ++i) often += u"tulips ";
    form().rt1.text = often;
    app.desktop.expect(u"Run-time error '6'");
    click("Command6");
}

TEST_F(ContentBoxes, take_text_from_the_browser) {
    const Text start = form().Text2.text();
    app.desktop.pages[start] = u"<body><p>one</p><p>two</p></body>";
    click("Command4");
    form().RTAux = u"older";
    screens().fire<Form11>("Command1", "Click");
    EXPECT_TRUE(form().rt1.text().starts_with(u"one<p>\n")); // the line feed stays
    EXPECT_EQ(to_utf8(form().RTAux), "older");
    screen<Form11>().Text1.text = u" ";
    for (const char* button : {"Command5", "Command4"}) screens().fire<Form11>(button, "Click");
    EXPECT_EQ(joined(app.desktop.navigated), to_utf8(start) + "|http://www.tarnwick.example");
}

TEST_F(ContentBoxes, come_back_from_the_preview) {
    Form21& preview = screen<Form21>();
    preview.Text1.text = u"caf\u00e9";
    screens().fire<Form21>("cmdrefresh", "Click");
    EXPECT_EQ(app.read(u"delete.htm"), "\xEF\xBB\xBF"
                                       "caf\xC3\xA9\r\n");
    EXPECT_FALSE(app.exists(u"delete.htmaux"));
    screens().fire<Form21>("cmdgoback", "Click");
    EXPECT_EQ(to_utf8(form().rt1.text()), "caf\xC3\xA9");
    EXPECT_FALSE(screens().is_loaded<Form21>());
}

} // namespace
} // namespace twk
