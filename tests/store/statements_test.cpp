// SPDX-License-Identifier: MIT
#include "platform/faults.h"
#include "platform/screens.h"
#include "support/faults.h"
#include "support/temp_app.h"

#include <gtest/gtest.h>

namespace twk::test {

namespace {

/// The project store with two projects that own one keyword each, boxes, ties and addresses.
struct Filled : TempApp {
    Filled() {
        for (const char16_t* const name : {u"alpha", u"beta"})
            run(u"insert into Projects ( name , site_name , site_url , title , category , description , "
                u"designer_name , designer_url )  values ( '" +
                Text(name) +
                u"' , 'site' , 'http://www.site.example'  , 'Title' , 'Cat' ,  'Text' , 'Ann' , 'http://' ) ");
        run(u"insert into keywords ( pid , keyword ) values ( 1 , 'garden' ) ");
        run(u"insert into keywords (pid, keyword) values ( 2 , 'kitchen')");
        run(u"insert into elements ( catid , element ) values ( 1 , 'rose' ) ");
        run(u"insert into elements (catid , element) values ( 2 , 'oven' )");
        run(u"insert into content ( pid , content ) values ( 1 , 'About gardens <br> ' ) ");
        run(u"insert into ties ( pid , keyid , cid  ) values ( 1 , 1 , 1  ) ");
        run(u"insert into host ( pid , host ) values ( 1 , 'http://two.example' ) ");
        run(u"insert into host1 ( pid , host ) values ( 1 , 'http://one.example' ) ");
        run(u"insert into target ( pid , target ) values ( 1 , 'http://other.example' )");
    }
};

} // namespace

TEST(JoinDelete, ReachesOnlyTheRowsThatTheJoinMatches) {
    const Filled app;
    app.run(u"insert into keywords ( pid , keyword ) values ( 1 , 'no subkeyword' ) ");
    app.run(u"insert into elements ( catid , element ) values ( 1 , 'lily' ) ");
    app.hive().Execute({u"delete keywords.* , elements.* from keywords , elements where pid = {} and "
                        u"elements.catid = keywords.keyid",
                        1});
    EXPECT_EQ(app.rows_of("select keyid, keyword from keywords"), "2,kitchen|3,no subkeyword");
    EXPECT_EQ(app.rows_of("select element from elements"), "oven");
}

TEST(Literals, AreOneSoundStatementOrDoNotCompile) {
    constexpr auto text = StatementPart::text, number = StatementPart::number, name = StatementPart::name;
    const auto sound = [](TextView literal, std::initializer_list<StatementPart> parts) {
        return fault_in_statement(literal, parts) == nullptr;
    };
    EXPECT_TRUE(sound(u"Delete from {} where a <> '' and b = '{}' and c= {}", {name, text, number}));
    EXPECT_TRUE(sound(u"insert into host ( pid , host ) values ( 2 , 'a -- b /* c ; {\"d\"' ) ", {}));
    EXPECT_TRUE(sound(u"content", {}));
    for (const TextView literal :
         {u"", u"drop table host", u"pragma user_version = 7", u"begin", u"host", u"selection", u" select 1",
          u"select 'x", u"select 1 ; select 2", u"select 1 -- 2", u"select 1 /* 2", u"select {}"})
        EXPECT_FALSE(sound(literal, {})) << to_utf8(literal);
    for (const TextView literal :
         {u"select {}", u"select 'x{}'", u"select '{} '", u"select '{}", u"select 1"})
        EXPECT_FALSE(sound(literal, {text})) << to_utf8(literal);
    EXPECT_FALSE(sound(u"select '{}'", {number}));
    EXPECT_FALSE(sound(u"select '{}'", {name}));
}

TEST(MalformedStatements, ChangeNothing) {
    const Filled app;
    app.run(u"insert into host ( pid , host ) values ( 2 , 'http://theirs.example' ) ");
    const std::string rows_before = app.all_rows();
    Database store = app.hive();
    for (const Statement& statement :
         {Statement(u"delete from sqlite_sequence"), Statement(u"insert into nothing ( a ) values ( 1 )"),
          Statement(u"select * from host"), Statement(u"update host set host = 'x' where nobody = 1"),
          Statement(u"insert into host ( pid ) values ( 1 ) returning pid"), Statement(u"content")})
        EXPECT_EQ(fault_of([&] { store.Execute(statement); }), fault_statement) << to_utf8(statement.text());
    for (const Statement& statement :
         {Statement(u"delete from host"), Statement(u"select * from sqlite_master"),
          Statement(u"insert into host ( pid ) values ( 1 ) returning pid")})
        EXPECT_EQ(fault_of([&] { store.OpenRecordset(statement); }), fault_statement)
            << to_utf8(statement.text());
    EXPECT_EQ(app.all_rows(), rows_before);
}

TEST(Values, WithAnApostropheOrANulAreRefusedInWordsAndWithTheStatement) {
    TestDesktop desktop;
    const auto told = [&](const Text& first, const Text& second) {
        desktop.expect(u"", Answer::ok);
        screens().dispatch(
            [&] { Statement(u"update synonyms set synonyms = '{}' where keyword = '{}'", first, second); });
        const Text text =
            u"update synonyms set synonyms = '" + first + u"' where keyword = '" + second + u"'";
        EXPECT_TRUE(desktop.last_message().ends_with(u"\n" + text));
        return Left(desktop.last_message(), Len(desktop.last_message()) - Len(text) - 1);
    };
    const Text number = u"Run-time error '3075':\n\n", syntax = u"Syntax error in the statement: ";
    const Text apostrophe = number + u"An apostrophe (') cannot be stored here.\n" + syntax;
    EXPECT_EQ(told(u"it's", u"x"), apostrophe + u"a quote is not closed");
    EXPECT_EQ(told(u"x", u"y'"), apostrophe + u"a quote is not closed");
    for (const char16_t* const value :
         {u"x' --", u"x' /* ", u"x' ; delete from host where ( '' = '", u"' ; --"})
        EXPECT_EQ(told(value, u"y"), apostrophe + u"text that belongs to no statement");
    for (const char16_t* const value : {u"rock 'n' roll", u"x' or '1'='1", u"x''", u"' || name || '"})
        EXPECT_EQ(told(u"y", value), apostrophe + u"an apostrophe in a value");
    EXPECT_EQ(told(u"x'", u"'y"), apostrophe + u"an apostrophe in a value") << "even in number";
    EXPECT_EQ(told(u"x", u"a" + Text(1, u'\0') + u"b"), number + syntax + u"unrecognized token: \"'a\"");
    EXPECT_EQ(Statement(u"select '{}'", Text(u"{} \"d\" -- ;")).text(), u"select '{} \"d\" -- ;'");
}

TEST(Values, WithHalfACharacterDoNotSwallowTheQuoteBehindIt) {
    const Filled app;
    const Text half(1, char16_t(0xD83D));
    app.hive().Execute(
        {u"update Projects set name = 'n' ,  category = '{}' ,  description = '{}' where pid = {}",
         u"c" + half, Text(u" where pid = 2 "), 1});
    EXPECT_EQ(app.rows_of("select name, category, description from Projects"),
              "n,c\xEF\xBF\xBD, where pid = 2 |beta,Cat,Text");
    Recordset box = app.hive().OpenRecordset({u"content"});
    box.AddNew();
    box.AppendChunk(u"content", half + u"'x");
    box.Update();
    EXPECT_EQ(app.value(u"select * from content where cid = 2", u"content"), u"\xFFFD'x");
}

TEST(Text, IsComparedWithoutCaseForAllLetters) {
    const TempApp app;
    app.run(u"insert into keywords ( pid , keyword ) values ( 1 , 'Ñandú ÉLAN' ) ");
    EXPECT_EQ(app.count(u"select * from keywords where keyword = 'ñANDÚ élan' and pid = 1"), 1);
    EXPECT_EQ(app.count(u"select * from keywords where keyword = 'nandu elan' and pid = 1"), 0);
    EXPECT_EQ(app.value(u"select * from keywords", u"keyword"), u"Ñandú ÉLAN");
    Database words = app.synonyms();
    for (const char16_t* const word : {u"house", u"Home", u"garden"})
        words.Execute({u"insert into synonyms ( keyword ) values ( '{}' )", Text(word)});
    Recordset sorted = words.OpenRecordset({u"select * from synonyms order by keyword"});
    for (const char16_t* const word : {u"garden", u"Home", u"house"}) {
        EXPECT_EQ(sorted.Fields(u"keyword").text(), word);
        sorted.MoveNext();
    }
}

} // namespace twk::test
