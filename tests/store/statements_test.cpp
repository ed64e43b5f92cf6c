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
    const Database open = hive(); ///< spares every statement the opening

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
    app.run(u"delete keywords.* , elements.* from keywords , elements where pid = 1 and elements.catid = "
            u"keywords.keyid");
    EXPECT_EQ(app.count(u"select * from keywords where pid = 1"), 1);
    EXPECT_EQ(app.value(u"select * from keywords where pid = 1", u"keyword"), u"no subkeyword");
    EXPECT_EQ(app.count(u"select * from elements where catid = 1"), 0);
    EXPECT_EQ(app.count(u"select * from keywords where pid = 2"), 1);
    EXPECT_EQ(app.count(u"select * from elements where catid = 2"), 1);
    EXPECT_EQ(
        fault_of([&] { app.run(u"delete keywords.* , elements.* from keywords , elements where pid = x'"); }),
        fault_statement);
}

TEST(MalformedStatements, ChangeNothing) {
    Filled app;
    app.desktop.always(u"3075", Answer::ok);
    for (const char16_t* const value :
         {u"it's", u"x' ) --", u"x' ) /* ", u"x' ) ; delete from host where ( '' = '", u"'", u"rock 'n' roll",
          u"x' ) ; --"}) {
        const Text statement = u"insert into host ( pid , host ) values ( 1 , '" + Text(value) + u"' ) ";
        EXPECT_EQ(fault_of([&] { app.run(statement); }), fault_statement) << to_utf8(value);
        screens().dispatch([&] { app.run(statement); });
        const Text& shown = app.desktop.last_message();
        EXPECT_TRUE(
            shown.starts_with(u"An apostrophe (') cannot be stored here.\n\nRun-time error '3075':") &&
            contains(shown, statement))
            << to_utf8(shown);
    }
    for (const char16_t* const statement :
         {u"", u"  ", u"drop table host", u"create table more ( a text )", u"pragma user_version = 7",
          u"attach 'x' as y", u"delete from sqlite_sequence", u"insert into nothing ( a ) values ( 1 )",
          u"select * from host", u"begin", u"vacuum", u"savepoint x",
          u"insert into host ( pid ) values ( 1 ) returning pid",
          u"update host set host = 'x' where nobody = 1"})
        EXPECT_EQ(fault_of([&] { app.run(statement); }), fault_statement) << to_utf8(statement);
    for (const char16_t* const statement :
         {u"delete from host", u"select * from sqlite_master", u"select * from host where host = 'it's'",
          u"host x", u"explain select * from host"})
        EXPECT_EQ(fault_of([&] { app.hive().OpenRecordset(statement); }), fault_statement)
            << to_utf8(statement);
    EXPECT_EQ(app.count(u"select * from host"), 1);
    EXPECT_EQ(app.value(u"select * from host", u"host"), u"http://two.example");

    app.run(
        u"insert into host ( pid , host ) values ( 2 , 'a -- b /* c ; \"d\"' ) "); // harmless inside quotes
    EXPECT_EQ(app.value(u"select * from host where pid = 2", u"host"), u"a -- b /* c ; \"d\"");
}

