// SPDX-License-Identifier: MIT
// Texts that become pages, settings or parts of statements.

#include "faults/hostile_app.h"
#include "inputs/form10.h"
#include "inputs/form3.h"
#include "inputs/form7.h"
#include "settings/settings_file.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/module1.h"

namespace twk::test {

namespace {

namespace fs = std::filesystem;

class HostileTexts : public HostileApp {
  protected:
    Text given(std::string_view bytes) {
        fs::create_directories(app.folder() / "given");
        app.write(u"given/file.htm", bytes);
        return app.path(u"given/file.htm");
    }
    int run_with_template(std::string_view bytes) {
        project->form.checkBulgaro.value = true;
        project->form.plantilla_sitemap = given(bytes);
        return run_project();
    }
    /// The click ends in the fault of a statement that is none.
    template <class Form> void refused(const char* control, const Text& attack) {
        EXPECT_EQ(fault_of_event<Form>(control), fault_statement) << control << ": " << to_utf8(attack);
    }
    std::string hallway() const { return app.read(project->main_folder(u"sitemap.htm")); }
    int run_with_box(const Text& text) {
        Recordset box = app.hive().OpenRecordset({u"select * from content WHERE cid = 1"});
        box.Edit();
        box.AppendChunk(u"content", text);
        box.Update();
        return run_project();
    }
};

constexpr const char16_t* attacks[] = {u"x' or '1'='1",
                                       u"x'; drop table host",
                                       u"x' ) --",
                                       u"x' , pid = '900",
                                       u"x' or pid = 900 or ''='",
                                       u"' or ''='",
                                       u"x') , (900, 'y",
                                       u"x' union select * from host where ''='"};

} // namespace

TEST_F(HostileTexts, BoxesOfMarkupAndMarks) {
    for (const Text& text :
         {Text(u"<script>alert('x')</script></body></html><!-- <b <i> word word word"),
          Text(
              u"*LINK* *KEYWORD* $$$ *BREAKLINE* <!-- URLKeyword --> <!-- //URLKeyword --> *''* ; = # words"),
          Text(u"a\0b \u0001 \x200B \xFEFF \xD83D \xDE00 words", 19), Text(u"<<<<>>>>< > <>"),
          repeated(u"<", 3000), repeated(u"&#0;&#x110000;&bogus;", 500)})
        EXPECT_EQ(run_with_box(text), 0) << to_utf8(Left(text, 60));
}

TEST_F(HostileTexts, BoxesOfMegabytes) {
    // Counts go into 16 bits: more words than these hold are an overflow, not a wrong page.
    EXPECT_EQ(run_with_box(repeated(u"word ", 400000)), fault_overflow);
    EXPECT_EQ(run_with_box(Text(1000000, u'x') + u" and a few words behind it"), 0);
    EXPECT_EQ(run_with_box(u"short again"), 0);
}

TEST_F(HostileTexts, HallwayTemplates) {
    constexpr std::string_view open = "<!-- URLKeyword -->", close = "<!-- //URLKeyword -->";
    const auto joined = [](std::initializer_list<std::string_view> parts) {
        std::string all;
        for (const std::string_view part : parts) all += part;
        return all;
    };
    EXPECT_EQ(run_with_template(joined({"<html>", open, "x", close, " ", open, close, " </html>"})), 0);
    EXPECT_NE(hallway().find("tool_rack.htm"), std::string::npos);
    EXPECT_EQ(run_with_template(joined({close, " ", open, "x"})), fault_argument);
    EXPECT_EQ(run_with_template(joined({open, "x", close})), fault_argument);
    std::string many;
    for (int i = 0; i < 50; ++i) many += joined({open, close, " "});
    EXPECT_EQ(run_with_template(many), fault_subscript); // more places than keywords
    std::string binary;
    for (int i = 0; i < 70000; ++i) binary += static_cast<char>(i * 7 + i / 251);
    EXPECT_EQ(run_with_template(binary), 0);
    EXPECT_EQ(run_with_template(""), 0);
    fs::remove(app.folder() / "given" / "file.htm"); // gone since it was chosen: an empty page
    EXPECT_EQ(run_project(), 0);
    project->form.plantilla_sitemap = app.path(u"given");
    EXPECT_EQ(run_project(), 0);
}

TEST_F(HostileTexts, AHallwayTemplateOfMegabytes) {
    std::string lines;
    while (lines.size() < 5'000'000) lines += "a line of a template that somebody has made far too long\r\n";
    EXPECT_EQ(run_with_template(lines), 0);
    EXPECT_GE(hallway().size(), lines.size());
}

TEST_F(HostileTexts, ASettingsFileWithEndlessListsStaysQuick) {
    std::string list = "2.a = * 10";
    for (int i = 0; i < 100000; ++i) list += " ; " + std::to_string(i);
    const Text file = given(list + "\r\n");
    EXPECT_EQ(fault_of_dispatch([&] { tomar_de_dat(project->form, file); }), 0);
    EXPECT_EQ(project->form.Combo2.list_count(), 100001);
}

TEST_F(HostileTexts, ApostrophesInStepOne) {
    Form2& step1 = screen<Form2>();
    step1.txt_url[0].text = u"http://www.oakshed.example";
    for (TextBox& box : step1.txt_dat) box.text = u"text";
    const std::string rows = app.all_rows();
    for (const Text attack : attacks) {
        for (TextBox* box : std::initializer_list<TextBox*>{
                 &step1.txt_dat[0], &step1.txt_dat[1], &step1.txt_dat[2], &step1.Text7, &step1.txt_url[2]}) {
            const Text before = box->text();
            box->text = attack;
            refused<Form2>("Command2", attack);
            box->text = before;
        }
        step1.txt_name[0].text = Replace(attack, u" ", u"");
        for (const int pid : {1, 0}) { // a modified project, and a new one
            module1().pid_actual = static_cast<std::int16_t>(pid);
            refused<Form2>("Command2", attack);
        }
        step1.txt_name[0].text = u"shed";
        module1().pid_actual = 1;
    }
    EXPECT_EQ(app.all_rows(), rows);
    for (const Text attack : attacks) {
        step1.List1.add_item(u"http://" + Text(attack));
        refused<Form2>("Command2", attack);
        EXPECT_EQ(app.count(u"select * from target where pid = 1"), 0);
        step1.List1.clear();
    }
}

TEST_F(HostileTexts, ApostrophesInHosts) {
    Form7& step4 = screen<Form7>();
    app.run(u"insert into host ( pid , host ) values ( 1 , 'http://mine.example' ) ");
    const std::string rows = app.all_rows();
    for (const Text attack : attacks) {
        step4.Text1.text = u"http://" + attack;
        refused<Form7>("Command2", attack);
        step4.List1.add_item(attack);
        step4.List1.list_index = step4.List1.list_count() - 1;
        refused<Form7>("Command3", attack);
        step4.List1.clear();
        step4.Text2.text = u"http://" + attack;
        refused<Form7>("Command1", attack);
        EXPECT_EQ(app.all_rows(), rows) << to_utf8(attack);
    }
}

TEST_F(HostileTexts, ApostrophesInKeywordsAndCopies) {
    Form3& step2 = screen<Form3>();
    step2.List1.list_index = 0;
    screens().fire<Form3>("List1", "Click");
    screens().dispatch([] { screens().show<Form1>(); });
    Form1& manager = screen<Form1>();
    const std::string rows = app.all_rows();
    for (const Text attack : attacks) {
        step2.List2.set_selected(0, true);
        step2.Text2.text = attack; // Edit SubKeyword does not ask the word check
        refused<Form3>("Command22", attack);
        step2.Text1.text = attack; // Add Keyword does
        EXPECT_EQ(fault_of_event<Form3>("Command2"), 0) << to_utf8(attack);
        manager.combo1.select(0);
        manager.Text1.text = Replace(attack, u" ", u"");
        refused<Form1>("Command6", attack);
        EXPECT_EQ(app.all_rows(), rows) << to_utf8(attack);
    }
}

TEST_F(HostileTexts, ApostrophesInTheDictionary) {
    app.synonyms().Execute({u"insert into synonyms  ( keyword , synonyms  ) values ( 'x' , 'y' ) "});
    Form10& dictionary = screen<Form10>();
    std::vector<Text> tried(std::begin(attacks), std::end(attacks));
    tried.push_back(u"x' and synonyms  = 'y"); // would be the deletion of another screen
    tried.push_back(u"x' and synonyms = 'y");
    tried.push_back(u"it''s");
    for (const Text& attack : tried) {
        dictionary.Text2.text = attack;
        refused<Form10>("Command2", attack);
        dictionary.List1.clear();
        dictionary.List1.add_item(attack);
        dictionary.List1.list_index = 0;
        dictionary.Text1.text = u"new";
        for (const char* control : {"List1", "Command3", "Command4"}) refused<Form10>(control, attack);
        const Recordset rows = app.synonyms().OpenRecordset({u"select * from synonyms order by keyword"});
        EXPECT_EQ(rows.RecordCount(), 1) << to_utf8(attack);
        EXPECT_EQ(rows.Fields(u"keyword").text() + rows.Fields(u"synonyms").text(), u"xy") << to_utf8(attack);
    }
}

} // namespace twk::test
