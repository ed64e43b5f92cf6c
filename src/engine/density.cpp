// SPDX-License-Identifier: MIT
#include "engine/density.h"

#include "engine/page_head.h"
#include "engine/read_more.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/faults.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

namespace twk {

namespace {

constexpr int sentences_in_use = 10; ///< the eleventh is kept, and never picked
constexpr int kept_pieces = 500;

/// At most one replacement is made: the box is switched off by the first pass and on again at the end.
Text limit_repetitions(Run& run, Text t, const Text& keyword) {
    CheckBox& limit = run.form.Check8;
    Text medida = keyword;
    contar_kw(t, medida); // spaces the tags
    for (int c = 1;; ++c) {
        const bool on = limit.value();
        Text del_indice = run.tabla_kw.at(run.indice_kw);
        const std::int16_t n = contar_kw(t, del_indice);
        if (n <= run.settings.max_repeticiones || !on) break;
        Text r;
        if (contains(Right(t, 100 * c), keyword)) {
            r = Replace(Right(t, 50 * c), u" " + keyword + u" ", u" " + run.settings.kw_sustituto + u" ", 1);
        }
        // Without the keyword at the end the text just loses its last 50 units, inside a tag or not.
        if (50 * c < Len(t)) t = Left(t, Len(t) - 50 * c) + r;
        limit.value = false;
    }
    limit.value = true;
    return t;
}

/// A sentence of the settings with its link and keyword; drawn again while the drawn one is blank. A new
/// address is drawn for every try.
Text linking_sentence(Run& run, const Text& keyword) {
    bool any = false;
    for (int i = 0; i < sentences_in_use; ++i)
        any = any || !run.settings.frases_link[static_cast<std::size_t>(i)].empty();
    if (!any)
        throw RuntimeFault(
            fault_project_lacks,
            u"The settings hold no sentence to insert: the first ten entries of 6.c are empty.");
    for (;;) {
        const int a = xrnum(sentences_in_use);
        const Text u = target(run);
        Text f = Replace(run.settings.frases_link[static_cast<std::size_t>(a)], u"*LINK*",
                         u"<a href=\"" + u + u"\">" + keyword + u"</a>");
        replace_all(f, u"*KEYWORD*", u" " + Trim(keyword) + u" ");
        if (!f.empty()) return f;
    }
}

} // namespace

Text recalcular(Run& run, const Text& texto, const Text& keyword) {
    Form6& form = run.form;
    Text t = texto;
    Text medida = keyword;
    contar_kw(t, medida); // spaces the tags
    if (form.Check10.value()) t = pocas_palabras(run, t);
    if (form.Check11.value()) t = muchas_palabras(run, t);
    if (!trim_view(t).empty()) {
        const std::int16_t d = CInt(form.Combo9.text());
        Text s = u"<p>" + t + u"<p>";
        t = Ajustar_KW(run, s, keyword, d);
        replace_all(t, u"...-", u"...");
    }
    if (!form.Check8.value()) return t;
    return limit_repetitions(run, std::move(t), keyword);
}

Text pocas_palabras(Run& run, Text& texto) {
    std::int16_t w = contar_palabras(texto);
    for (int tries = 0; w < run.settings.min_palabras && tries < 5; ++tries) {
        const int need = run.settings.min_palabras - w;
        // The last box is never drawn.
        const auto index = static_cast<int>(Int(chance().Rnd() * run.ultima_caja));
        const Text& b = run.box(index);
        if (!trim_view(b).empty()) texto += u" " + cortar_palabras(b, need + 1);
        w = contar_palabras(texto);
    }
    return texto;
}

Text muchas_palabras(Run& run, Text& texto) {
    if (contar_palabras(texto) <= run.settings.max_palabras) return texto;
    const Text recortado = Trim(texto);
    const std::vector<TextView> piezas = split_views(recortado);
    texto.clear();
    for (int i = 0; i < kept_pieces; i += 10) {
        if (piezas.size() < static_cast<std::size_t>(i) + 10) throw RuntimeFault(fault_subscript);
        for (int j = i; j < i + 10; ++j) texto.append(1, u' ').append(piezas[static_cast<std::size_t>(j)]);
        texto = Trim(texto);
    }
    texto = fs_rm(run, texto);
    return texto;
}

Text Ajustar_KW(Run& run, Text& texto, const Text& keyword, int densidad_pedida) {
    if (trim_view(texto).empty() || densidad_pedida < 1) return {};
    SpacedText spaced(std::move(texto));
    Text out = Ajustar_KW(run, spaced, keyword, densidad_pedida);
    texto = std::move(spaced.texto);
    return out;
}

Text Ajustar_KW(Run& run, const SpacedText& spaced, const Text& keyword, int densidad_pedida) {
    const Text k = Trim(keyword);
    LinkingSentences sentences{{}, [&] { return linking_sentence(run, k); }};
    for (int i = 0; i < sentences_in_use; ++i)
        if (Text ancla = Trim(at(run.settings.palabras_ancla, i)); !ancla.empty())
            sentences.anchors.push_back(std::move(ancla));
    return Ajustar_KW(spaced, k, densidad_pedida, sentences);
}

int xrnum2(int n) {
    return xrnum(n);
}

Text highLight(Run& run, TextView texto) {
    return run.marks.highLight(texto, run.column_0(), run.settings.hl_abre, run.settings.hl_cierra);
}

namespace {

/// Units that `rspaces` changes besides the blank: to another one, or to none (0).
struct FileNameUnits {
    struct Change {
        char16_t from;
        char16_t to;
    };
    static constexpr Change changes[] = {
        {u'á', u'a'}, {u'é', u'e'}, {u'í', u'i'}, {u'ó', u'o'}, {u'ú', u'u'}, {u'ñ', u'n'}, {u'?', 0},
        {u'!', 0},    {u'#', 0},    {u'$', 0},    {u'%', 0},    {u'(', 0},    {u')', 0},    {u'@', 0},
        {u'=', 0},    {u'¿', 0},    {u'¡', 0},    {u'Ç', u'C'}, {u'€', u'E'}, {u'£', u'P'}, {u'Œ', u'C'},
        {u'ä', u'a'}, {u'Ä', u'a'}, {u'ö', u'o'}, {u'Ö', u'O'}, {u'ü', u'u'}, {u'Ü', u'U'}, {u'à', u'a'},
        {u'è', u'e'}, {u'ù', u'u'}, {u'À', u'a'}, {u'È', u'e'}, {u'Ù', u'u'}, {u':', 0},    {u'"', 0},
        {u'*', 0},    {u'\'', 0},   {u'[', 0},    {u']', 0},    {u'{', 0},    {u'+', 0},    {u'¬', 0},
        {u'<', 0},    {u'>', 0}};

    static char16_t changed(char16_t unit) {
        if ((unit >= u'a' && unit <= u'z') || (unit >= u'0' && unit <= u'9')) return unit;
        for (const Change& change : changes)
            if (change.from == unit) return change.to;
        return unit;
    }
};

} // namespace

Text rspaces(const Form6& form, TextView texto) {
    // The separator itself passes through the later replacements, as it stands in the text by then.
    const Text separado = Replace(texto, u" ", form.Combo6.text());
    Text out;
    out.reserve(separado.size());
    for (const char16_t unit : separado)
        if (const char16_t to = FileNameUnits::changed(unit); to != 0) out.push_back(lower(to));
    return out;
}

} // namespace twk