TEST(MalformedStatements, AreThoseThatAnApostropheTurnsIntoOthers) {
    const Filled app;
    app.run(u"insert into host ( pid , host ) values ( 2 , 'http://theirs.example' ) ");
    const std::string rows_before = app.all_rows();
    const char16_t* const values[] = {u"x' or '1'='1",
                                      u"x' or 'a'<>'",
                                      u"x' or pid <> 0 or '' = '",
                                      u"alpha' and site_name = 'site",
                                      u"x' , pid = '3",
                                      u"x' where pid = '2",
                                      u"x''",
                                      u"''",
                                      u"it''s",
                                      u"' || name || '",
                                      u"x' union select * from Projects where '' = '",
                                      u"x' and synonyms  = 'y"};
    for (const Text value : values) {
        const Text statements[] = {
            u"delete from host where pid = 1 and host= '" + value + u"' ",
            u"delete from elements where element = '" + value + u"' and catid = 1",
            u"delete from keywords where pid = 1 and keyword = '" + value + u"' ",
            u"insert into host ( pid , host ) values ( 1 , '" + value + u"' ) ",
            u"update keywords set keyword = '" + value + u"' where keyword='garden' and pid = 1",
            u"update keywords set keyword = 'new' where keyword='" + value + u"' and pid = 1",
            u"update elements set element = '" + value + u"' where catid = 1 and element = 'rose'",
            u"update Projects set name = 'n' ,  site_name = '" + value +
                u"' ,  site_url = 'u' ,  title = 't' ,  category = 'c' ,  description = 'd' ,  designer_name = "
                u"'n' ,  designer_url = 'w'  where pid = 1"};
        for (const Text& statement : statements)
            EXPECT_EQ(fault_of([&] { app.run(statement); }), fault_statement) << to_utf8(statement);
        for (const Text& query : {u"select * from Projects where name = '" + value + u"' ",
                                  u"select * from keywords where pid = 1 and keyword = '" + value + u"'"})
            EXPECT_EQ(fault_of([&] { app.hive().OpenRecordset(query); }), fault_statement) << to_utf8(query);
        EXPECT_EQ(fault_of([&] {
                      app.synonyms().Execute(u"delete from synonyms where keyword = '" + value + u"'");
                  }),
                  fault_statement)
            << to_utf8(value);
    }
    // Each of two values alone would leave an odd number of quotes.
    EXPECT_EQ(
        fault_of([&] {
            app.run(u"update keywords set keyword = 'x'' where keyword=' where keyword='garden' and pid = 1");
        }),
        fault_statement);
    EXPECT_EQ(app.all_rows(), rows_before);
}

TEST(MalformedStatements, AreNotMadeByHalfACharacterBeforeAQuote) {
    const Filled app;
    const Text half(1, char16_t(0xD83D));
    app.run(
        u"update Projects set name = 'n' ,  site_name = 's' ,  site_url = 'u' ,  title = 't' ,  category = 'c" +
        half +
        u"' ,  description = ' where pid = 2 ' ,  designer_name = 'n' ,  designer_url = 'w'  where pid = 1");
    EXPECT_EQ(app.value(u"select * from Projects where pid = 2", u"name"), u"beta");
    EXPECT_EQ(app.value(u"select * from Projects where pid = 1", u"category"), u"c\xFFFD");
    EXPECT_EQ(app.value(u"select * from Projects where pid = 1", u"description"), u" where pid = 2 ");
    Recordset box = app.hive().OpenRecordset(u"content");
    box.AddNew();
    box.AppendChunk(u"content", half + u"'x");
    box.Update();
    EXPECT_EQ(app.value(u"select * from content where cid = 2", u"content"), u"\xFFFD'x");
    EXPECT_EQ(fault_of([&] {
                  app.run(u"insert into host ( pid , host ) values ( 1 , 'a" + Text(1, u'\0') + u"b' ) ");
              }),
              fault_statement);
}

TEST(Text, IsComparedWithoutCaseForAllLetters) {
    const TempApp app;
    app.run(u"insert into keywords ( pid , keyword ) values ( 1 , 'Ñandú ÉLAN' ) ");
    EXPECT_EQ(app.count(u"select * from keywords where keyword = 'ñANDÚ élan' and pid = 1"), 1);
    EXPECT_EQ(app.count(u"select * from keywords where keyword = 'nandu elan' and pid = 1"), 0);
    EXPECT_EQ(app.value(u"select * from keywords", u"keyword"), u"Ñandú ÉLAN");
    Database words = app.synonyms();
    for (const char16_t* const word : {u"house", u"Home", u"garden"})
        words.Execute(u"insert into synonyms ( keyword ) values ( '" + Text(word) + u"' )");
    Recordset sorted = words.OpenRecordset(u"select * from synonyms order by keyword");
    for (const char16_t* const word : {u"garden", u"Home", u"house"}) {
        EXPECT_EQ(sorted.Fields(u"keyword").text(), word);
        sorted.MoveNext();
    }
}

} // namespace twk::test
