// SPDX-License-Identifier: MIT
#include "engine/density.h"
#include "engine/keyword_counts.h"
#include "engine/run.h"
#include "engine/surplus.h"
#include "engine/text_toolkit.h"
#include "settings/form6.h"

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

/// Longer patterns let the search step further; each place is compared with every pattern here.
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
        std::vector<std::pair<std::size_t, int>> found, wanted;
        for (const PatternSet::Hit& hit : hits) found.emplace_back(hit.at, hit.pattern);
        for (std::size_t at = from; at < end; ++at)
            for (int p = 0; p < set.size(); ++p)
                if (set.findable(p) && TextView(text).substr(at).starts_with(set.pattern(p)))
                    wanted.emplace_back(at, p);
        std::sort(found.begin(), found.end());
        ASSERT_EQ(found, wanted) << seed;
    }
}

/// The simple form: one scan for each keyword, and the last ones replaced at once.
TEST(KeywordCounts, EqualOneCountAfterTheOther) {
    int replaced = 0;
    for (unsigned seed = 0; seed < 4000; ++seed) {
        Soup soup(seed);
        Text simple = soup.text(5 + soup.below(120));
        Text fast = simple;
        std::vector<Text> simple_keywords = soup.keywords();
        std::vector<Text> fast_keywords = simple_keywords;
        const Text with = soup.substitute();
        const int kept = soup.below(4);
        const KeywordSet set(fast_keywords);
        KeywordCounts counts(set, fast);
        for (std::size_t k = 0; k < simple_keywords.size(); ++k) {
            const Text before = simple;
            const std::int16_t n = contar_kw(simple, simple_keywords[k]);
            ASSERT_EQ(counts.contar(static_cast<int>(k), fast_keywords[k]), n) << seed << ' ' << k;
            ASSERT_EQ(fast, simple) << seed << ' ' << k;
            ASSERT_EQ(fast_keywords[k], simple_keywords[k]);
            if (counts.absent()) {
                ASSERT_TRUE(n == 0 && simple == before) << seed << ' ' << k;
            }
            if (simple_keywords[k].empty() || n < kept) continue;
            replace_last(simple, simple_keywords[k], with, n - kept);
            counts.replace_last(static_cast<int>(k), with, n - kept);
            ASSERT_EQ(fast, simple) << seed << ' ' << k;
            ++replaced;
        }
        ASSERT_TRUE(set.same(fast_keywords));
    }
    EXPECT_GT(replaced, 5000);
}

TEST(KeywordCounts, FollowTheirKeywords) {
    const KeywordSet set({u" Red  Roses ", u"x"});
    EXPECT_TRUE(set.same({u"red roses", u"X"}));
    EXPECT_FALSE(set.same({u"red roses"}));
    EXPECT_FALSE(set.same({u"red rose", u"x"}));
    Text text = u"red roses";
    KeywordCounts counts(set, text);
    Text keyword = u" Red  Roses ";
    EXPECT_EQ(counts.contar(0, keyword), 1);
    EXPECT_EQ(keyword, u"red roses");
    text = u"red roses, red roses";
    counts.changed();
    EXPECT_EQ(counts.contar(0, keyword), 2);
}

TEST(HighLight, EqualsOneReplacementAfterTheOther) {
    Form6 form;
    for (unsigned seed = 0; seed < 2000; ++seed) {
        Soup soup(seed);
        twk::Run run(form);
        const std::vector<Text> keywords = soup.keywords();
        run.tabla_kw.resize(static_cast<int>(keywords.size()));
        for (std::size_t k = 0; k < keywords.size(); ++k)
            run.tabla_kw.cell(static_cast<int>(k)) = keywords[k];
        run.n_keywords = static_cast<std::int16_t>(keywords.size());
        form.settings.hl_abre = soup.below(2) == 0 ? u"<b>" : u" tool ";
        form.settings.hl_cierra = soup.below(2) == 0 ? u"</b>" : u" shed ";
        const Text text = soup.text(soup.below(100));
        Text simple = text;
        for (const Text& keyword : keywords)
            replace_all(simple, u" " + Trim(keyword) + u" ",
                        u" " + form.settings.hl_abre + keyword + form.settings.hl_cierra + u" ");
        ASSERT_EQ(highLight(run, text), simple) << seed;
    }
}

} // namespace twk::test
