// SPDX-License-Identifier: MIT
#include "engine/density.h"

#include "engine/page_head.h"
#include "engine/read_more.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

#include <algorithm>
#include <array>

namespace twk {

namespace {

constexpr int sentences_in_use = 10; ///< the eleventh is kept, and never picked
constexpr int kept_pieces = 500;

/// The text with the first occurrence between blanks replaced, which is noted.
Text replaced_once(PageRecord& made, const Text& text, const Text& keyword, const Text& with) {
    const Text find = fill(u" {1} ", keyword);
    if (contains(text, find)) made.count_replaced(1);
    return Replace(text, find, fill(u" {1} ", with), 1);
}

/// At most one replacement is made: the choice is switched off by the first pass and on again at the end.
Text limited(Run& run, Text t, const Text& keyword) {
    const GatewaySettings& s = run.settings;
    Text medida = keyword;
    contar_kw(t, medida); // spaces the tags
    for (int c = 1;; ++c) {
        const bool on = run.choices.limit_repetitions();
        Text del_indice = run.keyword();
        const std::int16_t n = contar_kw(t, del_indice);
        if (n <= s.max_repeticiones || !on) break;
        Text r;
        if (contains(Right(t, 100 * c), keyword))
            r = replaced_once(run.page.made, Right(t, 50 * c), keyword, s.kw_sustituto);
        // Without the keyword at the end the text just loses its last 50 units, inside a tag or not.
        if (50 * c < Len(t)) t = Left(t, Len(t) - 50 * c) + r;
        run.choices.set_limit_repetitions(false);
    }
    run.choices.set_limit_repetitions(true);
    return t;
}

/// Sentences of the settings with their link and keyword.
class LinkingSentence {
  public:
    LinkingSentence(const PageChoices& choices, const Text& keyword)
        : choices_(choices), keyword_(keyword), between_blanks_(fill(u" {1} ", trim_view(keyword))) {}

    /// One that is drawn; drawn again while it is blank. A new address is drawn for every try.
    Text operator()() const {
        const auto& sentences = choices_.settings().frases_link;
        const auto filled = [](const Text& sentence) { return !sentence.empty(); };
        if (std::none_of(sentences.begin(), sentences.begin() + sentences_in_use, filled))
            throw RuntimeFault(
                fault_project_lacks,
                u"The settings hold no sentence to insert: the first ten entries of 6.c are empty. One with *LINK* "
                u"in it would do.");
        for (;;) {
            const int a = xrnum(sentences_in_use);
            Text f = Replace(at(sentences, a), u"*LINK*",
                             fill(uR"(<a href="{1}">{2}</a>)", target(choices_), keyword_));
            replace_all(f, u"*KEYWORD*", between_blanks_);
            if (!f.empty()) return f;
        }
    }

