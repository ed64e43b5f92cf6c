// SPDX-License-Identifier: MIT
#include "tools/form19.h"

#include "engine/text_toolkit.h"
#include "inputs/form3.h"
#include "platform/addresses.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "shell/module1.h"
#include "store/database.h"
#include "store/statements.h"
#include "store/stores.h"

#include <algorithm>

namespace twk {

namespace {

constexpr TextView suggestion_path = u"/d/searchinventory/suggestion/?term=";
constexpr TextView term_key = u"?term=";
/// Rounds of waiting, 5 seconds each, after which the user is asked: ten minutes.
constexpr int patience = 120;

} // namespace

void Form19::Form_Load() {
    Frame2.visible = false;
    wb1.visible = true;
}

void Form19::tomar_web() {
    // A word may take minutes. Meanwhile the user may close the screen, which ends the lookups, or start
    // others, which have a mode and words of their own.
    const int mode = modo_asistente;
    std::vector<Text> words;
    if (mode == 2)
        for (const auto& row : tabla_asistente) words.push_back(row.empty() ? Text() : row.front());
    else if (mode == 1)
        words = screen<Form3>().List1.entries();
    desktop().navigate(wb1, u"about:blank");
    if (mode == 1) List1.clear();
    for (const Text& word : words) {
        buscar_termino(word, mode);
        if (is_over()) return;
    }
    Frame2.visible = false;
    screens().record<Form19>().caption = u"Keyword Wizard";
}

/// Whether lookups have come to nothing: the screen, or Step 2 behind it, is gone.
bool Form19::is_over() const {
    return !screens().is_loaded(*this) || !screens().is_loaded<Form3>();
}

void Form19::buscar_termino(const Text& term, int mode) {
    screens().record<Form19>().caption = u"Keyword Wizard";
    const Text wanted = Trim(term);
    if (wanted.empty()) return;
    desktop().navigate(wb1, Text(addresses::suggestion_service) + Text(suggestion_path) +
                                Replace(wanted, u" ", u"%20"));
    const int mine = ++asked_;
    const auto enough = [this] { return is_over() || !desktop().busy(wb1); };
    DoEvents();
    esperar(10, enough); // a page that has come is not waited for any longer
    if (is_over()) return;
    screens().record<Form19>().caption =
        u"Searching over the net: " + (mode == 1 ? term : screen<Form3>().List1.text());
    if (!wait_for_browser(enough) || is_over()) return;
    const std::vector<Link> links = desktop().links(wb1); // events may run here, too
    if (is_over() || mine != asked_) return; // another lookup has taken the browser to a page of its own
    for (const Link& link : links)
        if (contains(link.address, term_key)) take_suggestion(link.address, wanted, mode);
}

/// Waits for the page; false when the user does not want to wait any longer.
bool Form19::wait_for_browser(const std::function<bool()>& enough) {
    int rounds = 0;
    while (!enough()) {
        if (rounds == patience) {
            if (MsgBox(u"This procedure is taking more time than expected.\rDo you want to continue?.",
                       Buttons::ok_cancel, u"Time Out") == Answer::cancel)
                return false;
            rounds = 0;
        }
        esperar(5, enough);
        ++rounds;
    }
    return true;
}

/// The service shows each suggestion as a link whose query repeats the term.
void Form19::take_suggestion(const Text& address, const Text& term, int mode) {
    const Text behind = Mid(address, InStr(address, term_key) + Len(term_key));
    Text suggestion = Left(behind, InStr(behind, u"&mkt") - 1);
    for (const TextView code : {u"%20", u"%2E", u"%2F"}) replace_all(suggestion, code, u" ");
    quitar_dobles(suggestion);
    if (is_known(suggestion)) return;
    suggestion = Trim(suggestion);
    if (mode == 2) {
        for (auto& row : tabla_asistente)
            if (!row.empty() && trim_view(row.front()) == term) {
                row.push_back(suggestion);
                break;
            }
        List1.add_item(u"-SK-" + term);
        List1.add_item(suggestion);
        return;
    }
    List1.add_item(suggestion);
    List1.set_selected(List1.list_count() - 1, true);
}

bool Form19::is_known(const Text& suggestion) const {
    const auto same = [&](const Text& entry) { return same_text(trim_view(entry), trim_view(suggestion)); };
    const auto& listed = List1.entries();
    const auto& keywords = screen<Form3>().List1.entries();
    return std::any_of(listed.begin(), listed.end(), same) ||
           std::any_of(keywords.begin(), keywords.end(), same);
}

void Form19::Command5_Click() {
    if (List1.list_count() == 0) return;
    Form3& step2 = screen<Form3>(); // before the first word is stored: it lists what the store has
    int sent = 0;
    for (int i = 0; i < List1.list_count(); ++i) {
        const Text word = Trim(List1.list(i));
        if (word.empty() || !List1.selected(i) || Len(word) <= 3) continue;
        Text counted = word;
        if (contar_palabras(counted) >= 20) continue;
        // Reserved words pass here, and the store is not asked: the lookup has compared with Step 2's list.
        Database base_datos = open_hive();
        base_datos.Execute(statements::insert_keyword(module1().pid_actual, word));
        step2.list_keyword(word);
        ++sent;
    }
    say(sent_to_step2(sent));
}

void Form19::Command1_Click() {
    Frame2.visible = true;
}

void Form19::Command11_Click() {
    Frame2.visible = false;
}

void Form19::Command4_Click() {
    List1.clear();
    screens().unload<Form19>();
}

void Form19::enumerate(ScreenMap& map) {
    map.events<&Form19::Command5_Click, &Form19::Command1_Click, &Form19::Command4_Click,
               &Form19::Command11_Click>(*this);
}

} // namespace twk
