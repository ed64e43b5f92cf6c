// SPDX-License-Identifier: MIT
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "support/faults.h"
#include "support/sample_project.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

using test::fault_of;
using test::repeated;

std::string utf8(TextView text) {
    return to_utf8(text);
}

int words(Text text) {
    return contar_palabras(text);
}

int occurrences(Text text, Text keyword) {
    return contar_kw(text, keyword);
}

double density(const Text& text, Text keyword) {
    return densidad(text, keyword);
}

TEST(Words, are_the_pieces_between_blanks_that_are_no_tags) {
    EXPECT_EQ(words(u""), 0);
    EXPECT_EQ(words(u"   "), 0);
    EXPECT_EQ(words(u"<p>"), 0);
    EXPECT_EQ(words(u"<p>one two</p>"), 2);
    EXPECT_EQ(words(u"<a href=\"x\">"), 0);
    EXPECT_EQ(words(u"<img src=\"x\" alt=\"y\">"), 1); // the attribute in the middle
    EXPECT_EQ(words(u"one,two  three."), 2);
    EXPECT_EQ(words(u"a < b > c"), 3);
}

TEST(Occurrences, of_phrases_pass_over_one_unit_more_per_blank) {
    EXPECT_EQ(occurrences(u"red rosered rose", u"red rose"), 1); // the second begins within the extra unit
    EXPECT_EQ(occurrences(u"red rose red rose", u"red rose"), 2);
    EXPECT_EQ(occurrences(u"a b c a b c", u"a b c"), 1); // two blanks reach past the gap
    EXPECT_EQ(occurrences(u"a b c, a b c", u"a b c"), 2);
}

TEST(Counting, ends_with_sixteen_bits) {
    EXPECT_EQ(words(repeated(u"w ", 32767)), 32767);
    EXPECT_EQ(fault_of([] { words(repeated(u"w ", 32768)); }), fault_overflow);
    EXPECT_EQ(occurrences(u"aaaa", u"aa"), 2);
    EXPECT_EQ(fault_of([] { occurrences(repeated(u"a", 32768), u"a"); }), fault_overflow);
}

TEST(Density, is_whole_per_cent_with_halves_to_even) {
    const auto text = [](int with, int of) { return repeated(u"key ", with) + repeated(u"w ", of - with); };
    EXPECT_EQ(density(text(3, 100), u"key"), 3);
    EXPECT_EQ(density(text(1, 200), u"key"), 0);
    EXPECT_EQ(density(text(3, 200), u"key"), 2);
    EXPECT_EQ(density(text(400, 32000), u"key"), 1); // 400 * 100 does not overflow
    EXPECT_EQ(density(u"aaaaaaaaaaaa", u"a"), 1200);
    EXPECT_EQ(density(u"<p> <br>", u"p"), 0);
    EXPECT_EQ(density(u"  ", u"p"), 0);
    Text keyword = u" Key ";
    const Text unchanged = u"a<b>";
    densidad(unchanged, keyword);
    EXPECT_EQ(utf8(keyword), "key");
}

TEST(Density, of_reports_counts_tags_and_empty_pieces) {
    Text text = u"<p> red rose  and <p> more";
    EXPECT_EQ(densidad2(1, text, u"red rose"), 20); // six pieces and the joint
    EXPECT_EQ(utf8(text), "<p> red$$$rose  and <p> more");
    Text one = u"word";
    EXPECT_EQ(densidad2(2, one, u"word"), 200);
    EXPECT_EQ(densidad2(0, one, u"word"), 0);
    Text upper = u"Red Rose";
    densidad2(0, upper, u"red rose");
    EXPECT_EQ(utf8(upper), "Red Rose");
    Text long_text = repeated(u"w ", 200);
    EXPECT_EQ(densidad2(327, long_text, u"x"), 164); // 163.5
    EXPECT_EQ(fault_of([&] { densidad2(328, long_text, u"x"); }), fault_overflow);
}

