// SPDX-License-Identifier: MIT
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

/// What a page is made of, and what disturbs it.
const std::vector<Text> pieces =
    Split(u"word| |x y|<p>|</p>|<br>|</br>|<h1>|</h1>|<h2>|</h2>|<h3>|</h3>|<a href=\"q>r\">|"
          u"</a>|<b>|</b>|<i>|</i>|<u>|</u>|<FONT size=3>|</font>|<span style='a'>|</span>|"
          u"<center>|</center>|<div>|</div>|<ul>|</ul>|<li>|</li>|<table border = 1>|</table>|"
          u"<tr>|</tr>|<td>|</td>|<th>|</th>|<tbody>|</tfoot>|<hr width=3%>|<img src=x>|"
          u"<input type=hidden>|<!-- c -->|<OBJECT>|</object>|<PARAM a>|<embed>|</embed>|"
          u"<script language=x> a<b </script>|</body>|</html>|<a b=c/d e>|<b/>|< 3|caf\u00e9|"
          u"\r\n|</hr>|</img>|</a(our page>|<a(our page>|<blockquote>|</blockquote>|"
          u"<table><tr><td>|</td></tr></table>|&amp;|<foo>|<!doctype html>",
          u"|");

} // namespace

TEST(PlainPages, ReadAsTheParserReadsThem) {
    std::mt19937 draw(1);
    int known = 0;
    constexpr int pages = 20000;
    for (int i = 0; i < pages; ++i) {
        Text body;
        for (auto n = 1 + draw() % 24; n > 0; --n) body += pieces[draw() % pieces.size()];
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
