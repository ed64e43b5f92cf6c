// SPDX-License-Identifier: MIT
#include "engine/counting/keyword_counts.h"
#include "engine/counting/keyword_marks.h"
#include "engine/counting/plain.h"
#include "engine/counting/spaced_text.h"
#include "engine/counting/words.h"
#include "support/faults.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace twk::test {

namespace {

/// Texts that repeat, overlap, touch tags and hold what a count takes away.
class Soup {
  public:
    explicit Soup(unsigned seed) : draw_(seed) {}

    int below(int n) { return static_cast<int>(draw_() % static_cast<unsigned>(n)); }

    Text text(int pieces) {
        static const Text all[] = {u"tool",    u"tool shed", u"ol sh", u"a",   u"aa",    u"aaa",
                                   u"Tool",    u" ",         u" ",     u" ",   u" ",     u"<p>",
                                   u"<b ",     u">",         u"$",     u"$$$", u"shed ", u"t",
                                   u"\u00e9 ", u"tool rack", u"ab",    u"abab"};
        Text text;
        for (int i = 0; i < pieces; ++i) {
            const bool rare = below(60) == 0;
            // Most texts are plain: what disturbs the counts is met, but does not rule.
            int piece = below(rare ? 22 : 11);
            if (!rare && piece == 9 && below(3) != 0) piece = 7;
            text += all[piece];
        }
        if (below(8) == 0) text.insert(text.size() / 2, highlight_opening);
        return text;
    }

    std::vector<Text> keywords() {
        static const Text all[] = {u"tool",         u"tool shed", u"Shed",      u"aa",     u"aba",
                                   u" tool  shed ", u"",          u"a",         u"l s",    u"$",
                                   u"ol",           u"a a",       u"shed tool", u"a ba b", u"tool rack"};
        std::vector<Text> keywords;
        for (int i = 2 + below(9); i > 0; --i) keywords.push_back(all[below(15)]);
        return keywords;
    }

    Text substitute() {
        static const Text all[] = {u"this topic",     u"",    u"tool", u"<i>x</i>", u"a", u" b ",
                                   u"tool shed tool", u"$$$", u"shed"};
        return all[below(9)];
    }

  private:
    std::mt19937 draw_;
};

} // namespace

/// Longer patterns let the search step further.
TEST(PatternSet, FindsWhatComparingEveryPlaceFinds) {
    for (unsigned seed = 0; seed < 500; ++seed) {
        Soup soup(seed);
        const auto letters = [&soup](int n) {
            Text text;
            for (; n > 0; --n) text += static_cast<char16_t>(u'a' + soup.below(3));
            return text;
        };
        const int shortest = 1 + soup.below(6);
        std::vector<Text> patterns;
        for (int i = 0; i < 6; ++i) patterns.push_back(letters(shortest + soup.below(4)));
        const PatternSet set(patterns);
        const Text text = letters(soup.below(400));
        const auto from = static_cast<std::size_t>(soup.below(5)), end = text.size() - text.size() / 4;
        std::vector<PatternSet::Hit> hits;
        set.find(text, from, end, hits);
        std::vector<std::pair<std::size_t, int>> found;
        for (const PatternSet::Hit& hit : hits) found.emplace_back(hit.at, hit.pattern);
        std::sort(found.begin(), found.end());
        ASSERT_EQ(found, plain::occurrences(text, patterns, from, end)) << seed;
    }
}

