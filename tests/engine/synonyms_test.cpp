// SPDX-License-Identifier: MIT
#include "engine/synonyms.h"
#include "engine/text_toolkit.h"
#include "platform/numbers.h"
#include "support/temp_app.h"

#include <random>

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

namespace twk {
namespace {

struct Row {
    Text keyword, synonyms;
};

/// The plain form of the search: every word against every row, from the first on.
Text scan(const std::vector<Row>& k, const std::vector<Row>& s, Text text, int share) {
    text = Replace(Replace(text, u"<", u" <"), u">", u"> ");
    quitar_dobles(text);
    std::vector<Text> words = Split(text);
    const int m = static_cast<int>(Round((static_cast<double>(words.size()) - 1) * share / 100));
    for (int i = 0; i <= m; ++i) {
        Text& word = words[static_cast<std::size_t>(i)];
        for (std::size_t j = 0; j < k.size(); ++j) {
            const Text a = LCase(Left(k[j].keyword, 1)), c = LCase(Left(s[j].synonyms, 1));
            const Text w = LCase(Left(word, 1));
            bool last = !a.empty() && a > w && c > w;
            if (LCase(word) == LCase(k[j].keyword)) {
                word = k[j].synonyms;
                last = true;
            } else if (LCase(word) == LCase(s[j].synonyms)) {
                word = s[j].keyword;
                last = true;
            }
            if (last) break;
        }
    }
    Text out;
    for (const Text& word : words) out += word + u" ";
    return Trim(out);
}

class Synonyms : public testing::Test {
  protected:
    void add(const Text& keyword, const Text& synonyms) {
        app.synonyms().Execute(
            {u"insert into synonyms ( keyword , synonyms ) values ( '{}' , '{}' )", keyword, synonyms});
    }
    void at_second(int second) {
        set_clock(std::make_shared<FixedClock>(LocalTime{2026, 11, 24, 10, 18, second, 0}));
    }
    std::vector<Row> rows(StatementName order) {
        std::vector<Row> all;
        for (const auto r : app.synonyms().OpenRecordset(
                 {u"select * from synonyms where synonyms  <> '' order by {} asc", order}))
            all.push_back({r.Fields(u"keyword").text(), r.Fields(u"synonyms").text()});
        return all;
    }
    Text expanded(const Text& text) { return synonyms.sinonimo(text); }

    test::TempApp app;
    twk::Synonyms synonyms;
};

TEST_F(Synonyms, work_both_ways_and_take_the_dictionary_s_case) {
    add(u"car", u"auto");
    add(u"house", u"Villa Rustica");
    add(u"empty", u"");
    at_second(59);
    EXPECT_EQ(expanded(u"Car and HOUSE <b>empty</b> then all the rest"),
              u"auto and Villa Rustica <b> empty </b> then all the rest");
    EXPECT_EQ(expanded(u"AUTO cars car, a b c d e f"), u"car cars car, a b c d e f");
    add(u"auto",
        u"machine"); // a keyword of one row and the synonym of another: the keyword's row comes first
    EXPECT_EQ(expanded(u"auto a b c"), u"machine a b c");
}

TEST_F(Synonyms, are_read_again_when_another_program_has_changed_them) {
    add(u"car", u"auto");
    at_second(59);
    EXPECT_EQ(expanded(u"car bus b c"), u"auto bus b c");
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(to_utf8(app.path(u"synonyms.mdb")).c_str(), &other), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(other, "insert into synonyms values ('bus', 'coach')", nullptr, nullptr, nullptr),
              SQLITE_OK);
    sqlite3_close(other);
    EXPECT_EQ(expanded(u"car bus b c"), u"auto coach b c");
}

TEST_F(Synonyms, rewrite_a_share_by_the_clock_that_is_never_below_a_fifth) {
    add(u"w", u"x");
    Text text;
    for (int i = 0; i < 101; ++i) text += u"w ";
    const auto changed = [&] {
        const Text out = expanded(Trim(text));
        return std::count(out.begin(), out.end(), u'x');
    };
    at_second(5);
    EXPECT_EQ(changed(), 21); // the piece at the bound is among them
    at_second(45);
    EXPECT_EQ(changed(), 46);
}

TEST_F(Synonyms, an_empty_dictionary_only_evens_the_blanks_out) {
    EXPECT_EQ(expanded(u" a  b<br>c "), u"a b <br> c");
    EXPECT_EQ(expanded(u""), u"");
}

TEST_F(Synonyms, give_what_the_plain_search_gives) {
    std::mt19937 chance(7); // NOLINT: the same words every time
    const auto word = [&chance] {
        static const TextView letters = u"abcdXYZ<";
        Text w;
        for (unsigned n = 1 + chance() % 2; n > 0; --n) w += letters[chance() % letters.size()];
        return w;
    };
    for (int i = 0; i < 60; ++i) add(word(), word());
    at_second(59);
    const std::vector<Row> k = rows(u"keyword"), s = rows(u"synonyms");
    for (int i = 0; i < 40; ++i) {
        Text text;
        for (int n = 0; n < 50; ++n) text += word() + (n % 9 == 0 ? u"  " : u" ");
        ASSERT_EQ(expanded(text), scan(k, s, text, 59)) << to_utf8(text);
    }
}

} // namespace
} // namespace twk
