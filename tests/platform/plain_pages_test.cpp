#include "platform/html.h"
#include "platform/plain_pages.h"

#include <random>

#include <gtest/gtest.h>

namespace twk::test {

namespace {

Text page(const Text& body) {
    return u"<html><head><title>a < b</title>\r\n<meta name=\"x\"></head>\r\n\r\n<body bgcolor=\"#fff\">" +
           body + u"</body></html>";
}

constexpr const char16_t* pieces[] = {u"word",
                                      u" ",
                                      u"x y",
                                      u"<p>",
                                      u"</p>",
                                      u"<br>",
                                      u"</br>",
                                      u"<h1>",
                                      u"</h1>",
                                      u"<h2>",
                                      u"</h2>",
                                      u"<h3>",
                                      u"</h3>",
                                      u"<a href=\"q>r\">",
                                      u"</a>",
                                      u"<b>",
                                      u"</b>",
                                      u"<i>",
                                      u"</i>",
                                      u"<u>",
                                      u"</u>",
                                      u"<FONT size=3>",
                                      u"</font>",
                                      u"<span style='a'>",
                                      u"</span>",
                                      u"<center>",
                                      u"</center>",
                                      u"<div>",
                                      u"</div>",
                                      u"<ul>",
                                      u"</ul>",
                                      u"<li>",
                                      u"</li>",
                                      u"<table border = 1>",
                                      u"</table>",
                                      u"<tr>",
                                      u"</tr>",
                                      u"<td>",
                                      u"</td>",
                                      u"<th>",
                                      u"</th>",
                                      u"<tbody>",
                                      u"</tfoot>",
                                      u"<hr width=3%>",
                                      u"<img src=x>",
                                      u"<input type=hidden>",
                                      u"<!-- c -->",
                                      u"<OBJECT>",
                                      u"</object>",
                                      u"<PARAM a>",
                                      u"<embed>",
                                      u"</embed>",
                                      u"<script language=x> a<b </script>",
                                      u"</body>",
                                      u"</html>",
                                      u"<a b=c/d e>",
                                      u"<b/>",
                                      u"< 3",
                                      u"caf\u00e9",
                                      u"\r\n",
                                      u"</hr>",
                                      u"</img>",
                                      u"</a(our page>",
                                      u"<a(our page>",
                                      u"<blockquote>",
                                      u"</blockquote>",
                                      u"<table><tr><td>",
                                      u"</td></tr></table>",
                                      u"&amp;",
                                      u"<foo>",
                                      u"<!doctype html>"};

} // namespace

TEST(PlainPages, ReadAsTheParserReadsThem) {
    std::mt19937 draw(1);
    int known = 0;
    constexpr int pages = 20000;
    for (int i = 0; i < pages; ++i) {
        Text body;
        for (auto n = 1 + draw() % 24; n > 0; --n) body += pieces[draw() % std::size(pieces)];
        const std::optional<Text> text = plain_page_text(page(body));
        if (!text) continue;
        ++known;
        ASSERT_EQ(*text, parsed_visible_text(page(body))) << to_utf8(body);
    }
    EXPECT_GT(known, pages / 3);
}

TEST(PlainPages, LeaveTheRestToTheParser) {
    EXPECT_TRUE(plain_page_text(page(u"<h1>a</h1><li>b & c")));
    for (const char16_t* const body :
         {u"&eacute;", u"<select>", u"<table>x", u"<table><b>", u"<h1><b></b><h2>", u"<script><!--</script>",
          u"<!--a--!>", u"<!-->", u"\u0001", u"<a b=\"c", u"<svg>", u"<textarea>", u"</>", u"<?x>"})
        EXPECT_FALSE(plain_page_text(page(body))) << to_utf8(body);
    EXPECT_FALSE(plain_page_text(u"<p>no head"));
    EXPECT_FALSE(plain_page_text(page(Text(1, char16_t{0xD800}))));
}

} // namespace twk::test
