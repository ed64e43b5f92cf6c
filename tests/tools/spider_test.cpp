// SPDX-License-Identifier: MIT
#include "inputs/step_two.h"
#include "tools/form16.h"
#include "tools/form20.h"

namespace twk {
namespace {

class Spider : public test::StepTwo {
  protected:
    Form20& form() { return screen<Form20>(); }
    bool click(const std::string& control) { return screens().fire<Form20>(control, "Click"); }
    Text log() { return form().Text1.text(); }
    /// Shows a results page with these links and starts a pass.
    void spider(const std::vector<Text>& links) {
        Text page = u"<body><a name=here>no address</a>";
        for (const Text& link : links) page += u"<a href=\"" + link + u"\">x</a>";
        app.desktop.pages[u"http://results.example/"] = page;
        form().Text2.text = u" http://results.example/ ";
        click("Command8");
        click("Command7");
    }
    /// A page with the given keywords tag in its head.
    void serve(const Text& address, const Text& head) {
        app.desktop.pages[address] = u"<html><head>" + head + u"</head><body>keywords</body></html>";
    }
    static Text tag(const Text& words) { return u"<META NAME=\"Keywords\" content=\"" + words + u"\">"; }
    std::string words() { return joined(form().List1.entries()); }
    std::vector<int> selected() {
        std::vector<int> marked;
        for (int i = 0; i < form().List1.list_count(); ++i)
            if (form().List1.selected(i)) marked.push_back(i);
        return marked;
    }
};

TEST_F(Spider, gathers_the_words_of_the_linked_pages) {
    store_keyword(u"Known Word");
    serve(u"http://a.example/", u"<meta name=keywords content=\"roses, Red  Roses,known word,,last\">");
    serve(u"http://b.example/", u"<meta name='x' content='keywords'>"); // any "keywords" of the head counts
    serve(u"http://c.example/", u"<meta name=\"keywords\" content=\"ROSES,content farm\">");
    app.desktop.pages[u"http://d.example/"] = u"<head></head><body>keywords</body>";
    app.desktop.faults[u"http://e.example/"] = fault_timed_out;
    app.desktop.faults[u"http://f.example/"] = fault_device_io;
    form().Text4.text = u"5"; // too late: read at load
    spider({u"http://a.example/", u"http://b.example/", u"http://c.example/", u"http://d.example/",
            u"http://e.example/", u"http://f.example/"});
    EXPECT_EQ(words(), "roses|Red Roses|last>|>|farm>");
    EXPECT_EQ(selected(), std::vector<int>{0});
    EXPECT_EQ(form().time_outs, 1);
    EXPECT_EQ(form().Inet1.request_timeout, 60);
    EXPECT_EQ(form().Inet1.protocol, 4);
    const Text now = u"24/11/2026 10:18:05 a.m.";
    EXPECT_TRUE(log().starts_with(
        now + u" - Process Complete \r\n\r\n" + now + u" - Dumping Keywords \r\n\r\n" + now +
        u" - No keywords found in http://f.example/\r\n\r\nhttp://f.example/ downloaded"
        u"\r\n\r\n" +
        now + u"Timed out: http://e.example/\r\n\r\n" + now + u" - No keywords found in http://d.example/"));
    EXPECT_TRUE(log().ends_with(u"http://a.example/ downloaded\r\n\r\n" + now + u" - Starting Spider"));
    EXPECT_EQ(to_utf8(form().Command7.caption()), "Spider");
    EXPECT_FALSE(form().Frame5.visible());
    EXPECT_EQ(form().ProgressBar2.value(), 100);

    click("Command14");
    EXPECT_EQ(screen<Form16>().Text1.text(), Trim(log()));
    EXPECT_EQ(to_utf8(screen<Form16>().Label1.caption()), "Log for the Spider Process");
    screens().fire<Form16>("Command1", "Click");
    click("Command15");
    EXPECT_TRUE(log().empty());
    spider({}); // a later pass leaves the list alone
    EXPECT_EQ(form().List1.list_count(), 5);
    click("Command12");
    EXPECT_EQ(words(), "");
}

TEST_F(Spider, reads_tags_in_every_order) {
    const std::vector<std::pair<Text, std::string>> shapes = {
        {u"<meta name=\"keywords\" content=\"one\">", "one>"},
        {u"<meta name=\"keywords\" CONTENT=\"one\">", "CONTENT=one>"}, // lower case alone is cut
        {u"<META content=\"one\" name=\"keywords\" >", ">"},           // the words stand in front
        {u"<meta content=\"one, two\" name=\"keywords\"><title>x</title>", "<title>"}, // the usual form
        {u"<meta name=\"keywords\" content = \"one=two\"/>", "onetwo/>"},
        {u"<meta name=\"keywords\" lang=\"en\" content=\"one\">", "lang=en content=one>"},
        {u"<meta name=\"keywords\" content=\"one (two)\">", "one (two) >"},
    };
    for (const auto& [head, expected] : shapes) {
        serve(u"http://a.example/", head);
        click("Command12");
        spider({u"http://a.example/"});
        EXPECT_EQ(words(), expected) << to_utf8(head);
    }
}

TEST_F(Spider, takes_one_link_more_than_asked_and_leaves_related_ones_out) {
    std::vector<Text> links;
    for (int i = 10; i < 40; ++i) links.push_back(u"http://s" + to_text(i) + u".example/");
    form().combo1.text = u"10";
    spider(links);
    EXPECT_EQ(form().enlaces.size(), 11U);
    const std::vector<Text> mixed = {u"http://a.example/",          u"http://cache.x/?related:a.example/",
                                     u"http://a.example/deeper",    u"http://www.google.com/x",
                                     u"http://b.example/paper.pdf", u"http://www.GOOGLE.example/"};
    spider(mixed);
    EXPECT_EQ(joined(form().enlaces), "http://a.example/|http://www.GOOGLE.example/");
    form().Check1.value = false;
    form().Check2.value = false;
    spider(mixed);
    EXPECT_EQ(form().enlaces.size(), mixed.size());
    for (const TextView number : {u"0", u"abc", u""}) {
        form().combo1.text = Text(number);
        spider(mixed);
        EXPECT_TRUE(log().ends_with(u" - Starting Spider") && !contains(log(), u"\r\n")) << to_utf8(number);
        EXPECT_EQ(to_utf8(form().Command7.caption()), "Spider");
    }
}

TEST_F(Spider, can_be_cancelled_while_it_waits) {
    // By its button, and by closing the screen.
    for (const char* button : {"Command7", "Command5"}) {
        int fetches = 0;
        app.desktop.on_fetch = [&](const Text&) {
            if (++fetches == 2) click(button);
        };
        if (std::string(button) == "Command7") app.desktop.expect(u"Cancell Spider?", Answer::yes);
        spider({u"http://a.example/", u"http://b.example/", u"http://c.example/"});
        EXPECT_EQ(fetches, 2) << button;
    }
    EXPECT_FALSE(screens().is_loaded<Form20>());
}

TEST_F(Spider, starts_a_second_pass_within_the_first) {
    for (const TextView name : {u"a", u"b"})
        serve(u"http://" + Text(name) + u".example/", tag(u"word " + Text(name)));
    std::vector<Text> fetched;
    app.desktop.on_fetch = [&](const Text& address) {
        fetched.push_back(address);
        if (fetched.size() == 2) click("Command7"); // within the second fetch of the outer pass
    };
    app.desktop.expect(u"Cancell Spider?", Answer::no);
    spider({u"http://a.example/", u"http://b.example/"});
    EXPECT_EQ(joined(fetched), "http://a.example/|http://b.example/|http://a.example/|http://b.example/");
    EXPECT_EQ(words(), "word a>|word b>"); // the inner pass alone, which ends the outer one
    EXPECT_TRUE(log().ends_with(u" - Starting Spider"));
    EXPECT_EQ(to_utf8(form().Command7.caption()), "Spider");
}

TEST_F(Spider, keeps_a_thousand_words_and_the_head_of_a_huge_page) {
    Text many;
    for (int i = 0; i < 1200; ++i) many += u"word" + to_text(i) + u",";
    serve(u"http://a.example/", tag(many));
    app.desktop.pages[u"http://a.example/"] += Text(25 << 20, u'<');
    spider({u"http://a.example/"});
    EXPECT_EQ(form().List1.list_count(), 1000);
    EXPECT_EQ(form().n_palabras, 1000);
}

TEST_F(Spider, sends_what_is_selected_to_the_project) {
    store_keyword(u"roses");
    ListBox& list = form().List1;
    for (const Text& word : {Text(u"ab"), Text(u"abc"), StepTwo::words(21), Text(u"Index"), Text(u"ROSES"),
                             Text(u" lily "), Text(u"unwanted")})
        list.add_item(word);
    select(list, {0, 1, 2, 3, 4, 5});
    click("Command13");
    click("Command13"); // adds nothing again
    EXPECT_EQ(stored_keywords(), "roses|abc|lily");
    EXPECT_EQ(joined(screen<Form3>().List1.entries()),
              "roses|abc|lily"); // listed once, though Step 2 was not open before
    EXPECT_EQ(to_utf8(screen<Form3>().keyw.caption()), "3");
    list.add_item(u"mum's");
    list.set_selected(7, true);
    app.desktop.expect(u"Run-time error '3075'");
    click("Command13");
    EXPECT_EQ(stored_keywords(), "roses|abc|lily");
}

} // namespace
} // namespace twk
