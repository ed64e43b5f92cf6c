// SPDX-License-Identifier: MIT
#include "engine/text_toolkit.h"

#include "platform/chance.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/files.h"
#include "platform/numbers.h"

#include <algorithm>

namespace twk {

// Looks at every unit with the one before it, without an early exit and with small counters: compilers
// vectorise that.
Survey::Survey(TextView texto) {
    if (texto.empty()) return;
    const auto count = [this](char16_t unit) {
        blanks += unit == u' ' ? 1 : 0;
        tag_ends += unit == u'<' || unit == u'>' ? 1 : 0;
    };
    count(texto.front());
    unsigned short wrong = 0, open = texto.front() == u'<', dollar = texto.front() == u'$';
    constexpr std::size_t block = 16384; // no counter overflows
    for (std::size_t from = 1; from < texto.size(); from += block) {
        const std::size_t end = std::min(texto.size(), from + block);
        unsigned short some_blanks = 0, some_ends = 0;
        for (std::size_t i = from; i < end; ++i) {
            const char16_t before = texto[i - 1], here = texto[i];
            const unsigned short blank = here == u' ', opens = here == u'<', closes = here == u'>';
            const unsigned short behind_blank = before == u' ', behind_close = before == u'>';
            wrong = static_cast<unsigned short>(wrong | (opens & ~behind_blank) | (behind_close & ~blank) |
                                                (behind_blank & blank));
            open = static_cast<unsigned short>(open | opens);
            dollar = static_cast<unsigned short>(dollar | (here == u'$'));
            some_blanks = static_cast<unsigned short>(some_blanks + blank);
            some_ends = static_cast<unsigned short>(some_ends + opens + closes);
        }
        blanks += some_blanks;
        tag_ends += some_ends;
    }
    // A tag at an end of the text lacks a neighbour.
    spaced = (wrong & 1) == 0 && texto.front() != u'<' && texto.back() != u'>';
    opens_tags = open != 0;
    dollars = dollar != 0;
}

namespace {

bool is_settled(TextView texto, const Survey& survey) {
    return survey.spaced && !(survey.opens_tags && contains(texto, highlight_opening)) &&
           !(survey.dollars && contains(texto, keyword_joint));
}

} // namespace

bool is_settled(TextView texto) {
    return is_settled(texto, Survey(texto));
}

bool are_apart(TextView between, TextView keyword) {
    const auto blank = [](char16_t c) { return c == u' '; };
    // The longer step passes over one unit for each blank. A match across both would hold what is between
    // them in one of its words.
    return std::ssize(between) >= count_units(keyword, blank) &&
           (between.size() >= keyword.size() || contains(between, u" "));
}

namespace {

/// The search steps over one unit more per blank than it has matched: the count depends on it.
constexpr TextView long_joint = u"$$$$";

/// The first place from `at` on with an end of a tag, or with a blank that another one follows. Looks at
/// blocks without an early exit, which compilers vectorise.
std::size_t next_to_space(TextView text, std::size_t at) {
    constexpr std::size_t block = 32;
    const auto wanted = [](char16_t here, char16_t next) {
        return (here == u'<') | (here == u'>') | ((here == u' ') & (next == u' '));
    };
    for (; at + block < text.size(); at += block) {
        unsigned short found = 0;
        for (std::size_t i = at; i < at + block; ++i)
            found = static_cast<unsigned short>(found | wanted(text[i], text[i + 1]));
        if (found != 0) break;
    }
    while (at < text.size() && !wanted(text[at], at + 1 < text.size() ? text[at + 1] : u'\0')) ++at;
    return at;
}

} // namespace

void space_tags(Text& texto) {
    const auto tag_end = [](char16_t c) { return c == u'<' || c == u'>'; };
    Text out;
    out.reserve(texto.size() +
                2 * static_cast<std::size_t>(std::count_if(texto.begin(), texto.end(), tag_end)));
    const auto blank_behind = [&out] { return !out.empty() && out.back() == u' '; };
    for (std::size_t from = 0; from < texto.size();) {
        if (texto[from] == u' ' && blank_behind()) {
            ++from;
            continue;
        }
        const std::size_t at = next_to_space(texto, from);
        out.append(texto, from, at - from);
        if (at == texto.size()) break;
        if (texto[at] == u'<' && !blank_behind()) out.push_back(u' ');
        out.push_back(texto[at]);
        if (texto[at] == u'>') out.push_back(u' ');
        from = at + 1;
    }
    texto = std::move(out);
}

namespace {

/// Spaces a text, its highlight openings replaced; tells what it holds then.
Survey settle(Text& text, TextView for_opening) {
    const Survey survey(text);
    const bool replaced = survey.opens_tags && replace_all(text, highlight_opening, for_opening);
    if (!replaced && survey.spaced) return survey;
    space_tags(text);
    return Survey(text);
}

/// Words of a spaced text: its pieces less those that begin or end a tag.
std::int64_t words_of_spaced(TextView text, const Survey& survey) {
    if (trim_view(text).empty()) return 0;
    const std::int64_t blanks =
        survey.blanks - (text.front() == u' ' ? 1 : 0) - (text.back() == u' ' ? 1 : 0);
    if (survey.tag_ends == 0) return blanks + 1;
    std::int64_t whole_tags = 0; // pieces that do both
    for (std::size_t at = 0; (at = position(text, u"<", at)) != TextView::npos;) {
        at = text.find_first_of(u" >", at);
        if (at == TextView::npos) break;
        if (text[at] == u'>') ++whole_tags;
    }
    return blanks + 1 - (survey.tag_ends - whole_tags);
}

std::int16_t as_count(std::int64_t count) {
    return CInt(static_cast<double>(count));
}

} // namespace

Text& quitar_dobles(Text& texto) {
    const auto doubled = [](char16_t a, char16_t b) { return a == u' ' && b == u' '; };
    unsigned short found = 0;
    for (std::size_t i = 1; i < texto.size(); ++i)
        found = static_cast<unsigned short>(found | ((texto[i - 1] == u' ') & (texto[i] == u' ')));
    if (found != 0) texto.erase(std::unique(texto.begin(), texto.end(), doubled), texto.end());
    return texto;
}

std::int16_t contar_palabras(Text& texto) {
    const Survey survey = settle(texto, u"");
    return as_count(words_of_spaced(texto, survey));
}

namespace {

/// Counts by the letter: the keyword's blanks become joints in the text, and each match takes the search on
/// by the length that the keyword has with the longer joints.
std::int64_t count_joined(Text& texto, const Text& keyword) {
    const Text joined = Replace(keyword, u" ", keyword_joint);
    const std::size_t step = Replace(keyword, u" ", long_joint).size();
    if (joined != keyword) replace_all(texto, keyword, joined);
    std::int64_t count = 0;
    for (std::size_t at = 1; (at = static_cast<std::size_t>(InStr(texto, joined, static_cast<int>(at)))) != 0;
         at += step)
        ++count;
    return count;
}

/// The same without touching the text, where that is certain to give the same: -1 when two matches stand so
/// close that the longer step, or a match across both, can play a part.
std::int64_t count_apart(TextView texto, TextView keyword) {
    const auto length = static_cast<int>(keyword.size());
    std::int64_t count = 0;
    int end = 0;
    for (int at = 1; (at = InStr(texto, keyword, at)) != 0; at = end) {
        if (count != 0 &&
            !are_apart(texto.substr(static_cast<std::size_t>(end - 1), static_cast<std::size_t>(at - end)),
                       keyword))
            return -1;
        end = at + length;
        ++count;
    }
    return count;
}

} // namespace

std::int16_t contar_kw(Text& texto, Text& keyword) {
    const Survey survey = settle(texto, u" ");
    keyword = Trim(LCase(keyword));
    const bool phrase = contains(keyword, u" ");
    if (phrase) quitar_dobles(keyword);
    const bool has_joints = survey.dollars && contains(texto, keyword_joint);
    // A "$" beside a joint would make the joint another one.
    const bool plain = !has_joints && !contains(keyword, u"$");
    std::int64_t count = 0;
    if (!keyword.empty()) {
        count = plain && phrase ? count_apart(texto, keyword) : -1;
        if (count < 0) count = count_joined(texto, keyword);
    }
    if (has_joints || phrase) replace_all(texto, keyword_joint, u" ");
    return as_count(count);
}

double por_ciento(std::int16_t cuenta, std::int16_t palabras) {
    if (cuenta == 0 || palabras == 0) return 0;
    return CInt(Replace(Format(Round(cuenta * 100.0 / palabras), u"###,0"), u",", u""));
}

double densidad(const Text& texto, Text& keyword) {
    if (trim_view(texto).empty()) return 0;
    Text copia = texto;
    const std::int16_t cuenta = contar_kw(copia, keyword);
    return por_ciento(cuenta, contar_palabras(copia));
}

double densidad2(std::int16_t cuenta, Text& texto, const Text& keyword) {
    replace_all(texto, keyword, Replace(keyword, u" ", keyword_joint));
    const std::int64_t blanks = std::count(texto.begin(), texto.end(), u' ');
    // One less than the pieces, of which an empty text has none.
    const double piezas = texto.empty() ? -1 : blanks == 0 ? 1 : static_cast<double>(blanks);
    const double valor = CInt(static_cast<double>(cuenta) * 100) / piezas;
    if (valor == 0) return 0;
    return CInt(Format(valor, u"##.##"));
}

Text cortar_palabras(TextView texto, int limite) {
    const TextView recortado = trim_view(texto);
    if (recortado.empty()) return {};
    // Pieces count towards the limit, words stop the loop. Once the pieces have used up the limit nothing
    // more is added, however few words there are: the loop would only run to its end.
    const bool whole_count = contains(recortado, highlight_opening); // its blank ties pieces together
    Text resultado;
    int piezas = 0;
    int palabras = 0;
    for (const TextView cada : split_views(recortado)) {
        if (++piezas > limite) break;
        resultado.append(1, u' ').append(cada);
        Text contada = whole_count ? Trim(resultado) : Text(cada);
        palabras = whole_count ? contar_palabras(contada) : palabras + contar_palabras(contada);
        if (palabras >= limite) break;
    }
    return Trim(resultado);
}

Text limpiar_html(Text& texto) {
    quitar_dobles(texto);
    while (contains(texto, u"..")) texto = Replace(Trim(texto), u"..", u".");
    for (const TextView vacio : {u"<p>  <p>", u"<p> <p>", u"<p><p>"})
        while (replace_all(texto, vacio, u"<p>")) {
        }
    space_tags(texto);
    return Trim(texto);
}

Text preparar_texto(Text& texto) {
    quitar_dobles(texto);
    replace_all(texto, vbCrLf, u" <p> ");
    replace_all(texto, u"(", u" (");
    replace_all(texto, u")", u") ");
    replace_all(texto, u"<", u" <");
    replace_all(texto, u">", u"> ");
    replace_all(texto, u"\"", u"");
    Text limpio = texto;
    quitar_dobles(limpio);
    return Trim(limpio);
}

Text preparar_texto(Text&& texto) {
    return preparar_texto(texto);
}

std::int16_t xrnum(std::int16_t n) {
    if (n == 0) return 0;
    return CInt(Int(chance().Rnd() * n));
}

Text letra(std::int16_t& n) {
    if (n > 25) n = static_cast<std::int16_t>(n - 25); // 25, not 26: "b" follows "z"
    if (n < 0 || n > 25) throw RuntimeFault(fault_subscript);
    return Text(1, static_cast<char16_t>(u'a' + n));
}

bool is_reserved(TextView word) {
    const Text plain = LCase(trim_view(word));
    return plain == u"index" || plain == u"sitemap";
}

Text validar_palabra(Text& palabra) {
    if (Len(palabra) < 3) {
        MsgBox(u"The word must have more than 3 characters"); // 3 pass, whatever it says
        return {};
    }
    if (is_reserved(palabra)) {
        MsgBox(u"'Sitemap' and 'Index' are reserved words.");
        return {};
    }
    palabra = Trim(palabra);
    const auto allowed = [](char16_t c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
               c == u' ' || c == u'-' || c == u'_';
    };
    if (!std::all_of(palabra.begin(), palabra.end(), allowed)) {
        MsgBox(u"The word can only contain letters, numbers and dashes");
        return {};
    }
    return palabra;
}

Text ruta_corta(const Text& ruta) {
    return ruta;
}

void esperar(int segundos) {
    Sleep(segundos * 1000);
}

} // namespace twk
