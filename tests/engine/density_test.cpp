// SPDX-License-Identifier: MIT
#include "engine/density.h"
#include "platform/chance.h"
#include "platform/faults.h"
#include "shell/module1.h"
#include "support/faults.h"
#include "support/lone_run.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

using test::fault_of;

std::string utf8(TextView text) {
    return to_utf8(text);
}

/// "w0 w1 ..." from word `first` to word `last`.
Text numbered(int first, int last) {
    Text text;
    for (int i = first; i <= last; ++i) text += (i == first ? u"w" : u" w") + from_utf8(std::to_string(i));
    return text;
}

/// A run of one keyword with one sentence, "See <link> now", before the word "and".
class DensityAdjustment : public testing::Test, public test::LoneRun {
  protected:
    DensityAdjustment() {
        module1().url_principal = u"http://main";
        form.settings.palabras_ancla[9] = u" And ";
        form.settings.frases_link[3] = u"See *LINK* now";
        set_keywords({u"rose"});
        form.Combo9.text = u"3";
    }

    /// The adjusted form of a text that the test does not need afterwards.
    std::string adjusted(Text text, int per_cent, const Text& keyword = u"rose") {
        return utf8(Ajustar_KW(form.choices, text, keyword, per_cent));
    }

    const Text sentence = u"See <a href=\"http://main\">rose</a> now";
};

TEST_F(DensityAdjustment, gives_nothing_for_no_text_no_density_or_one_over_fifty) {
    Text untouched = u"a<p>b";
    EXPECT_EQ(utf8(Ajustar_KW(form.choices, untouched, u"rose", 0)), "");
    EXPECT_EQ(utf8(untouched), "a<p>b");
    EXPECT_EQ(adjusted(u"   ", 3), "");
    EXPECT_EQ(adjusted(u"<p> <br>", 3), "");
    EXPECT_EQ(adjusted(numbered(0, 99), 60), "");
    EXPECT_EQ(adjusted(numbered(0, 9), 3), ""); // less than one sentence due
    Text spaced = numbered(0, 99) + u"<p>";
    EXPECT_EQ(utf8(Ajustar_KW(form.choices, spaced, u"rose", 51)), "");
    EXPECT_EQ(utf8(spaced), utf8(numbered(0, 99) + u" <p> "));
}

TEST_F(DensityAdjustment, tells_what_the_settings_lack_when_every_sentence_is_empty) {
    form.settings.frases_link[3].clear();
    form.settings.frases_link[10] = u"never picked";
    EXPECT_EQ(fault_of([&] { adjusted(u"and " + numbered(1, 50), 2); }), fault_project_lacks);
    EXPECT_NE(adjusted(numbered(0, 50), 2), ""); // no anchor word, no sentence wanted
}

TEST_F(DensityAdjustment, holds_words_times_density_in_sixteen_bits) {
    Text text = numbered(0, 699);
    EXPECT_EQ(fault_of([&] { adjusted(text, 50); }), fault_overflow);
    // So are the occurrences, and their share of the words.
    const auto with_letter = [&](Text letters) {
        return fault_of([&] { Ajustar_KW(form.choices, letters, u"a", 3); });
    };
    EXPECT_EQ(with_letter(Text(40000, u'a') + u" one two"), fault_overflow);
    EXPECT_EQ(with_letter(Text(400, u'a')), fault_overflow);
    EXPECT_EQ(with_letter(Text(300, u'a')), 0);
}

TEST_F(DensityAdjustment, replaces_one_surplus_keyword_at_the_end_or_cuts_fifty_units) {
    form.settings.max_repeticiones = 1;
    form.settings.kw_sustituto = u"flower";
    Text near_end = numbered(0, 99), early = near_end;
    near_end = Replace(near_end, u"w60", u"rose");
    near_end = Replace(near_end, u"w92 w93 ", u"rose rose ");
    early = Replace(Replace(early, u"w4", u"rose"), u"w5 ", u"rose ");
    for (const Text& text : {near_end, early}) {
        form.Check8.value = false;
        const Text whole = recalcular(run, text, u"rose");
        EXPECT_FALSE(form.Check8.value());
        form.Check8.value = true;
        Text expected = u" " + Left(whole, Len(whole) - 50); // the first tag gets its blank
        if (text == near_end) expected += Replace(Right(whole, 50), u" rose ", u" flower ", 1);
        EXPECT_EQ(utf8(recalcular(run, text, u"rose")), utf8(expected));
        EXPECT_TRUE(form.Check8.value());
        EXPECT_EQ(contains(expected, u" flower rose "), text == near_end);
    }
    form.settings.max_repeticiones = 9;
    EXPECT_EQ(contains(recalcular(run, near_end, u"rose"), u"flower"), false);
    EXPECT_TRUE(form.Check8.value());
}

TEST_F(DensityAdjustment, grows_a_short_text_five_times_at_most) {
    form.settings.min_palabras = 30;
    run.boxes.ultima_caja = 0;
    run.boxes.contenidos[0] = numbered(0, 9);
    Text text = u"a b";
    const Text ten = u" " + numbered(0, 9);
    EXPECT_EQ(utf8(pocas_palabras(run.boxes, form.settings, text)),
              utf8(u"a b" + ten + ten + u" " + numbered(0, 8)));
    form.settings.min_palabras = 5;
    text = u"a b";
    EXPECT_EQ(utf8(pocas_palabras(run.boxes, form.settings, text)),
              utf8(u"a b " + numbered(0, 3))); // one word over
    text = u"a b";
    run.boxes.contenidos[0] = u"<p> <p> <p> <p> <p> x y z"; // tags use up what is needed
    EXPECT_EQ(utf8(pocas_palabras(run.boxes, form.settings, text)).find('x'), std::string::npos);

    run.boxes.contenidos[0] = u"";
    chance().fix_seed(3);
    Chance same;
    same.fix_seed(3);
    text = u"a";
    EXPECT_EQ(utf8(pocas_palabras(run.boxes, form.settings, text)), "a");
    for (int i = 0; i < 5; ++i) same.Rnd();
    EXPECT_EQ(chance().Rnd(), same.Rnd());
}

TEST_F(DensityAdjustment, moves_only_long_texts_which_must_have_five_hundred_pieces) {
    form.settings.max_palabras = 100;
    Text enough = numbered(0, 99) + u"  <p>";
    EXPECT_EQ(utf8(muchas_palabras(run, enough)), utf8(numbered(0, 99) + u" <p> "));
    Text between = numbered(0, 488);
    EXPECT_EQ(fault_of([&] { muchas_palabras(run, between); }), fault_subscript);
}

TEST_F(DensityAdjustment, makes_file_names) {
    form.Combo6.text = u"-";
    EXPECT_EQ(utf8(rspaces(form.choices, u"A\u00F1o Nuevo!")), "ano-nuevo");
    EXPECT_EQ(utf8(rspaces(form.choices, u"\u00C7\u20AC\u00A3\u0152 \u00C4\u00D6\u00DC \u00E0\u00C8\u00D9")),
              "cepc-aou-aeu");
    EXPECT_EQ(utf8(rspaces(form.choices, u"a?!#$%()@=\u00BF\u00A1:\"*'[]{+\u00AC<>b}")), "ab}");
    EXPECT_EQ(utf8(rspaces(form.choices, u"\u00D1 c,d/e\\f.g")),
              "\u00F1-c,d/e\\f.g"); // the capital stays itself
    form.Combo6.text = u"*_";       // part of a separator may go again
    EXPECT_EQ(utf8(rspaces(form.choices, u"a b")), "a_b");
}

} // namespace
} // namespace twk
