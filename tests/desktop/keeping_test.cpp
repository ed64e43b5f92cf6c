// SPDX-License-Identifier: MIT
// What the user has typed, stored or saved is not lost by a slip of the hand.

#include "inputs/form3.h"
#include "inputs/form5.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "user.h"

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>

namespace twk {
namespace {

class Keeping : public test::WindowTest {
  protected:
    void open_project() {
        app.run(u"insert into Projects ( name ) values ( 'garden' ) ");
        for (const char16_t* word : {u"roses", u"tulips"})
            app.run(u"insert into keywords ( pid , keyword ) values ( 1 , '" + Text(word) + u"' ) ");
        for (const char16_t* box : {u"first box", u"second box"})
            app.run(u"insert into content ( pid , content ) values ( 1 , '" + Text(box) + u"' ) ");
        screens().dispatch([] {
            screen<Form2>().txt_name[0].text = u"garden";
            module1().pid_actual = 1;
            screens().show<Form3>();
        });
    }
    static void undo_in(QWidget* box) { QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier); }
};

TEST_F(Keeping, WhatTheProgramPutsIntoABoxIsUndone) {
    open_project();
    auto* const word = user.find<QLineEdit>("Form3", "Text1");
    user.type("Form3", "Text1", QStringLiteral("typed"));
    user.choose("Form3", "List1", 0);
    EXPECT_EQ(word->text(), QStringLiteral("roses"));
    undo_in(word);
    EXPECT_EQ(screen<Form3>().Text1.text(), u"typed");

    screens().dispatch([] { screens().show<Form5>(); });
    Form5& form = screen<Form5>();
    form.Check1.value = false;
    auto* const editor = user.find<QPlainTextEdit>("Form5", "rt1");
    auto* const unsaved = user.find<QLabel>("Form5", "lbl_unsaved");
    user.choose("Form5", "List1", 0);
    EXPECT_FALSE(unsaved->isVisible());
    QTest::keyClicks(editor, QStringLiteral("edited "));
    EXPECT_TRUE(unsaved->isVisible());
    user.choose("Form5", "List1", 1);
    EXPECT_FALSE(unsaved->isVisible());
    undo_in(editor);
    EXPECT_EQ(form.rt1.text(), u"edited first box");
    EXPECT_TRUE(unsaved->isVisible());
    for (const char* dropping : {"Command8", "Command3"}) {
        user.click("Form5", dropping);
        EXPECT_EQ(form.rt1.text(), u"") << dropping;
        undo_in(editor);
        EXPECT_EQ(form.rt1.text(), u"edited first box") << dropping;
    }
    EXPECT_EQ(form.List1.list_count(), 1);
    user.menu("undo_delete");
    EXPECT_EQ(user.find<QListWidget>("Form5", "List1")->count(), 2);
    EXPECT_EQ(app.count(u"select * from content"), 2);
}

TEST_F(Keeping, ANameWithoutItsEndingIsCheckedAsItWillBeWritten) {
    for (const char16_t* ending : {u".dat", u".fnm", u".exp"}) {
        app.write(u"shed" + Text(ending), "mine");
        const auto choose_shed = [this] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("shed"));
            user.on_dialog([] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });
            QMetaObject::invokeMethod(dialog, "accept");
        };
        const FileQuestion question{u"Save", app.path(u""), u"*" + Text(ending), u"", Text(ending)};
        const QString asked = QString::fromStdU16String(u"named shed" + Text(ending) + u" already");
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            user.expect(asked, answer, QStringLiteral("Save"));
            user.on_dialog(choose_shed);
            EXPECT_EQ(qt.ask_save_file(question).has_value(), answer == QMessageBox::Yes);
            user.on_dialog(nullptr);
        }
    }
}

TEST_F(Keeping, EnterRefusesToDestroyAndAFaultCanBeCopied) {
    const auto enter = [](const QString& below, bool copied) {
        QTimer::singleShot(0, [below, copied] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->informativeText(), below);
            EXPECT_TRUE(!copied || box->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
            QTest::keyClick(box, Qt::Key_Return);
        });
    };
    for (const Buttons buttons : {Buttons::ok_cancel, Buttons::yes_no}) {
        enter(QStringLiteral("garden"), false);
        const Answer answer = ask_before_loss(u"Sure?", buttons, u"Delete", u"garden");
        EXPECT_TRUE(answer == Answer::cancel || answer == Answer::no);
    }
    enter(QString(), true);
    screens().dispatch([this] { app.run(u"delete from host where host = 'it's'"); });
}

} // namespace
} // namespace twk