  private:
    const PageChoices& choices_;
    const Text& keyword_;
    const Text between_blanks_;
};

} // namespace

int box_density(const PageChoices& choices) {
    const Text& typed = choices.keyword_density();
    try {
        return CInt(typed);
    } catch (const RuntimeFault& fault) {
        const Text told =
            trim_view(typed).empty()
                ? Text(
                      u"is empty; choose an entry, or type a whole number from 1 to 50. An entry that was typed "
                      u"and is not in the list is not saved with the settings.")
                : u"is \"" + typed + u"\"; a whole number from 1 to 50 would do.";
        throw told_fault(fault.number(), u"\"Keyword Density (aprox.) for content boxes\" (3.a) " + told);
    }
}

Text recalcular(Run& run, const Text& texto, const Text& keyword) {
    const PageChoices& choices = run.choices;
    Text t = texto;
    Text medida = keyword;
    contar_kw(t, medida); // spaces the tags
    if (choices.grow_short_texts()) t = pocas_palabras(run.boxes, run.settings, t, &run.page.made.added);
    if (choices.cut_long_texts()) t = muchas_palabras(run, t);
    if (!trim_view(t).empty()) {
        const int d = box_density(choices);
        Text s = u"<p>" + t + u"<p>";
        t = fitted_text(run, s, keyword, {.which = 0, .row = run.indice_kw, .density = d});
        replace_all(t, u"...-", u"...");
    }
    if (!choices.limit_repetitions()) return t;
    return limited(run, std::move(t), keyword);
}

Text pocas_palabras(const Boxes& boxes, const GatewaySettings& settings, Text& texto,
                    std::vector<std::uint8_t>* drawn) {
    std::int16_t w = contar_palabras(texto);
    for (int tries = 0; w < settings.min_palabras && tries < 5; ++tries) {
        const int need = settings.min_palabras - w;
        // The last box is never drawn.
        const int number = draw_below(boxes.ultima_caja);
        const Text& b = boxes.box(number);
        if (drawn != nullptr) drawn->push_back(static_cast<std::uint8_t>(number));
        if (!trim_view(b).empty()) texto += u" " + cortar_palabras(b, need + 1);
        w = contar_palabras(texto);
    }
    return texto;
}

Text muchas_palabras(Run& run, Text& texto) {
    if (contar_palabras(texto) <= run.settings.max_palabras) return texto;
    const Text recortado = Trim(texto);
    const std::vector<TextView> piezas = split_views(recortado);
    if (std::ssize(piezas) < kept_pieces)
        throw told_fault(fault_subscript,
                         u"The setting 1.b is " + to_text(run.settings.max_palabras) +
                             u", and a text with more words is cut to its first 500: it has fewer. 500 or "
                             u"more would do, or \"Decrease content (word count) if necessary?\" (3.c) off.");
    texto.clear();
    for (int i = 0; i < kept_pieces; ++i) texto.append(1, u' ').append(at(piezas, i));
    texto = Trim(texto);
    texto = fs_rm(run, texto);
    return texto;
}

Text Ajustar_KW(const PageChoices& choices, Text& texto, const Text& keyword, int densidad_pedida,
                int* put_in) {
    if (trim_view(texto).empty() || densidad_pedida < 1) return {};
    SpacedText spaced(std::move(texto));
    Text out = Ajustar_KW(choices, spaced, keyword, densidad_pedida, put_in);
    texto = std::move(spaced.texto);
    return out;
}

Text Ajustar_KW(const PageChoices& choices, const SpacedText& spaced, const Text& keyword,
                int densidad_pedida, int* put_in) {
    const Text k = Trim(keyword);
    LinkingSentences sentences{{}, LinkingSentence(choices, k), put_in};
    for (int i = 0; i < sentences_in_use; ++i)
        if (Text ancla = Trim(at(choices.settings().palabras_ancla, i)); !ancla.empty())
            sentences.anchors.push_back(std::move(ancla));
    return Ajustar_KW(spaced, k, densidad_pedida, sentences);
}

namespace {

void note(PageRecord& made, const FittingTo& to, int sentences, bool emptied) {
    made.fittings[to.which] = {static_cast<std::int16_t>(to.density), static_cast<std::int16_t>(to.row), true,
                               emptied};
    made.sentences = static_cast<std::int16_t>(made.sentences + sentences);
}

} // namespace

Text fitted_text(Run& run, Text& texto, const Text& keyword, const FittingTo& to) {
    int sentences = 0;
    const bool before = !trim_view(texto).empty();
    Text out = Ajustar_KW(run.choices, texto, keyword, to.density, &sentences);
    note(run.page.made, to, sentences, before && out.empty());
    return out;
}

Text fitted_text(Run& run, const SpacedText& spaced, const Text& keyword, const FittingTo& to) {
    int sentences = 0;
    Text out = Ajustar_KW(run.choices, spaced, keyword, to.density, &sentences);
    note(run.page.made, to, sentences, !spaced.blank() && out.empty());
    return out;
}

int xrnum2(int n) {
    return xrnum(n);
}

void highLight(Project& project, const GatewaySettings& settings, Text& texto) {
    project.marks.highLight(texto, project.keywords(), settings.hl_abre, settings.hl_cierra);
}

namespace {

/// What `rspaces` makes of units besides the blank: another one, or none (0).
class FileNameUnits {
  public:
    FileNameUnits() {
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
        for (std::size_t unit = 0; unit < to_.size(); ++unit) to_[unit] = static_cast<char16_t>(unit);
        for (const Change& change : changes) to_[change.from] = change.to;
        for (char16_t& to : to_) to = lower(to);
    }
    char16_t operator()(char16_t unit) const { return unit < to_.size() ? to_[unit] : lower(unit); }

  private:
    std::array<char16_t, 0x20AD> to_{}; ///< up to the last that is changed
};

} // namespace

Text rspaces(const PageChoices& choices, TextView texto) {
    static const FileNameUnits units;
    Text out;
    out.reserve(texto.size());
    const auto add = [&out](char16_t unit) {
        if (const char16_t to = units(unit); to != 0) out.push_back(to);
    };
    const Text& separator = choices.word_separator();
    for (const char16_t unit : texto)
        if (unit == u' ')
            std::for_each(separator.begin(), separator.end(), add); // it is changed like the rest
        else
            add(unit);
    return out;
}

} // namespace twk
