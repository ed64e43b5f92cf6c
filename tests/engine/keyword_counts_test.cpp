#include "engine/keyword_counts.h"
#include "engine/text_toolkit.h"

#include <random>

#include <gtest/gtest.h>

namespace twk {
namespace {

TEST(KeywordCounts, equal_counting_one_by_one_on_random_texts) {
    std::mt19937 draw(5);
    const auto below = [&draw](std::size_t n) { return static_cast<std::size_t>(draw() % n); };
    const Text pieces[] = {u"ab",    u"abab", u"ba",  u" ",   u" ",   u"  ",  u"<p>",
                           u" <b> ", u"$",    u"$$$", u"cab", u"AB ", u"ab ", highlight_opening.data(),
                           u"a",     u"b c"};
    const Text keywords[] = {u"ab", u"Abab", u"ab  ba", u"cab ab",          u"b",
                             u"",   u"a$b",  u"b c ab", u"not there at all"};
    for (int round = 0; round < 3000; ++round) {
        Text together;
        for (std::size_t i = below(25); i > 0; --i) together += pieces[below(std::size(pieces))];
        Text apart = together;
        KeywordCounts counts(together);
        for (int call = 0; call < 12; ++call) {
            Text one = keywords[below(std::size(keywords))];
            Text other = one;
            ASSERT_EQ(counts.count(one), contar_kw(apart, other)) << to_utf8(apart);
            ASSERT_EQ(one, other);
            ASSERT_EQ(to_utf8(together), to_utf8(apart));
            if (below(10) != 0) continue;
            together += u"abab <p>"; // as a replacement between two counts would
            apart = together;
            counts.text_changed();
        }
    }
}

} // namespace
} // namespace twk
