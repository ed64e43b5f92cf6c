// SPDX-License-Identifier: MIT
#include "platform/html.h"

#include <gtest/gtest.h>

namespace twk::test {

TEST(VisibleText, KeepsWhatAReaderSees) {
    EXPECT_EQ(visible_text(u"<html><head><title>T</title><style>b{}</style></head><body><script>x()</script>"
                           u"<!-- c --><p>One  <b>two</b>\r\n three</p><p>four<br>five</p></body></html>"),
              u"One two three\r\nfour\r\nfive\r\n");
    EXPECT_EQ(visible_text(u"<form><input type=hidden name=a value='secret'></form>x"), u"x");
    EXPECT_EQ(visible_text(u"<table><tr><td>a</td><td>b</td></tr><tr><td>c</td></tr></table>"),
              u"a b\r\nc\r\n");
    EXPECT_EQ(visible_text(u"caf&eacute; &amp; &lt;b&gt; \u20ac"), u"caf\u00e9 & <b> \u20ac");
    EXPECT_EQ(visible_text(u""), u"");
}

TEST(VisibleText, TakesLooseAndEndlessPages) {
    EXPECT_EQ(visible_text(u"<a href=x>link <A HREF='y'>more<b>bold</a>"), u"link morebold");
    Text deep;
    for (int i = 0; i < 5000; ++i) deep += u"<div>";
    EXPECT_EQ(visible_text(deep + u"end"), u"end\r\n");
}

TEST(PageLinks, ComeInOrderAndAreResolvedAgainstThePage) {
    const Text page =
        u"<a href=\"one.htm\">1</a><A HREF=/two.htm>2</a><a name=x><a href='../up.htm?q=a:b'>3</a>"
        u"<a href='http://else.example/'>4</a><a href='#top'>5</a><a href='//cdn.example/x'>6</a>"
        u"<a href='mailto:a@b.example'>7</a><a href='?q=1'>8</a>";
    EXPECT_EQ(page_links(page),
              (std::vector<Text>{u"one.htm", u"/two.htm", u"../up.htm?q=a:b", u"http://else.example/",
                                 u"#top", u"//cdn.example/x", u"mailto:a@b.example", u"?q=1"}));
    EXPECT_EQ(page_links(page, u"http://h.example/a/b/page.htm?x#y"),
              (std::vector<Text>{u"http://h.example/a/b/one.htm", u"http://h.example/two.htm",
                                 u"http://h.example/a/up.htm?q=a:b", u"http://else.example/",
                                 u"http://h.example/a/b/page.htm#top", u"http://cdn.example/x",
                                 u"mailto:a@b.example", u"http://h.example/a/b/page.htm?q=1"}));
    EXPECT_EQ(page_links(u"<a href='x'>", u"http://h.example"), (std::vector<Text>{u"http://h.example/x"}));
    EXPECT_EQ(page_links(u"<a href='../../x'>", u"http://h.example/a/"),
              (std::vector<Text>{u"http://h.example/x"}));
    EXPECT_EQ(page_links(u"<a href='..'>", u"http://h.example/a/b/c"),
              (std::vector<Text>{u"http://h.example/a/"}));
}

} // namespace twk::test
