// SPDX-License-Identifier: MIT
// Step 3: the content critic. It blocks nothing and stores nothing; what it changes is the text in the
// editor.

#include "engine/text_toolkit.h"
#include "inputs/form3.h"
#include "inputs/form5.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

#include <algorithm>

namespace twk {

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
    Text text = rt1.text();
    for (const TextView line_end : {vbCrLf, vbCr, vbLf}) replace_all(text, line_end, u" <p> ");
    text = limpiar_html(text);
    quitar_dobles(text);
    rt1.text = text;
    show_unsaved();

    const std::int16_t total = contar_palabras(text);
    Text report = u"CONTENT CRITIC: \r\n[Total word count]: " + to_text(total) + u"\r\n";
    if (total + 1 < 250) report += u"(Caution: Low Value!)\r\n\r\n";
    bool sin_densidad = true;
    // Keywords added in Step 2 since this screen was loaded are not in the table.
    const int last = std::min(screen<Form3>().List1.list_count(), tabla_kw.rows() - 1);
    for (int k = 0; k <= last; ++k) {
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

} // namespace twk
