// SPDX-License-Identifier: MIT
#include "engine/run.h"
#include "opened_addresses.h"
#include "platform/file_system.h"
#include "settings/form6.h"
#include "user.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTest>

namespace twk {
namespace {

using test::User;

class Wizard : public test::WindowTest {
  protected:
    using Typed = std::initializer_list<std::pair<const char*, const char*>>;
    void type_all(const char* screen, Typed texts) {
        for (const auto& [box, text] : texts) user.type(screen, box, QString::fromLatin1(text));
    }
    void type_properties() {
        user.press(Qt::Key_N, Qt::ControlModifier);
        user.click("Form1", "Command1");
        ASSERT_TRUE(user.sees("Form2"));
        EXPECT_FALSE(user.sees("Form1"));
        type_all("Form2", {{"txt_name_0", "teahouse"},
                           {"Text2_0", "Tea-House"},
                           {"txt_url_0", "http://www.teahouse.example"},
                           {"txt_url_1", "http://www.teahouse.example/shop.htm"},
                           {"txt_dat_0", "Fine teas"},
                           {"txt_dat_1", "Shopping"}});
        user.click("Form2", "Command7");
        user.expect(QStringLiteral("Subject, Category and Description can´t be empty"));
        user.click("Form2", "Command2");
        user.type("Form2", "txt_dat_2", QStringLiteral("Teas from small gardens."));
        user.click("Form2", "Command2");
    }

    void type_keywords() {
        ASSERT_TRUE(user.sees("Form3"));
        user.enter("Form3", "Text1", QStringLiteral("green tea"));
        user.enter("Form3", "Text1", QStringLiteral("black tea"));
        user.expect(QStringLiteral("You must provide more than 3 keywords"));
        user.click("Form3", "Command5");
        user.type("Form3", "Text1", QStringLiteral("teapot"));
        user.click("Form3", "Command2");
        user.choose("Form3", "List1", 0);
        user.enter("Form3", "Text2", QStringLiteral("sencha"));
        user.enter("Form3", "Text2", QStringLiteral("matcha powder"));
        EXPECT_EQ(user.find<QLabel>("Form3", "keyw")->text(), QStringLiteral("3"));
        user.click("Form3", "Command5");
    }

    void type_contents() {
        ASSERT_TRUE(user.sees("Form5"));
        user.always_ok(QStringLiteral("We recomend more than 100 words"));
        for (const char* text : {"Green tea is steamed or fired, and a good garden picks it in spring.",
                                 "A teapot of cast iron keeps the brew warm. Rinse it with water alone.",
                                 "Black tea travels well; it was made for long voyages."}) {
            user.type("Form5", "rt1", QString::fromLatin1(text));
            user.click("Form5", "Command2");
        }
        user.choose("Form5", "List1", 1);
        user.choose("Form5", "lstkeyword", 2);
        user.expect(QStringLiteral("Keyword and Content selected has been tied"));
        user.click("Form5", "cmdtie");
        user.click("Form5", "Command8");
        user.click("Form5", "Command1");
    }

    void type_hosts() {
        ASSERT_TRUE(user.sees("Form7"));
        user.type("Form7", "Text2", QStringLiteral("http://www.teahouse.example/pages"));
        user.type("Form7", "Text1", QStringLiteral("http://teas.example/"));
        user.click("Form7", "Command2");
        user.click("Form7", "Command1");
    }

    /// Step 6, inside the run: the first random page gets another name.
    void rename_page() {
        EXPECT_TRUE(qt.window().findChild<QWidget*>("rail_step_6")->accessibleName().contains("here"));
        user.choose("Form17", "List1", 0);
        user.type("Form17", "Text1", QStringLiteral("renamed-by-hand.htm"));
        user.expect(QStringLiteral("File Name Changed."));
        user.click("Form17", "Command2");
        user.expect(QStringLiteral("Do you want to save this filename set?"), QMessageBox::No);
        user.click("Form17", "Command1");
    }
};

TEST_F(Wizard, TakesANewProjectToTheFinishedRunByClicksAndKeysAlone) {
    test::OpenedAddresses opened(QStringLiteral("file"));
    type_properties();
    type_keywords();
    type_contents();
    type_hosts();

    ASSERT_TRUE(user.sees("Form6"));
    QTest::keyClick(user.find<QWidget>("Form6", "Slider1"), Qt::Key_Right);
    user.type("Form6", "Combo2", QStringLiteral("7"));
    if (!user.find<QCheckBox>("Form6", "Check9")->isChecked()) user.click("Form6", "Check9");
    user.expect(QStringLiteral("Are you sure you want to proceed?"), QMessageBox::Yes,
                QStringLiteral("Create Pages?"));
    user.on_dialog([this] { rename_page(); });
    user.click("Form6", "Command1");

    ASSERT_NE(screen<Form6>().run, nullptr);
    ASSERT_TRUE(screen<Form6>().run->finished);
    ASSERT_TRUE(user.sees("Form12"));
    EXPECT_EQ(user.find<QProgressBar>("Form12", "ProgressBar1")->value(),
              user.find<QProgressBar>("Form12", "ProgressBar1")->maximum());
    ASSERT_EQ(opened.urls.size(), 1);
    EXPECT_EQ(opened.urls[0].fileName().toLower(), QStringLiteral("sitemap-do-not-upload.htm"));
    std::string rows;
    for (const char16_t* table :
         {u"Projects", u"keywords", u"elements", u"content", u"ties", u"host", u"host1", u"target"})
        rows += std::to_string(app.count(u"select * from " + Text(table))) + " ";
    EXPECT_EQ(rows, "1 3 2 3 1 1 1 1 ");
    const std::vector<Text> folders = list_folders(app.path(u"Projects/teahouse"));
    EXPECT_EQ(folders, (std::vector<Text>{u"teas.example", u"www.teahouse.example-pages",
                                          u"www.teahouse.example-pages_More_Files"}));
    std::size_t renamed = 0, total = 0;
    for (const Text& folder : folders)
        for (const Text& page : list_files(app.path(u"Projects/teahouse/" + folder), u"*.htm")) {
            ++total;
            renamed += page == u"renamed-by-hand.htm" ? 1 : 0;
            EXPECT_TRUE(contains(
                LCase(read_text_file(app.path(u"Projects/teahouse/" + folder + u"/" + page))), u"</html>"))
                << to_utf8(page);
        }
    EXPECT_EQ(renamed, 1U);
    EXPECT_GE(total, 3U + 3U + 6U + 1U) << "first and second level, random, hallway";

    user.choose("Form12", "List1", 2);
    const QString report = user.find<QPlainTextEdit>("Form12", "RichTextBox1")->toPlainText();
    EXPECT_TRUE(report.contains(QStringLiteral("Page Type: First-Level Page"))) << report.toStdString();
    EXPECT_TRUE(report.contains(QStringLiteral("KeyWord Count for [teapot]"))) << report.toStdString();
    user.click("Form12", "Command2");
    EXPECT_FALSE(user.sees("Form12"));
}

} // namespace
} // namespace twk
