// SPDX-License-Identifier: MIT
// Step 2: deleting keywords and subkeywords, and taking that back.

#include "inputs/deletions.h"
#include "inputs/form3.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "store/statements.h"

#include <algorithm>

namespace twk {

namespace {

/// So many names stand in a question; the rest is counted.
constexpr std::size_t most_names = 20;

Text names_of(const std::vector<StoredRow>& elements) {
    Text names;
    for (std::size_t i = 0; i < elements.size() && i < most_names; ++i) {
        const Field element = elements[i].value("element");
        names += (i == 0 ? u"'" : u", '") + (element.is_null() ? Text() : element.text()) + u"'";
    }
    if (elements.size() > most_names)
        names += u" and " + to_text(static_cast<int>(elements.size() - most_names)) + u" more";
    return names;
}

} // namespace

void Form3::Command7_Click() {
    UndoStack::Command command(deletions, u"keyword");
    // Events run between the words: what was not selected when this began, or is no longer, stays.
    for (const Text& word : List1.selected_entries()) {
        if (List1.selected_place(word) < 0) continue;
        if (!delete_keyword(word, command)) return; // those before it stay deleted
        if (const int place = List1.selected_place(word); place >= 0) unlist_keyword(place);
        DoEvents();
        if (!screens().is_loaded(*this)) return;
    }
    show_counts();
}

/// Deletes the keyword with its subkeywords and ties; false when the user does not want that.
bool Form3::delete_keyword(const Text& word, UndoStack::Command& command) {
    std::vector<StoredRow> rows = keyword_rows(word).rows_of("keywords");
    const std::int16_t key = find_keyid(word);
    const std::vector<StoredRow> elements =
        base_datos_.OpenRecordset(statements::subkeywords_of(key)).rows_of("elements");
    const auto keep_for_undo = [&](const std::vector<StoredRow>& more) {
        rows.insert(rows.end(), more.begin(), more.end());
    };
    if (!elements.empty()) {
        const Text about = u"Lost: the keyword '" + word + u"' with its subkeywords " + names_of(elements);
        if (ask_before_loss(
                u"Are you sure you want to delete this keyword?\rAll its subKeywords will be lost.",
                Buttons::ok_cancel, u"Delete Keyword?", about) == Answer::cancel)
            return false;
        base_datos_.Execute(statements::delete_subkeywords_of(key));
        keep_for_undo(elements);
    }
    keep_for_undo(delete_ties_and_row(key, word));
    if (!rows.empty()) command.deleted(word, [this, word, rows] { return restore_keyword(word, rows); });
    return true;
}

std::vector<StoredRow> Form3::delete_ties_and_row(std::int16_t key, const Text& word) {
    const std::vector<StoredRow> ties =
        base_datos_.OpenRecordset({u"select * from ties where keyid = {} and pid = {}", key, pid_form})
            .rows_of("ties");
    for (const StoredRow& tie : ties)
        base_datos_.Execute({u"delete from ties where tieid = {}", tie.value("tieid").key()});
    base_datos_.Execute({u"delete from keywords where pid = {} and keyword = '{}' ", pid_form, word});
    return ties;
}

void Form3::unlist_keyword(int index) {
    List1.remove_item(index);
    List2.clear();
    show_counts();
}

void Form3::Command10_Click() {
    const std::vector<Text> chosen = List2.selected_entries();
    if (chosen.empty()) return show_counts();
    UndoStack::Command command(deletions, u"subkeyword");
    // Without a selected keyword the list still shows the subkeywords of the one selected last.
    const std::int16_t found = find_keyid(List1.text());
    const std::int16_t catid = found != 0 ? found : keyid;
    for (const Text& word : chosen) {
        // Events run between the words, and the list may show another keyword's by now.
        const int place = List2.selected_place(word);
        if (place < 0) continue;
        delete_subkeyword(Trim(word), catid, command);
        List2.remove_item(place);
        DoEvents();
        if (!screens().is_loaded(*this)) return;
    }
    show_counts();
}

void Form3::delete_subkeyword(const Text& word, std::int16_t catid, UndoStack::Command& command) {
    const std::vector<StoredRow> rows = element_rows(catid, word).rows_of("elements");
    base_datos_.Execute(statements::delete_subkeyword(catid, word));
    if (rows.empty()) return;
    command.deleted(word, [this, word, catid, rows] { return restore_subkeyword(word, catid, rows); });
}

// Taking a Delete back

bool Form3::in_the_way(TextView message) {
    MsgBox(Text(message));
    return false;
}

bool Form3::restore_keyword(const Text& word, const std::vector<StoredRow>& rows) {
    if (!keyword_rows(word).eof()) return in_the_way(u"You can't define 2 equal keywords");
    put_back(base_datos_, rows);
    return true;
}

bool Form3::restore_subkeyword(const Text& word, std::int16_t catid, const std::vector<StoredRow>& rows) {
    if (base_datos_.OpenRecordset({u"select * from keywords where keyid = {}", catid}).eof())
        return in_the_way(u"The keyword of the subkeyword '" + word + u"' has been deleted.");
    if (has_element(catid, word)) return in_the_way(u"You can't define 2 equals subkeywords");
    if (base_datos_.OpenRecordset(statements::subkeywords_of(catid)).RecordCount() >= most_subkeywords)
        return in_the_way(u"You can't add more than 99 subkeywords per each keyword");
    put_back(base_datos_, rows);
    return true;
}

void Form3::undo_delete() {
    deletions.undo();
    const Text chosen = List1.text();
    const bool any = List1.list_index() >= 0;
    List1.clear();
    list_keywords();
    const auto& here = List1.entries();
    const auto at = std::find(here.begin(), here.end(), chosen);
    if (any && at != here.end()) {
        List1.list_index = static_cast<int>(at - here.begin());
        List1.set_selected(List1.list_index(), true);
    }
    list_subkeywords();
    show_counts();
}

} // namespace twk
