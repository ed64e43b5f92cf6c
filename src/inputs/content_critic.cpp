// SPDX-License-Identifier: MIT
// Step 3: the content critic. It blocks nothing and stores nothing; what it changes is the text in the
// editor.

#include "engine/text_toolkit.h"
#include "inputs/form3.h"
#include "inputs/form5.h"
#include "platform/desktop.h"
#include "platform/file_system.h"
#include "platform/numbers.h"
#include "platform/subscript.h"
#include "shell/module1.h"

#include <algorithm>

namespace twk {

namespace {

/// The text as the critic counts it and leaves it in the editor.
Text cleaned(Text text) {
    for (const TextView line_end : {vbCrLf, vbCr, vbLf}) replace_all(text, line_end, u" <p> ");
    text = limpiar_html(text);
    quitar_dobles(text);
    return text;
}

/// So many keywords are named in one line.
constexpr std::size_t most_named = 6;

Text joined(const std::vector<Text>& words, TextView separator) {
    Text all;
    for (std::size_t i = 0; i < words.size(); ++i) all += (i > 0 ? Text(separator) : Text()) + words[i];
    return all;
}

} // namespace

void Form5::Command6_Click() {
    if (Check1.value())
        criticar();
    else // speaks of the opposite action
        MsgBox(u"unCheck the 'Activate Content Critic' to refresh the critic...");
}

void Form5::criticar() {
    if (!Check1.value()) return;
    if (trim_view(rt1.text()).empty()) {
        Text3.text = Text(critic_at_rest);
        return;
    }
    Text text = cleaned(rt1.text());
    rt1.text = text;
    show_unsaved();

    const std::int16_t total = contar_palabras(text);
    Text report = u"CONTENT CRITIC: \r\n[Total word count]: " + to_text(total) + u"\r\n";
    if (total + 1 < 250) report += u"(Caution: Low Value!)\r\n\r\n";
    bool sin_densidad = true;
    for (int k = 0; k <= last_judged(); ++k) {
        Text& keyword = tabla_kw.cell(k);
        if (keyword.empty()) continue;
        const std::int16_t cuenta = contar_kw(text, keyword); // lower-cases the table's keyword
        report += u"[KW: '" + Trim(keyword) + u"' ]: " + to_text(cuenta) + u"\r\n";
        if (cuenta <= 0) continue;
        if (cuenta > 1) sin_densidad = false;
        report += u"     [KW Density]: " + to_text(densidad2(cuenta, text, keyword)) + u"%\r\n";
    }
    // Whatever it says, this depends on the counts alone: no keyword occurs twice.
    if (sin_densidad) report += u"\r\nCaution: In this content box no keyword reaches 1% density!";
    Text3.text = report;
}

/// Keywords added in Step 2 since this screen was loaded are not in the table.
int Form5::last_judged() const {
    return std::min(screen<Form3>().List1.list_count(), tabla_kw.rows() - 1);
}

void Form5::tmr_live_Timer() {
    tmr_live.enabled = false;
    Text told;
    try {
        Text text = cleaned(rt1.text());
        if (!trim_view(text).empty()) {
            told = to_text(contar_palabras(text)) + u" words";
            std::vector<Text> found;
            for (int k = 0; screens().is_loaded<Form3>() && k <= last_judged(); ++k) {
                Text keyword = tabla_kw.cell(k);
                if (keyword.empty()) continue;
                const std::int16_t cuenta = contar_kw(text, keyword);
                if (cuenta > 0) found.push_back(keyword + u" " + to_text(cuenta));
            }
            const bool all = found.size() <= most_named;
            if (!all) found.resize(most_named);
            told += found.empty() ? u"; no keyword" : u"; " + joined(found, u", ") + (all ? u"" : u" ...");
        }
    } catch (const RuntimeFault&) { // more than the critic can count: it will say so
    }
    lbl_live.caption = told;
}

Text Form5::note_of(int box) {
    if (box < 0 || box >= List1.list_count()) return {};
    int& words = at(words_, box);
    if (words < 0) {
        try {
            Text text = cleaned(Replace(at(caja_texto, box), vbCrLf, u" "));
            words = contar_palabras(text);
        } catch (const RuntimeFault&) {
            return u"more words than can be counted";
        }
    }
    Text note = box == List1.list_index() && lbl_unsaved.visible() ? u"not saved yet; " : u"";
    note += to_text(words) + (words == 1 ? u" word" : u" words");
    const auto ties = tied_to_.find(at(caja_cid, box));
    if (ties != tied_to_.end()) note += u"; tied: " + joined(ties->second, u", ");
    return note;
}

void Form5::take_file(const Text& path) {
    Text text = rt1.text();
    const TextStreamPtr in = FileSystemObject().OpenTextFile(path, OpenMode::reading);
    while (!in->AtEndOfStream()) text += (text.empty() ? Text() : Text(vbCrLf)) + in->readline();
    in->Close();
    rt1.text = text;
    show_unsaved();
}

} // namespace twk
