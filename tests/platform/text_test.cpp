// SPDX-License-Identifier: MIT
#include "platform/faults.h"
#include "platform/text.h"
#include "support/faults.h"

#include <gtest/gtest.h>

namespace twk::test {

TEST(TextPieces, CountFromOneAndStopAtTheEnds) {
    EXPECT_EQ(Left(u"abc", 5), u"abc");
    EXPECT_EQ(Left(u"abc", 0), u"");
    EXPECT_EQ(Right(u"abc", 2), u"bc");
    EXPECT_EQ(Mid(u"abc", 2), u"bc");
    EXPECT_EQ(Mid(u"abc", 4, 3), u"");
    EXPECT_EQ(Mid(u"abc", 2, 9), u"bc");
    EXPECT_EQ(fault_of([] { Left(u"abc", -1); }), fault_argument);
    EXPECT_EQ(fault_of([] { Right(u"abc", -1); }), fault_argument);
    EXPECT_EQ(fault_of([] { Mid(u"abc", 0, 1); }), fault_argument);
    EXPECT_EQ(fault_of([] { Mid(u"abc", 1, -1); }), fault_argument);
}

TEST(InStr, KeepsCaseAndStart) {
    EXPECT_EQ(InStr(u"banana", u"an"), 2);
    EXPECT_EQ(InStr(u"banana", u"an", 3), 4);
    EXPECT_EQ(InStr(u"banana", u"AN"), 0);
    EXPECT_EQ(InStr(u"banana", u"a", 7), 0);
    EXPECT_EQ(InStr(u"banana", u"", 3), 3);
    EXPECT_EQ(InStr(u"", u""), 0);
    EXPECT_EQ(fault_of([] { InStr(u"x", u"x", 0); }), fault_argument);
    // Long enough for the search by blocks, with false starts and a hit at the very end.
    const Text hay = Text(1000, u'a') + u"b" + Text(77, u'a') + u"ab!";
    EXPECT_EQ(InStr(hay, u"aab!"), 1078);
    EXPECT_EQ(InStr(hay, u"ba"), 1001);
    EXPECT_EQ(InStr(hay, u"!a"), 0);
}

TEST(Replace, GoesFromLeftToRightAndNeverOverItsOwnWork) {
    EXPECT_EQ(Replace(u"aaaa", u"aa", u"a"), u"aa");
    EXPECT_EQ(Replace(u"a a a", u"a", u"aa", 2), u"aa aa a");
    EXPECT_EQ(Replace(u"abc", u"", u"x"), u"abc");
    EXPECT_EQ(Replace(u"abc", u"b", u"x", 0), u"abc");
    EXPECT_EQ(fault_of([] { Replace(u"abc", u"b", u"x", -2); }), fault_argument);
    Text text = u"one  two";
    EXPECT_TRUE(replace_all(text, u"  ", u" "));
    EXPECT_FALSE(replace_all(text, u"  ", u" "));
    EXPECT_EQ(text, u"one two");
}

TEST(Split, KeepsEmptyPiecesButGivesNoneForAnEmptyText) {
    EXPECT_TRUE(Split(u"").empty());
    EXPECT_EQ(Split(u" a  b"), (std::vector<Text>{u"", u"a", u"", u"b"}));
    EXPECT_EQ(Split(u"a;b;", u";"), (std::vector<Text>{u"a", u"b", u""}));
    EXPECT_EQ(Split(u"a b", u""), (std::vector<Text>{u"a b"}));
    EXPECT_EQ(Split(u"xx<br>yy", u"<br>"), (std::vector<Text>{u"xx", u"yy"}));
}

TEST(Case, FollowsAllLettersAndTrimTakesBlanksOnly) {
    EXPECT_EQ(LCase(u"ÑANDÚ Žena Σ"), u"ñandú žena σ");
    EXPECT_EQ(UCase(u"ñandú"), u"ÑANDÚ");
    EXPECT_TRUE(same_text(u"ÉLAN", u"élan"));
    EXPECT_FALSE(same_text(u"elan", u"élan"));
    EXPECT_EQ(Trim(u"  \t a \r\n "), u"\t a \r\n");
    EXPECT_EQ(Trim(u"   "), u"");
    EXPECT_EQ(StrReverse(u"abc"), u"cba");
}

TEST(Utf8, GoesBothWaysAndMarksWhatIsNone) {
    const Text text = u"a\u00e9\u20ac\U0001F600z";
    EXPECT_EQ(from_utf8(to_utf8(text)), text);
    EXPECT_EQ(to_utf8(u"\U0001F600"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(to_utf8(Text(1, u'\xD83D')), "\xEF\xBF\xBD");
    EXPECT_EQ(from_utf8("a\xC3"), u"a\uFFFD");
    for (const char* const bad :
         {"\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\x80", "\xC3(", "\xE2\x82"})
        EXPECT_FALSE(is_utf8(bad)) << testing::PrintToString(bad);
    EXPECT_TRUE(is_utf8("\xC3\xA9"));
}

} // namespace twk::test
