#include "engine/density.h"

#include "engine/page_head.h"
#include "engine/pattern_index.h"
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

/// The segments of `Ajustar_KW` while they grow.
struct Segments {
    Run& run;
    const Text& keyword; ///< trimmed
    const std::vector<TextView>& piezas;
    std::vector<Text> anclas; ///< trimmed
    int w;
    Text out;
    Text f; ///< the sentence chosen last

    bool is_anchor(TextView pieza) const {
        if (keyword.empty()) return false;
        for (const Text& ancla : anclas)
            if (pieza.size() == ancla.size() && same_text(pieza, ancla)) return true;
        return false;
    }

    TextView pieza(std::int64_t p) const {
        if (p < 0 || p >= static_cast<std::int64_t>(piezas.size())) throw RuntimeFault(fault_subscript);
        return piezas[static_cast<std::size_t>(p)];
    }

    /// Appends the segment from piece `first`, `step` + 1 pieces; false when it was the last one.
    bool append(std::int64_t first, int step) {
        bool pending = true;
        bool more = true;
        Text seg;
        for (int j = 0; j <= step; ++j) {
            const std::int64_t p = first + j;
            if (!pending) {
                if (p >= w) {
                    more = false;
                    break;
                }
                seg.append(1, u' ').append(pieza(p));
            } else if (is_anchor(pieza(p))) {
                pending = false;
                f = linking_sentence(run, keyword);
                seg.append(1, u' ').append(f).append(1, u' ').append(pieza(p));
            } else {
                seg.append(1, u' ').append(pieza(p));
            }
        }
        trimmed_append(seg);
        if (pending) out += f; // no anchor word: the last sentence, glued to the last word
        return more;
    }

    /// out = Trim(out + " " + seg), without copying what stands there already.
    void trimmed_append(const Text& seg) {
        const bool first = out.empty();
        out.append(1, u' ').append(seg);
        out.resize(out.find_last_not_of(u' ') + 1);
        if (first || out.starts_with(u' ')) out = Trim(out);
    }
};

/// Pieces that begin behind a blank.
std::int64_t count_starts(TextView texto) {
    std::int64_t starts = 0;
    for (std::size_t i = 1; i < texto.size();) {
        unsigned short some = 0; // small counters are quick
        for (const std::size_t end = std::min(texto.size(), i + 4096); i < end; ++i)
            some = static_cast<unsigned short>(some + ((texto[i - 1] == u' ') & (texto[i] != u' ')));
        starts += some;
    }
    return starts;
}

/// Whether `densidad` of the text could overflow: occurrences of the keyword, words or their ratio past 16
/// bits. "No" is certain, "yes" is not.
bool densidad_may_overflow(TextView texto, TextView keyword) {
    constexpr std::int64_t most = 32767;
    const std::int64_t ends = count_units(texto, [](char16_t c) { return (c == u'<') | (c == u'>'); });
    const std::int64_t dollars = count_units(texto, [](char16_t c) { return c == u'$'; });
    const std::int64_t starts = count_starts(texto);
    // Once its tags are spaced the text has so many units at most, and so many words at least: every end of a
    // tag takes one piece, a "$$$" stands for a blank.
    const std::int64_t units = static_cast<std::int64_t>(texto.size()) + 2 * ends;
    const std::int64_t words = starts - ends - dollars;
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

Text Ajustar_KW(Run& run, Text& texto, const Text& keyword, std::int16_t densidad_pedida) {
    if (trim_view(texto).empty() || densidad_pedida < 1) return {};
    const std::int16_t w = contar_palabras(texto);
    const Text k = Trim(keyword);
    check_densidad(texto, k);
    quitar_dobles(texto);
    int step = 0;
    const double por_cien = CInt(static_cast<double>(densidad_pedida) * w) / 100.0;
    if (w != 0) step = static_cast<int>(Int(w / por_cien));
    if (step < 2) return {};
    const Text recortado = Trim(texto);
    const std::vector<TextView> piezas = split_views(recortado);
    Segments segments{run, k, piezas, {}, w, {}, {}};
    for (int i = 0; i < sentences_in_use; ++i)
        segments.anclas.push_back(Trim(run.settings.palabras_ancla[static_cast<std::size_t>(i)]));
    segments.out.reserve(texto.size() + texto.size() / 2);
    const auto n = static_cast<int>(Int(por_cien - 1));
    for (int i = 0; i <= n; ++i)
        if (!segments.append(static_cast<std::int64_t>(i) * step, step)) break;
    Text out = std::move(segments.out);
    check_densidad(out, k);
    quitar_dobles(out);
    return Trim(out);
}

std::int16_t xrnum2(std::int16_t n) {
    return xrnum(n);
}

namespace {

/// Every keyword between blanks.
const PatternSet& highlighted(Run& run) {
    const auto holds = [&run](int k) {
        const TextView keyword = trim_view(run.tabla_kw.at(k));
        const Text& pattern = run.highlighted->pattern(k);
        return TextView(pattern).substr(1, pattern.size() - 2) == keyword;
    };
    bool right = run.highlighted && run.highlighted->size() == run.n_keywords;
    for (int k = 0; right && k < run.n_keywords; ++k) right = holds(k);
    if (!right) {
        std::vector<Text> patterns;
        patterns.reserve(static_cast<std::size_t>(run.n_keywords));
        for (int k = 0; k < run.n_keywords; ++k) patterns.push_back(u" " + Trim(run.tabla_kw.at(k)) + u" ");
        run.highlighted = std::make_shared<PatternSet>(std::move(patterns));
    }
    return *run.highlighted;
}

} // namespace

Text highLight(Run& run, TextView texto) {
    Text r(texto);
    PatternIndex index(highlighted(run), r);
    for (int i = 0; i < run.n_keywords; ++i)
        if (index.occurs(i))
            index.replace(i, index.from_left(i),
                          u" " + run.settings.hl_abre + run.tabla_kw.at(i) + run.settings.hl_cierra + u" ");
    return r;
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