/// Words of texts, and one keyword after the other whose last occurrences are replaced at once.
TEST(Counts, EqualTheirPlainForm) {
    int replaced = 0;
    for (unsigned seed = 0; seed < 4000; ++seed) {
        Soup soup(seed);
        Text simple = soup.text(5 + soup.below(120));
        Text fast = simple;
        Text words = simple, simple_words = simple;
        ASSERT_EQ(contar_palabras(words), plain::contar_palabras(simple_words)) << seed;
        ASSERT_EQ(words, simple_words) << seed;
        const Text lines = Replace(Replace(Replace(simple, u"a", vbCrLf), u"l", u"\r"), u"e", u"\n");
        Text in_one_line = Replace(lines, vbCrLf, u" ");
        ASSERT_EQ(words_of_lines(lines, TextScan(lines)), plain::contar_palabras(in_one_line)) << seed;
        std::vector<Text> simple_keywords = soup.keywords();
        std::vector<Text> fast_keywords = simple_keywords;
        const Text with = soup.substitute();
        const int kept = soup.below(4);
        const KeywordSet set(fast_keywords);
        KeywordCounts counts(set, fast);
        for (std::size_t k = 0; k < simple_keywords.size(); ++k) {
            const Text before = simple;
            Text one_by_one = simple, keyword = simple_keywords[k];
            const auto n = static_cast<int>(plain::contar_kw(simple, simple_keywords[k]));
            ASSERT_EQ(contar_kw(one_by_one, keyword), n) << seed << ' ' << k;
            ASSERT_EQ(one_by_one, simple) << seed << ' ' << k;
            ASSERT_EQ(keyword, simple_keywords[k]);
            ASSERT_EQ(counts.contar(static_cast<int>(k), fast_keywords[k]), n) << seed << ' ' << k;
            ASSERT_EQ(fast, simple) << seed << ' ' << k;
            ASSERT_EQ(fast_keywords[k], simple_keywords[k]);
            if (counts.absent()) {
                ASSERT_TRUE(n == 0 && simple == before) << seed << ' ' << k;
            }
            if (simple_keywords[k].empty() || n < kept) continue;
            plain::replace_last(simple, simple_keywords[k], with, n - kept);
            replace_last(one_by_one, keyword, with, n - kept);
            ASSERT_EQ(one_by_one, simple) << seed << ' ' << k;
            counts.replace_last(static_cast<int>(k), with, n - kept);
            ASSERT_EQ(fast, simple) << seed << ' ' << k;
            ++replaced;
        }
    }
    EXPECT_GT(replaced, 5000);
}

TEST(KeywordCounts, FollowTheirKeywords) {
    const KeywordSet set({u" Red  Roses ", u"x"});
    Text text = u"red roses";
    KeywordCounts counts(set, text);
    Text keyword = u" Red  Roses ";
    EXPECT_EQ(counts.contar(0, keyword), 1);
    EXPECT_EQ(keyword, u"red roses");
    text = u"red roses, red roses";
    counts.changed();
    EXPECT_EQ(counts.contar(0, keyword), 2);
}

TEST(KeywordMarks, EqualOneReplacementAfterTheOther) {
    KeywordMarks marks;
    for (unsigned seed = 0; seed < 2000; ++seed) {
        Soup soup(seed);
        const std::vector<Text> keywords = soup.keywords();
        const TextView opening = soup.below(2) == 0 ? u"<b>" : u" tool ";
        const TextView closing = soup.below(2) == 0 ? u"</b>" : u" shed ";
        const Text text = soup.text(soup.below(100));
        Text marked = text;
        marks.forget();
        marks.highLight(marked, keywords, opening, closing);
        ASSERT_EQ(marked, plain::highLight(text, keywords, opening, closing)) << seed;
    }
}

/// Sentences that differ from draw to draw, glued ones and blank-ended ones among them; a text that is used
/// again and again.
TEST(SpacedText, GetsItsSentencesAsInTheirPlainForm) {
    int linked = 0;
    for (unsigned seed = 0; seed < 3000; ++seed) {
        Soup soup(seed);
        const Text text = soup.text(20 + soup.below(200));
        const Text keyword = soup.keywords().front();
        const int wanted = soup.below(seed % 3 == 0 ? 60 : 12);
        int drawn = 0;
        const LinkingSentences sentences{{u"TOOL", u"ab", u"shed"}, [&drawn] {
                                             static const Text all[] = {u"<a>one</a>", u" two  tool ", u"x "};
                                             return all[drawn++ % 3];
                                         }};
        const auto with = [&](auto adjust) {
            drawn = 0;
            Text out;
            const int fault = test::fault_of([&] { out = adjust(); });
            return std::tuple(fault, fault == 0 ? out : Text(), drawn);
        };
        Text plain_text = text;
        std::optional<SpacedText> spaced;
        const int too_many = test::fault_of([&] { spaced.emplace(text); });
        ASSERT_EQ(too_many, 0);
        const auto plain_out =
            with([&] { return plain::Ajustar_KW(plain_text, keyword, wanted, sentences); });
        for (int twice = 0; twice < 2; ++twice)
            ASSERT_EQ(with([&] { return Ajustar_KW(*spaced, keyword, wanted, sentences); }), plain_out)
                << seed << ' ' << to_utf8(keyword) << ' ' << wanted;
        linked += std::get<2>(plain_out) > 0 ? 1 : 0;
    }
    EXPECT_GT(linked, 500);
}

} // namespace twk::test
