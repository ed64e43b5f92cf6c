// SPDX-License-Identifier: MIT
#include "inputs/form10.h"
#include "inputs/form3.h"
#include "inputs/form8.h"
#include "support/temp_app.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

using test::TempApp;

struct Dictionary {
    TempApp app;

    void run(const Text& statement) { app.synonyms().Execute(statement); }
    int count(const Text& where) {
        return app.synonyms().OpenRecordset(u"select * from synonyms where " + where).RecordCount();
    }
    void click(const char* control) { screens().fire<Form10>(control, "Click"); }
    void select(int index) {
        screen<Form10>().List1.list_index = index;
        click("List1");
    }
    void add(const Text& word) {
        screen<Form10>().Text2.text = word;
        app.desktop.expect(
            u"The keyword was added. Now select it in the listbox, and modify (add) its synonime");
        click("Command2");
    }
    /// The synonyms of a keyword selected in Step 2.
    Form8& open_for(const Text& keyword) {
        screens().unload<Form8>();
        Form3& step = screen<Form3>();
        step.List1.clear();
        step.List1.add_item(keyword);
        step.List1.list_index = 0;
        return screen<Form8>();
    }
};

TEST(SynonymDictionary, AddsModifiesAndDeletesWords) {
    Dictionary words;
    Form10& form = screen<Form10>();
    words.add(u"tea");
    words.add(u"brew");
    words.add(u"tea");
    EXPECT_EQ(form.List1.entries(), (std::vector<Text>{u"brew", u"tea", u"tea"}));
    form.Text1.text = u"left over";
    words.select(1);
    EXPECT_EQ(form.Text1.text(), u"") << "none set yet";
    form.Text1.text = u"cha (\"char\")";
    words.click("Command3");
    EXPECT_EQ(words.count(u"synonyms = 'cha (\"char\")'"), 2) << "as typed, every row";
    EXPECT_EQ(form.Text1.text(), u"");
    form.Text1.text = u"nobody's";
    form.List1.list_index = -1;
    words.click("Command4"); // nothing selected
    EXPECT_EQ(form.List1.list_count(), 3);
    words.select(2);
    EXPECT_EQ(form.Text1.text(), u"cha (\"char\")");
    words.click("Command4");
    EXPECT_EQ(form.List1.entries(), std::vector<Text>{u"brew"});
    words.add(u"");
    EXPECT_EQ(words.count(u"keyword = ''"), 1);
    screens().fire<Form10>("Command1", "Click");
    EXPECT_FALSE(screens().is_loaded<Form10>());
}

TEST(KeywordSynonyms, AddARowEachTimeAndDeleteOnlyTheVeryText) {
    Dictionary words;
    words.run(u"insert into synonyms ( keyword ) values ( 'green tea' )");
    Form8* form = &words.open_for(u"green tea ");
    EXPECT_EQ(form->Label1.caption(), u"Synonyms for green tea ");
    ASSERT_TRUE(screens().fire<Form8>("Command2", "Click"));
    EXPECT_TRUE(screens().is_loaded<Form8>()) << "an empty text does nothing";
    screen<Form3>().Text1_Click(); // the selection in Step 2 goes, the word here stays
    screen<Form3>().List1.set_list(0, u"coffee");
    screen<Form3>().List1.list_index = 0;
    ASSERT_TRUE(screens().fire<Form3>("Command8", "Click"));
    EXPECT_EQ(form->Label1.caption(), u"Synonyms for coffee") << "asked for anew, it is the one selected now";
    form = &words.open_for(u"green tea ");
    form->Text1.text = u"sencha\r\n\"matcha\"(fine)";
    ASSERT_TRUE(screens().fire<Form8>("Command2", "Click"));
    EXPECT_FALSE(screens().is_loaded<Form8>());
    const Text stored = u"sencha <p> matcha (fine)";
    EXPECT_EQ(words.count(u"synonyms = '" + stored + u"'"), 1);

    form = &words.open_for(u"green tea");
    EXPECT_EQ(form->Text1.text(), stored) << "the last row stands";
    form->Text1.text = u"edited";
    ASSERT_TRUE(screens().fire<Form8>("Command3", "Click"));
    EXPECT_EQ(form->Text1.text(), u"");
    EXPECT_EQ(words.count(u"keyword = 'green tea'"), 2);
    form->Text1.text = stored;
    ASSERT_TRUE(screens().fire<Form8>("Command3", "Click"));
    EXPECT_EQ(words.count(u"keyword = 'green tea'"), 1);
}

} // namespace
} // namespace twk
