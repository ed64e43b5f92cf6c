// SPDX-License-Identifier: MIT
// Step 2: moving keywords and subkeywords, and copying the keywords of another project.

#include "assist/help.h"
#include "engine/text_toolkit.h"
#include "inputs/form3.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "shell/form2.h"
#include "store/statements.h"

#include <algorithm>

namespace twk {

namespace {

constexpr TextView no_destination = u"You must select a destination keyword from this frame";

/// Takes the word out of the list, at the selected place when it stands there.
void unlist(ListBox& list, const Text& word) {
    int at = list.list_index();
    if (Trim(list.text()) != Trim(word))
        for (at = list.list_count() - 1; at >= 0 && Trim(list.list(at)) != Trim(word);) --at;
    if (at >= 0) list.remove_item(at);
}

} // namespace

void Form3::Command11_Click() {
    open_move(List2, List3, Label5, u"SubKeyword", Frame1, subkeyword_to_move_);
}

void Form3::Command12_Click() {
    open_move(List1, List4, Label10, u"Keyword", Frame2, keyword_to_move_);
}

/// Opens a frame for the entry selected in `from`, with all other keywords as destinations; without one,
/// nothing happens.
void Form3::open_move(ListBox& from, ListBox& to, Label& label, TextView what, Frame& frame, Move& move) {
    const Text word = Trim(from.text());
    if (from.list_index() < 0 || word.empty()) return;
    move = {&from == &List2 ? word : from.text(), keyid};
    to.clear();
    label.caption = Text(what) + u" '" + word + u"' ";
    if (&from == &List2) {
        choose_option(Option1, 0);
        Option1_Click(0);
    }
    for (int i = 0; i < List1.list_count(); ++i)
        if (i != List1.list_index() && !trim_view(List1.list(i)).empty()) to.add_item(List1.list(i));
    to.list_index = -1;
    frame.visible = true;
}

void Form3::Option1_Click(int index) {
    choose_option(Option1, static_cast<std::size_t>(index));
    List3.enabled = index == 1;
}

void Form3::Command13_Click() {
    Frame1.visible = false;
}
void Form3::Command18_Click() {
    Frame2.visible = false;
}
void Form3::Command14_Click() {
    mostrar_ayuda(u"form3");
}
void Form3::Command17_Click() {
    mostrar_ayuda(u"form3");
}

// Moving a subkeyword

void Form3::Command15_Click() {
    open_store();
    // The frame moves what it was opened for, whatever has been selected since.
    const Move moved = Frame1.visible() ? subkeyword_to_move_ : Move{Trim(List2.text()), keyid};
    if (List2.list_index() < 0 || !repeated_at(moved.key, moved.word)) {
        MsgBox(Text(no_destination));
        return;
    }
    if (Len(moved.word) < 3) {
        MsgBox(u"Keywords must be longer than 3 characters!"); // three pass
        return;
    }
    Text counted = moved.word;
    if (contar_palabras(counted) >= 21) {
        MsgBox(u"Can't add a +20 words Keyword Phrase");
        return;
    }
    if (is_reserved(moved.word)) {
        MsgBox(u"'Sitemap' and 'Index' are reserved words.");
        return;
    }
    if (Option1[0].value())
        move_as_keyword(moved);
    else if (Option1[1].value())
        move_as_subkeyword(moved);
}

void Form3::move_as_keyword(const Move& moved) {
    status = 1;
    if (!keyword_rows(moved.word).eof()) {
        MsgBox(u"You can't define 2 equal keywords");
        status = 2;
    }
    if (status == 1) insert_keyword(moved.word);
    // A refused subkeyword goes as well: it is lost. Under another keyword it would have stayed.
    delete_moved_subkeyword(moved);
}

void Form3::move_as_subkeyword(const Move& moved) {
    const std::int16_t key = List3.list_index() < 0 ? std::int16_t{0} : find_keyid(List3.text());
    if (key == 0 || key == moved.key) {
        MsgBox(Text(no_destination));
        return;
    }
    status = 1;
    if (!keyword_rows(moved.word).eof()) {
        MsgBox(u"You can't define 2 equal keywords");
        status = 2; // and is not looked at: the move goes on
    }
    if (repeated_at(key, moved.word)) {
        MsgBox(u"You can't define 2 equal SubKeyword");
        Frame1.visible = false;
        return;
    }
    insert_element(key, moved.word);
    delete_moved_subkeyword(moved);
}

/// Takes the moved subkeyword away from its keyword, and closes the frame.
void Form3::delete_moved_subkeyword(const Move& moved) {
    base_datos_.Execute(statements::delete_subkeyword(moved.key, moved.word));
    if (keyid == moved.key) unlist(List2, moved.word);
    Frame1.visible = false;
    show_counts();
}

// Moving a keyword

void Form3::Command16_Click() {
    const Move moved = Frame2.visible() ? keyword_to_move_ : Move{List1.text(), keyid};
    const std::int16_t key = List4.list_index() < 0 ? std::int16_t{0} : find_keyid(List4.text());
    const std::int16_t from = List1.list_index() < 0 ? std::int16_t{0} : find_keyid(moved.word);
    if (key == 0 || from == 0 || from == key) {
        MsgBox(
            u"To move this Keyword as another's keyword Subkeyword \nyou Must select a keyword from this frame");
        return;
    }
    // No transaction holds the steps together: what has moved before a refusal stays moved.
    if (!move_subkeywords(from, key)) return;
    if (repeated_at(key, moved.word)) {
        MsgBox(u"You can't define 2 equal SubKeyword");
        Frame1.visible = false; // the other move's frame: this one's stays open
        return;
    }
    insert_element(key, moved.word);
    // A subkeyword cannot be tied, so the ties go.
    delete_ties_and_row(from, moved.word);
    unlist(List1, moved.word);
    List2.clear();
    Frame2.visible = false;
    show_counts();
}

/// Whether the word stands among the subkeywords of that keyword, in this very case.
bool Form3::repeated_at(std::int16_t catid, TextView word) {
    for (const auto row : base_datos_.OpenRecordset(statements::subkeywords_of(catid)))
        if (Trim(row.Fields(u"element").text()) == word) return true;
    return false;
}

/// Moves all subkeywords; false when one is repeated at the destination, where the move stops.
bool Form3::move_subkeywords(std::int16_t from, std::int16_t destination) {
    const Recordset rows = base_datos_.OpenRecordset(statements::subkeywords_of(from));
    if (rows.eof()) return true;
    MsgBox(u"The subkeywords for this keyword will be moved as subkeyword for the destination keyword");
    for (const auto row : rows) {
        const Text element = row.Fields(u"element").text();
        if (repeated_at(destination, Trim(element))) {
            MsgBox(u"SubKeyword '" + element + u"' is repeated in the destination keyword");
            Frame2.visible = false;
            return false;
        }
        insert_element(destination, element);
        base_datos_.Execute({u"delete from elements where eid = {}", row.Fields(u"eid").key()});
    }
    return true;
}

// Using keywords from another project

void Form3::llenar_proyectos() {
    for (const auto row : base_datos_.OpenRecordset(
             {u"select distinct(name) from Projects , keywords where  Projects.pid = keywords.pid  and "
              u"projects.name <> '{}'  order by name asc ",
              Trim(screen<Form2>().txt_name[0].text())}))
        Combo1.add_item(row.Fields(u"name").text());
}

void Form3::Combo1_Click() {
    const Text project = Combo1.text();
    if (MsgBox(u"Are you sure you want to copy " + project + u"'s keywords into this project?",
               Buttons::yes_no) == Answer::no)
        return;
    bool any_here = false;
    int copied = 0;
    for (
        const auto row : base_datos_.OpenRecordset(
            {u"SELECT Projects.pid as ff , keywords.* From Projects, keywords WHERE Projects.name = '{}' and "
             u"Projects.pid = keywords.pid ",
             project})) {
        const Text word = row.Fields(u"keyword").text();
        const auto& here = List1.entries();
        if (std::find(here.begin(), here.end(), Trim(word)) != here.end()) {
            any_here = true;
            continue;
        }
        // Goes in unchecked: it may equal a subkeyword of this project.
        insert_keyword(word);
        ++copied;
    }
    say(to_text(copied) + u" keywords copied from " + project);
    if (any_here)
        MsgBox(u"Some keywords from " + project +
               u" project couldn't be copied \nbecause they already exist on the current project");
    keyw.caption = to_text(List1.list_count());
}

void Form3::enumerate_moves(ScreenMap& map) {
    map.events<&Form3::Combo1_Click, &Form3::Command11_Click, &Form3::Command12_Click,
               &Form3::Command13_Click, &Form3::Command14_Click, &Form3::Command15_Click,
               &Form3::Command16_Click, &Form3::Command17_Click, &Form3::Command18_Click,
               &Form3::Option1_Click>(*this);
}

} // namespace twk
