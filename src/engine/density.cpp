// SPDX-License-Identifier: MIT
#include "engine/density.h"

#include "engine/page_head.h"
#include "engine/read_more.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/faults.h"
#include "platform/numbers.h"

#include <algorithm>
#include <iterator>

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
        const std::int16_t a = xrnum(sentences_in_use);
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

namespace {

/// The segments of `Ajustar_KW` while they grow. No blank stands beside another one in `out`: those that the
/// joints bring go in the end anyway.
struct Segments {
    Run& run;
    const Text& keyword;                 ///< trimmed
    const std::vector<TextView>& piezas; ///< of one text, single blanks between them
    const std::vector<TextView>& anclas; ///< trimmed
    std::uint64_t lengths; ///< a bit for the length of each of them, the last for all from 63 on
    int w;
    Text out;
    Text f; ///< the sentence chosen last

    static std::uint64_t length_bit(TextView pieza) {
        return std::uint64_t{1} << std::min<std::size_t>(pieza.size(), 63);
    }

    bool is_anchor(TextView pieza) const {
        if ((lengths & length_bit(pieza)) == 0) return false;
        const char16_t first = lower(pieza.front());
        for (const TextView ancla : anclas)
            if (pieza.size() == ancla.size() && first == lower(ancla.front()) && same_text(pieza, ancla))
                return true;
        return false;
    }

    TextView pieza(std::int64_t p) const {
        if (p < 0 || p >= static_cast<std::int64_t>(piezas.size())) throw RuntimeFault(fault_subscript);
        return piezas[static_cast<std::size_t>(p)];
    }

    /// Appends the segment from piece `first`, `step` + 1 pieces; false when it was the last one.
    bool append(std::int64_t first, int step) {
        const std::int64_t last = first + step;
        std::int64_t p = first;
        while (p <= last && !is_anchor(pieza(p))) ++p;
        if (p > last) { // no anchor word: the last sentence, glued to the last word
            append_pieces(first, last);
            append_single(f);
            return true;
        }
        append_pieces(first, p - 1);
        f = linking_sentence(run, keyword);
        append_single(u" ");
        append_single(f);
        const bool more = p == last || last < w;
        append_pieces(p, std::max<std::int64_t>(p, more ? last : w - 1));
        return more;
    }

    /// A blank and the pieces `from` to `to`, if there are any.
    void append_pieces(std::int64_t from, std::int64_t to) {
        if (from > to) return;
        const char16_t* const begin = pieza(from).data();
        const TextView end = pieza(to);
        if (!out.empty() && out.back() != u' ') out.push_back(u' ');
        out.append(begin, end.data() + end.size());
    }

    void append_single(TextView added) {
        for (const char16_t unit : added)
            if (unit != u' ' || out.empty() || out.back() != u' ') out.push_back(unit);
    }
};

/// Whether `densidad` of a text with single blanks could overflow: occurrences of the keyword, words or their
/// ratio past 16 bits. "No" is certain, "yes" is not.
bool densidad_may_overflow(TextView texto, TextView keyword) {
    constexpr std::int64_t most = 32767;
    const Survey survey(texto);
    const std::int64_t dollars = survey.dollars ? std::count(texto.begin(), texto.end(), u'$') : 0;
    // Pieces that begin behind a blank: one behind each, but the last.
    const std::int64_t starts = survey.blanks - (texto.ends_with(u' ') ? 1 : 0);
    // Once its tags are spaced the text has so many units at most, and so many words at least: every end of a
    // tag takes one piece, a "$$$" stands for a blank.
    const std::int64_t units = std::ssize(texto) + 2 * survey.tag_ends;
    const std::int64_t words = starts - survey.tag_ends - dollars;
    Text counted = Trim(keyword);
    const std::int64_t found = units / std::max<std::int64_t>(1, std::ssize(quitar_dobles(counted)));
    return words < 1 || units / 2 + 1 > most || found > most || found * 100 / words + 1 > most;
}

/// `densidad` for the sake of its faults; its value is not used.
void check_densidad(TextView texto, const Text& keyword) {
    if (!densidad_may_overflow(texto, keyword)) return;
    Text medida = keyword;
    densidad(Text(texto), medida);
}

} // namespace

SpacedText::SpacedText(Text text)
    : texto(std::move(text)), palabras(contar_palabras(texto)),
      piezas(split_views(trim_view(quitar_dobles(texto)))) {}

Text Ajustar_KW(Run& run, Text& texto, const Text& keyword, std::int16_t densidad_pedida) {
    if (trim_view(texto).empty() || densidad_pedida < 1) return {};
    SpacedText spaced(std::move(texto));
    Text out = Ajustar_KW(run, spaced, keyword, densidad_pedida);
    texto = std::move(spaced.texto);
    return out;
}

Text Ajustar_KW(Run& run, const SpacedText& spaced, const Text& keyword, std::int16_t densidad_pedida) {
    if (spaced.piezas.empty() || densidad_pedida < 1) return {};
    const int w = spaced.palabras;
    const Text k = Trim(keyword);
    check_densidad(spaced.texto, k);
    int step = 0;
    const double por_cien = CInt(static_cast<double>(densidad_pedida) * w) / 100.0;
    if (w != 0) step = static_cast<int>(Int(w / por_cien));
    if (step < 2) return {};
    std::vector<TextView> anclas;
    std::uint64_t lengths = 0; // none that counts without a keyword
    for (int i = 0; i < sentences_in_use && !k.empty(); ++i) {
        const TextView ancla = trim_view(run.settings.palabras_ancla[static_cast<std::size_t>(i)]);
        if (ancla.empty()) continue;
        anclas.push_back(ancla);
        lengths |= Segments::length_bit(ancla);
    }
    Segments segments{run, k, spaced.piezas, anclas, lengths, w, {}, {}};
    segments.out.reserve(spaced.texto.size() + spaced.texto.size() / 2);
    const auto n = static_cast<int>(Int(por_cien - 1));
    for (int i = 0; i <= n; ++i)
        if (!segments.append(static_cast<std::int64_t>(i) * step, step)) break;
    check_densidad(segments.out, k);
    return Trim(segments.out);
}

std::int16_t xrnum2(std::int16_t n) {
    return xrnum(n);
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