TEST(Cutting, counts_pieces_for_its_limit_and_words_for_its_stop) {
    EXPECT_EQ(utf8(cortar_palabras(u"a b c d", 2)), "a b");
    EXPECT_EQ(utf8(cortar_palabras(u"<p> a b c", 2)), "<p> a");
    EXPECT_EQ(utf8(cortar_palabras(u"a  b c", 2)), "a");        // the empty piece uses up the limit
    EXPECT_EQ(utf8(cortar_palabras(u"a<b>c d e", 2)), "a<b>c"); // two words in one piece
    EXPECT_EQ(utf8(cortar_palabras(u" a b ", 9)), "a b");
    EXPECT_EQ(utf8(cortar_palabras(u"a b", 0)), "");
    EXPECT_EQ(utf8(cortar_palabras(u"  ", 5)), "");
    const Text marked = Text(highlight_opening) + u"a b c";
    // Three pieces of the opening: two are no words, and the last holds the first word.
    EXPECT_EQ(utf8(cortar_palabras(marked, 3)), utf8(Text(highlight_opening) + u"a"));
}

TEST(Cleaning, collapses_blanks_points_and_empty_paragraphs) {
    Text text = u"  a... b  ";
    EXPECT_EQ(utf8(limpiar_html(text)), "a. b");
    Text paragraphs = u"x<p><p> <p>  <p>y ";
    EXPECT_EQ(utf8(limpiar_html(paragraphs)), "x <p> y");
    EXPECT_EQ(utf8(paragraphs), "x <p> y ");
}

TEST(Preparing, turns_the_text_of_a_box_into_page_text) {
    Text text = u" say \"hi\"(now)\r\n<b>x</b> ";
    EXPECT_EQ(utf8(preparar_texto(text)), "say hi (now) <p> <b> x </b>");
    EXPECT_EQ(utf8(text), " say hi (now)   <p>   <b> x </b>  ");
}

TEST(Draws, of_nothing_take_no_chance) {
    chance().fix_seed(5);
    Chance same;
    same.fix_seed(5);
    EXPECT_EQ(xrnum(0), 0);
    EXPECT_EQ(xrnum(1000), static_cast<int>(same.Rnd() * 1000));
    EXPECT_EQ(chance().Rnd(), same.Rnd());
}

TEST(Letters, skip_to_b_behind_z) {
    const auto letter = [](int n) { return utf8(letra(n)); };
    EXPECT_EQ(letter(0), "a");
    EXPECT_EQ(letter(25), "z");
    EXPECT_EQ(letter(26), "b");
    EXPECT_EQ(letter(50), "z");
    EXPECT_EQ(fault_of([&] { letter(51); }), fault_subscript);
    EXPECT_EQ(fault_of([&] { letter(-1); }), fault_subscript);
    int n = 30;
    letra(n);
    EXPECT_EQ(n, 5);
}

TEST(WordCheck, tells_the_first_thing_wrong) {
    test::TestDesktop desktop;
    const auto passed = [](Text word) { return utf8(validar_palabra(word)); };
    EXPECT_EQ(passed(u"abc"), "abc");
    EXPECT_EQ(passed(u" Red_rose-9 "), "Red_rose-9");
    EXPECT_EQ(passed(u"a  "), "a"); // long enough before it is trimmed
    desktop.expect(u"The word must have more than 3 characters");
    EXPECT_EQ(passed(u"ab"), "");
    for (const TextView word : {u"Index", u" SITEMAP"}) {
        desktop.expect(u"'Sitemap' and 'Index' are reserved words.");
        EXPECT_EQ(passed(Text(word)), "");
    }
    Text kept = u"a.b ";
    desktop.expect(u"The word can only contain letters, numbers and dashes");
    EXPECT_EQ(utf8(validar_palabra(kept)), "");
    EXPECT_EQ(utf8(kept), "a.b");
    desktop.expect(u"The word can only contain letters, numbers and dashes");
    EXPECT_EQ(passed(u"a\u00F1o"), "");
}

} // namespace
} // namespace twk
